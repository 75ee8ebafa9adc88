#include "external/LinePlotData.h"
#include "external/PlotMetaData.h"
#include "support/PageFixture.h"
#include "support/ParameterStudy.h"
#include "support/PlotFixture.h"
#include "support/PlotStyleCount.h"
#include "support/SoundPicture.h"
#include "support/VtkErrors.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

/// Small data in every style. What VTK reports is collected.
class QuietDrawing : public PageFixture
{
protected:
  QuietDrawing() { container.setScene(scene.scene()); }

  void drawEveryStyle()
  {
    for (int style = 0; style <= plotStyleCount; ++style)
    {
      for (const bool lines : {false, true})
      {
        SCOPED_TRACE(testing::Message() << "style " << style << ", lines " << lines);
        const VtkErrors errors;
        settings().blockSignals(true);
        settings().setPlotStyle(static_cast<plotStyles>(style));
        settings().setPlotLine(lines);
        settings().blockSignals(false);
        container.redraw();
        expectSoundPicture(scene, container);
        EXPECT_EQ(errors.text(), "");
      }
    }
  }
};

TEST_F(QuietDrawing, OfATableOfOneRow)
{
  container.setPlotData(
      tableOf({{"Parameter: k1", {1}}, {"Parameter: k2", {2}}, {"x", {3}}, {"y", {4}}}));
  settings().parameterColumns = {0, 1};
  settings().xColumns = {2, 2};
  settings().yColumns = {3, 3};
  container.setDecorations(tableOf({{"line", {1}}, {"x", {2}}}), true);
  drawEveryStyle();
}

TEST_F(QuietDrawing, OfRunsOfOnePoint)
{
  constexpr int runs = 6;
  container.setLinePlotTable(parameterStudy(runs, 1, 2), true);
  settings().setShowQuantiles(true);
  for (const bool density : {false, true})
  {
    settings().setUseDensity(density);
    drawEveryStyle();
  }
}

TEST_F(QuietDrawing, OfASeriesOfOnePoint)
{
  std::vector<double> time = {1};
  std::vector<double> values = {2};
  LinePlotData data;
  data.xName = "Time [s]";
  data.xValues = &time;
  data.series[{Talmesh::Molecule, "A"}] = &values;
  const VtkErrors errors;
  container.setLinePlotData(&data);
  std::vector<Talmesh::TypedConcentrationName> items = {{Talmesh::Molecule, "A"}};
  container.setLinePlotItems(&items);
  expectSoundPicture(scene, container);
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 1);
  EXPECT_EQ(errors.text(), "");
}

TEST(QuietScale, WithoutAScene)
{
  const VtkErrors errors;
  PlotContainer container(nullptr);
  container.setPlotData(plainTable());
  for (const bool log : {true, false})
  {
    container.setLogScaleY(log);
    container.getMetaData()->blockSignals(true);
    container.getMetaData()->setLogX(log);
    container.LogScaleX();
    container.setShowLegend(log);
    EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::LEFT)->GetLogScale(), log);
    EXPECT_EQ(container.getChartXY()->GetAxis(vtkAxis::BOTTOM)->GetLogScale(), log);
  }
  EXPECT_EQ(errors.text(), "");
}

} // namespace
