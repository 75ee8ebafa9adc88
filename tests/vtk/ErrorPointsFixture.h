#ifndef ErrorPointsFixture_h
#define ErrorPointsFixture_h

#include "vtk/vtkPlotErrorPoints.h"

#include <vtkContext2D.h>
#include <vtkFloatArray.h>
#include <vtkPoints2D.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include "VtkTestSupport.h"

class ExposedErrorPoints : public Exposed<vtkPlotErrorPoints>
{
public:
  // Donates the reference that the base destructor releases.
  ~ExposedErrorPoints() override
  {
    if (ErrorArray)
      ErrorArray->Register(nullptr);
  }

  using vtkPlotErrorPoints::ErrorArray;
};

class ErrorPoints : public ::testing::Test
{
protected:
  void SetUp() override { item->SetMarkerStyle(vtkPlotPoints::CIRCLE); }

  void setTable(const std::vector<double>& y, const std::vector<double>& errors)
  {
    std::vector<double> x;
    for (std::size_t i = 0; i < y.size(); ++i)
      x.push_back(static_cast<double>(i + 1));
    table = makeTable({{"x", x}, {"y", y}});
    table->AddColumn(makeColumn<vtkFloatArray>("error", errors));
    item->SetInputData(table, "x", "y");
  }

  std::vector<Points> bars() const
  {
    std::vector<Points> found;
    for (const auto& call : recording.device->calls(Kind::Poly))
      found.push_back(call.points);
    return found;
  }

  vtkSmartPointer<ExposedErrorPoints> item = makeExposed<ExposedErrorPoints>();
  vtkSmartPointer<vtkTable> table;
  RecordingPainter recording;
  VtkErrors vtkOutput;
};

inline const std::vector<Points> ThreeBars{
    {{1, 9.5}, {1, 10.5}}, {{2, 20}, {2, 20}}, {{3, 28}, {3, 32}}};

#endif
