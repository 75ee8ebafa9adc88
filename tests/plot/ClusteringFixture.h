#ifndef ClusteringFixture_h
#define ClusteringFixture_h

#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"

#include <vtkIntArray.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// Twelve runs of eight points: a line, a parabola and a wave, at many levels and amplitudes.
// R 4.2.2: t <- 0:7; shape <- rbind(t, (t - 3.5)^2, sin(t * pi / 2 + 0.3))
//   x <- t(sapply(0:11, function(i)
//     round(shape[i %% 3 + 1, ] * (1 + i / 4) + i + ((7 * i + 3 * t^2) %% 5) / 20, 2)))
//   x <- x[c(1, 2, 3, 6, 4, 12, 7, 5, 11, 8, 10, 9), ]
inline const std::vector<double> threeShapes = {
    0,     1.15,  2.1,   3.1,   4.15,  5,     6.15,  7.1,   16.41, 8.81,  4.01,  1.51,
    1.31,  3.91,  8.81,  16.51, 2.64,  3.53,  1.61,  0.62,  2.54,  3.63,  1.66,  0.62,
    5.66,  7.3,   4.44,  2.95,  5.81,  7.15,  4.49,  2.95,  3.05,  4.95,  6.65,  8.4,
    10.2,  11.8,  13.7,  15.4,  12.21, 14.58, 10.09, 7.62,  12.11, 14.68, 9.89,  7.62,
    6.1,   8.5,   11.2,  13.7,  16,    18.6,  21,    23.7,  28.65, 16.55, 8.5,   4.5,
    4.55,  8.65,  16.55, 28.5,  52.88, 32.02, 17.98, 10.97, 11.03, 17.88, 32.02, 52.98,
    40.89, 24.29, 13.24, 7.74,  7.79,  13.39, 24.29, 40.74, 9.15,  12.3,  15.5,  18.75,
    22.05, 25.4,  28.55, 31.75, 8.94,  11.07, 7.26,  5.28,  9.09,  10.92, 7.31,  5.28};

/// A container whose runs are clustered, and what it printed meanwhile.
class ClusteringFixture : public ::testing::Test
{
protected:
  void setRuns(const std::vector<double>& values, int stride)
  {
    container.setPlotData(runsOfValues(values, stride));
    container.getMetaData()->setStride(stride);
  }

  /// Clusters and returns the membership; empty without one.
  std::vector<int> cluster(int clusters, int mode = 0)
  {
    CapturedOutput standardOutput(std::cout);
    CapturedOutput errors(std::cerr);
    container.clusterTimeSeries(clusters, mode);
    output = standardOutput.text();
    error = errors.text();
    vtkIntArray* membership = container.getClusterMembership();
    if (!membership)
      return {};
    return {membership->GetPointer(0), membership->GetPointer(0) + membership->GetNumberOfTuples()};
  }

  vtkTable* means() { return stateOf(container).decorationTable; }
  std::vector<double> mean(int column) { return SampleRuns::valuesOf(means()->GetColumn(column)); }

  PlotContainer container{nullptr};
  std::string output;
  std::string error;
};

#endif
