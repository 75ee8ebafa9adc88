#ifndef RankedTablesFixture_h
#define RankedTablesFixture_h

#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// Column 0 is time; columns 1 and 2 are the parameters k1 and k2. Three runs of two rows.
inline vtkSmartPointer<vtkTable> threeRuns()
{
  return tableOf({{"Time", {0, 1, 0, 1, 0, 1}},
                  {"Parameter: k1", {5, 5, 2, 2, 5, 5}},
                  {"Parameter: k2", {10, 10, 30, 30, 20, 20}}});
}

/// The three runs in a container that knows their parameters and bounds.
class RankedTablesFixture : public ::testing::Test
{
protected:
  RankedTablesFixture()
  {
    container.setPlotData(threeRuns());
    state().columnItems = {
        {Talmesh::TimeOrValue, "Time"}, {Talmesh::Parameter, "k1"}, {Talmesh::Parameter, "k2"}};
    state().parameterBounds = {{0, 10}, {0, 100}};
    container.findParameterColumns();
    settings().setStride(2);
  }

  Talmesh::plot::PlotState& state() { return stateOf(container); }
  PlotMetaData& settings() { return *container.getMetaData(); }
  void rank() { container.generateRankedParameters(container.getTable(), 0); }
  vtkTable* slot(std::size_t index) { return container.getDerivedTables().at(index); }

  std::vector<double> values(std::size_t index, const std::string& name)
  {
    return SampleRuns::valuesOf(slot(index), name);
  }

  PlotContainer container{nullptr};
};

#endif
