#ifndef CurrentFlags_h
#define CurrentFlags_h

#include "support/SampleRuns.h"

#include <vtkIntArray.h>
#include <vtkSmartPointer.h>

#include <gtest/gtest.h>

#include <vector>

using Flags = std::vector<double>;

/// The flags that the container gives for its selection.
inline Flags currentFlags(const PlotContainer& container)
{
  const auto flags = vtk::TakeSmartPointer(container.getCurrentSelection());
  EXPECT_NE(flags, nullptr);
  return SampleRuns::valuesOf(flags);
}

#endif
