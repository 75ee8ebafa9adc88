#include "plot/ContainerAccess.h"
#include "support/CapturedOutput.h"
#include "support/LineTables.h"
#include "support/PlotFixture.h"
#include "support/PlotStyleCount.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using Talmesh::Complex;
using Talmesh::Parameter;
using Talmesh::TimeOrValue;

namespace
{

/// What data input computes from the data besides taking it over.
class InputStatistics : public PlotFixture
{
protected:
  static boost::shared_ptr<LinePlotTable> runs()
  {
    return lineTableOf({{Complex, "A"}, {TimeOrValue, "Time [s]"}, {Parameter, "k"}},
                       {{0.0, 1000.0}}, 4, 3);
  }
};

TEST_F(InputStatistics, RankTheParametersOfANewTableInTheSelectionStyleAlone)
{
  stateOf(container).columnItems = {{Complex, "A"}, {Parameter, "b"}};
  stateOf(container).parameterBounds = {{0.0, 100.0}};
  for (int style = 0; style <= plotStyleCount; ++style)
  {
    storeStyle(style);
    container.setPlotData(plainTable());
    ASSERT_EQ(container.getDerivedTables().size(), style == 6 ? 2U : 0U) << style;
  }
  storeStyle(6);
  container.setPlotData(plainTable());
  EXPECT_NE(container.getDerivedTables().front()->GetColumnByName("Sorted Parameter: b"), nullptr);
}

TEST_F(InputStatistics, RankTheParametersOfALineTableInTheSelectionStyleAlone)
{
  container.setLinePlotTable(runs(), false);
  EXPECT_TRUE(container.getDerivedTables().empty());
  storeStyle(6);
  settings().blockSignals(true);
  container.updateFromLinePlotTable(false);
  ASSERT_EQ(container.getDerivedTables().size(), 2U);
  vtkAbstractArray* sorted =
      container.getDerivedTables().front()->GetColumnByName("Sorted Parameter: k");
  ASSERT_NE(sorted, nullptr);
  EXPECT_EQ(sorted->GetNumberOfTuples(), 4) << "one value per run";
}

TEST_F(InputStatistics, RankALineTableOnceWithTheStrideItBrings)
{
  storeStyle(6);
  settings().setStride(1);
  // Each ranking says that there is a pair of bounds too many.
  stateOf(container).parameterBounds = {{0.0, 1.0}};
  CapturedOutput errors(std::cerr);
  container.setLinePlotTable(runs(), false);
  const std::string said = errors.text();
  const std::string warning = "Warning void PlotContainer::generateRankedParameters";
  const std::size_t first = said.find(warning);
  ASSERT_NE(first, std::string::npos) << said;
  EXPECT_EQ(said.find(warning, first + 1), std::string::npos) << said;
  EXPECT_EQ(container.getDerivedTables().front()->GetNumberOfRows(), 4) << "one value per run";
}

TEST_F(InputStatistics, SummariseALineTableOnDemand)
{
  container.setLinePlotTable(runs(), false);
  EXPECT_EQ(container.getQuartileTable(), nullptr);
  container.updateFromLinePlotTable(false);
  EXPECT_EQ(container.getQuartileTable(), nullptr);
  container.setLinePlotTable(runs(), true);
  ASSERT_NE(container.getQuartileTable(), nullptr);
  EXPECT_EQ(container.getQuartileTable()->GetNumberOfRows(), 3);
  const vtkSmartPointer<vtkTable> first = container.getQuartileTable();
  container.updateFromLinePlotTable(true);
  EXPECT_NE(container.getQuartileTable(), first.Get());
}

TEST_F(InputStatistics, SummariseTheColumnsThatWereChosen)
{
  container.setLinePlotTable(runs(), true);
  const vtkSmartPointer<vtkTable> before = container.getQuartileTable();
  container.setPlotCols(1, 2, 0, false);
  EXPECT_EQ(container.getQuartileTable(), before);
  container.setPlotCols(1, 2, 0, true);
  ASSERT_NE(container.getQuartileTable(), before.Get());
  // Column 2 at the first position of the four runs.
  EXPECT_EQ(container.getQuartileTable()->GetValue(0, 1).ToDouble(), lineValue(2, 0));
  EXPECT_EQ(container.getQuartileTable()->GetValue(0, 5).ToDouble(), lineValue(2, 9));
}

TEST_F(InputStatistics, KeepTheBorrowedTimesAlive)
{
  auto own = std::make_unique<PlotContainer>(nullptr);
  own->setScene(scene.scene());
  own->setLinePlotTable(runs(), true);
  const vtkSmartPointer<vtkTable> quartiles = own->getQuartileTable();
  own->setLinePlotTable(lineTableOf({{Complex, "B"}}), false);
  EXPECT_EQ(quartiles->GetValueByName(2, "Time").ToDouble(), lineValue(1, 2));
  own.reset();
  EXPECT_EQ(quartiles->GetValueByName(2, "Time").ToDouble(), lineValue(1, 2));
}

} // namespace
