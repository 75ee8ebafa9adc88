#ifndef RowFilterFixture_h
#define RowFilterFixture_h

#include "vtk/vtkCombinedFilterAndSelectedRows.h"
#include "vtk/vtkCombinedFilterOrSelectedRows.h"

#include <vtkAnnotationLink.h>
#include <vtkDataSetAttributes.h>
#include <vtkDoubleArray.h>
#include <vtkExecutive.h>
#include <vtkFloatArray.h>
#include <vtkInformation.h>
#include <vtkInformationVector.h>
#include <vtkIntArray.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <sstream>

#include "SelectionBuilders.h"
#include "VtkTestSupport.h"

using Rows = std::vector<vtkIdType>;

inline void configure(vtkCombinedFilterOrSelectedRows* filter)
{
  filter->SetTimeColumnIndex(0);
}

inline void configure(vtkCombinedFilterAndSelectedRows* filter)
{
  filter->SetTimeColumnIndex(0);
  filter->SetParaCount(0);
  filter->SetStride(3);
}

inline int noSelectionLine(vtkCombinedFilterOrSelectedRows*)
{
  return 119;
}
inline int noSelectionLine(vtkCombinedFilterAndSelectedRows*)
{
  return 128;
}
inline int failedConversionLine(vtkCombinedFilterOrSelectedRows*)
{
  return 166;
}
inline int failedConversionLine(vtkCombinedFilterAndSelectedRows*)
{
  return 186;
}

/// What the two row filters do alike.
template <class Filter>
class RowFilter : public ::testing::Test
{
protected:
  void SetUp() override { filter->SetInputData(0, table); }

  bool update() { return filter->GetExecutive()->Update() != 0; }
  Rows output(int port) { return idColumn(filter->GetOutput(port), "row"); }

  vtkNew<Filter> filter;
  vtkSmartPointer<vtkTable> table = makeThreeRuns();
  VtkErrors vtkOutput;
};

using Filters = ::testing::Types<vtkCombinedFilterOrSelectedRows, vtkCombinedFilterAndSelectedRows>;

#endif
