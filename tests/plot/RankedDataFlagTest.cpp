#include "external/Distribution.h"
#include "external/FitRun.h"
#include "external/FitSettings.h"
#include "external/LinePlotData.h"
#include "external/LinePlotTable.h"
#include "external/PlotMetaData.h"
#include "external/SobolPostProcessResult.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/PlotScene.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <QByteArray>

#include <cmath>
#include <functional>
#include <memory>

#include "RankedTablesFixture.h"

namespace
{

using Values = std::vector<double>;

class RankedDataFlag : public RankedTablesFixture
{
protected:
  void expectCleared(const std::string& by, const std::function<void()>& change)
  {
    settings().rankedDataCurrent = true;
    change();
    EXPECT_FALSE(settings().rankedDataCurrent) << by;
  }
};

TEST_F(RankedDataFlag, IsSetByRankingThePlotTableOnly)
{
  container.generateRankedParameters(threeRuns(), 0);
  EXPECT_FALSE(settings().rankedDataCurrent);
  rank();
  EXPECT_TRUE(settings().rankedDataCurrent);
}

TEST_F(RankedDataFlag, IsClearedByEveryChangeOfTheTable)
{
  Values x = {1, 2};
  double factors[] = {1, 1, 1};
  LinePlotData lines;
  lines.xValues = &x;
  auto lineTable = boost::make_shared<LinePlotTable>();
  expectCleared("setPlotData", [&] { container.setPlotData(threeRuns()); });
  expectCleared("findParameterColumns", [&] { container.findParameterColumns(); });
  expectCleared("addColumn", [&] { container.addColumn(Values(6), "more"); });
  expectCleared("scaleColumn", [&] { container.scaleColumn(factors, 1); });
  expectCleared("scaleRelativeToMaxWithinTrajectory",
                [&] { container.scaleRelativeToMaxWithinTrajectory(1); });
  expectCleared("scaleColumnByColumn", [&] { container.scaleColumnByColumn(1, 2, false); });
  expectCleared("setLinePlotData", [&] { container.setLinePlotData(&lines); });
  CapturedOutput output(std::cout);
  expectCleared("setLinePlotTable", [&] { container.setLinePlotTable(lineTable, false); });
  expectCleared("setSimpleXYPlot", [&] { container.setSimpleXYPlot(x, x, x); });
  UniformDistribution distribution(0, 1);
  expectCleared("setDistribution", [&] { container.setDistribution(&distribution); });
  FitRun run;
  FitSettings fit;
  std::vector<Values> predictions;
  expectCleared("setResidualPlot",
                [&] { container.setResidualPlot(&run, &fit, predictions, false, false); });
  SobolPostProcessResult sobol;
  expectCleared("setSobolPostprocessResult",
                [&] { container.setSobolPostprocessResult(&sobol, true, true, 0, 0); });
  expectCleared("setSobolPostprocessResult",
                [&] { container.setSobolPostprocessResult(&sobol, false, true, 0, 0); });
  const std::unique_ptr<QByteArray> dump(container.binaryDump());
  expectCleared("readDump", [&] { container.readDump(dump.get()); });
  expectCleared("example", [&] { container.example(); });
  expectCleared("loadData", [&] { container.loadData("there is no such file"); });
}

TEST_F(RankedDataFlag, IsClearedByReducingTheTable)
{
  addStringColumn(container.getTable(), "unused");
  CapturedOutput errors(std::cerr);
  expectCleared("shrinkToColumnSelection", [&] { container.shrinkToColumnSelection(); });
  ASSERT_EQ(container.getTable()->GetColumnByName("unused"), nullptr);
  expectCleared("reducing again", [&] { container.shrinkToColumnSelection(); });
}

TEST_F(RankedDataFlag, StaysWithABoundThatIsNotANumber)
{
  PlotScene scene;
  container.setScene(scene.scene());
  state().parameterBounds[0].first = std::nan("");
  state().parameterBounds[1].second = std::nan("");
  rank();
  container.redraw();
  EXPECT_TRUE(settings().rankedDataCurrent);
  state().parameterBounds[1].second = 7;
  container.redraw();
  EXPECT_FALSE(settings().rankedDataCurrent);
  state().parameterBounds[1].second = std::nan("");
  rank();
  state().parameterBounds.emplace_back(0, 1);
  container.redraw();
  EXPECT_FALSE(settings().rankedDataCurrent) << "one more pair";
}

TEST_F(RankedDataFlag, IsClearedByTheNextDrawingWhenAnInputChanged)
{
  PlotScene scene;
  container.setScene(scene.scene());
  rank();
  container.redraw();
  EXPECT_TRUE(settings().rankedDataCurrent);
  settings().setStride(3);
  EXPECT_FALSE(settings().rankedDataCurrent) << "stride";
  rank();
  settings().parameterColumns = {2, 1};
  container.redraw();
  EXPECT_FALSE(settings().rankedDataCurrent) << "parameters";
  rank();
  state().parameterBounds[0].second = 11;
  container.redraw();
  EXPECT_FALSE(settings().rankedDataCurrent) << "bounds";
  rank();
  container.redraw();
  EXPECT_TRUE(settings().rankedDataCurrent);
}

TEST_F(RankedDataFlag, IsNotInheritedByACopyWhichHasNoRanks)
{
  PlotScene scene;
  container.setScene(scene.scene());
  rank();
  CapturedOutput output(std::cout);
  const PlotContainer copy(container);
  EXPECT_FALSE(copy.getMetaData()->rankedDataCurrent);
  EXPECT_TRUE(settings().rankedDataCurrent);
}

} // namespace
