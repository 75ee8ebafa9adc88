#include "plot/ContainerAccess.h"
#include "support/PlotFixture.h"
#include "support/SoundPicture.h"
#include "support/VtkErrors.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include <string>

namespace
{

class TitlesAndAxes : public PlotFixture
{
};

TEST_F(TitlesAndAxes, ShowTitleAndLabelsAtOnceAndKeepThem)
{
  newDrawings();
  container.setPlotTitle("title \xc2\xb5");
  container.setXLabel("time [s]");
  container.setYLabel("\xc2\xb5M");
  EXPECT_EQ(newDrawings(), 0U);
  for (int drawn = 0; drawn < 2; ++drawn)
  {
    EXPECT_EQ(settings().title, "title \xc2\xb5");
    EXPECT_EQ(settings().xLabel, "time [s]");
    EXPECT_EQ(settings().yLabel, "\xc2\xb5M");
    EXPECT_EQ(chart()->GetTitle(), "title \xc2\xb5");
    EXPECT_EQ(bottom()->GetTitle(), "time [s]");
    EXPECT_EQ(left()->GetTitle(), "\xc2\xb5M");
    container.redraw();
  }
  container.setPlotTitle("");
  EXPECT_EQ(chart()->GetTitle(), "");
}

TEST_F(TitlesAndAxes, LeaveTheSettingsSignalsAsTheyAre)
{
  for (const bool blocked : {true, false})
  {
    settings().blockSignals(blocked);
    const QSignalSpy announced(&settings(), &PlotMetaData::redrawNeeded);
    container.setPlotTitle("title");
    container.setXLabel("x");
    container.setYLabel("y");
    container.setXTickLabels({"one"});
    container.setXTickPosition({1.0});
    container.setLogScaleY(true);
    container.LogScaleX();
    container.setShowLegend(true);
    container.setMarkerStyle(3);
    container.setPointSize(3.0);
    container.setColor(1, 2, 3, 4);
    container.setColorScheme("c", false);
    container.setLeftMargin(70);
    EXPECT_EQ(settings().signalsBlocked(), blocked);
    EXPECT_EQ(announced.count(), 0);
  }
}

TEST_F(TitlesAndAxes, TakeTickLabelsWithTheNextRedraw)
{
  container.setXTickLabels({"one", "two"});
  container.setXTickPosition({0.5, 1.5});
  EXPECT_TRUE(!bottom()->GetTickLabels() || !bottom()->GetTickLabels()->GetNumberOfValues() ||
              bottom()->GetTickLabels()->GetValue(0) != "one");
  container.redraw();
  ASSERT_EQ(bottom()->GetTickLabels()->GetNumberOfValues(), 2);
  EXPECT_EQ(bottom()->GetTickLabels()->GetValue(0), "one");
  EXPECT_EQ(bottom()->GetTickPositions()->GetValue(1), 1.5);
  scene.render(container);
}

TEST_F(TitlesAndAxes, ReplaceTickLabelsAndPositionsWhole)
{
  container.setXTickLabels({"one", "two", "three"});
  container.setXTickPosition({0.5, 1.5, 2.5});
  const vtkSmartPointer<vtkStringArray> labels = stateOf(container).xTickLabels;
  const vtkSmartPointer<vtkDoubleArray> positions = stateOf(container).xTickPositions;
  container.setXTickLabels({"only"});
  container.setXTickPosition({4.0});
  EXPECT_NE(stateOf(container).xTickLabels, labels);
  EXPECT_NE(stateOf(container).xTickPositions, positions);
  EXPECT_EQ(labels->GetNumberOfValues(), 3);
  ASSERT_EQ(stateOf(container).xTickLabels->GetNumberOfValues(), 1);
  EXPECT_EQ(stateOf(container).xTickLabels->GetValue(0), "only");
  ASSERT_EQ(stateOf(container).xTickPositions->GetNumberOfValues(), 1);
  EXPECT_EQ(stateOf(container).xTickPositions->GetValue(0), 4.0);
}

TEST_F(TitlesAndAxes, TakeNoTicksWithoutLabels)
{
  container.setXTickPosition({0.5, 1.5});
  container.redraw();
  scene.render(container);
  EXPECT_NE(bottom()->GetTickPositions()->GetNumberOfValues(), 2);
  container.setXTickLabels({});
  container.redraw();
  scene.render(container);
}

TEST_F(TitlesAndAxes, SurviveMoreLabelsThanPositionsAndFewer)
{
  container.setXTickLabels({"one", "two", "three"});
  container.setXTickPosition({0.5});
  container.redraw();
  scene.render(container);
  container.setXTickPosition({0.5, 1.5, 2.5, 3.5, 4.5});
  container.redraw();
  scene.render(container);
  container.setXTickPosition({});
  container.redraw();
  EXPECT_EQ(bottom()->GetTickPositions()->GetValue(2), 2.0) << "no positions: by index";
  scene.render(container);
}

TEST_F(TitlesAndAxes, HaveALogarithmicLeftAxisOnDemand)
{
  newDrawings();
  container.setLogScaleY(true);
  EXPECT_TRUE(left()->GetLogScale());
  EXPECT_FALSE(bottom()->GetLogScale());
  EXPECT_FALSE(settings().getLogX());
  EXPECT_EQ(newDrawings(), 0U);
  scene.render(container);
  container.setLogScaleY(false);
  EXPECT_FALSE(left()->GetLogScale());
}

TEST_F(TitlesAndAxes, HaveALogarithmicBottomAxisAsTheSettingsSay)
{
  settings().blockSignals(true);
  settings().setLogX(true);
  EXPECT_FALSE(bottom()->GetLogScale());
  container.LogScaleX();
  EXPECT_TRUE(bottom()->GetLogScale());
  EXPECT_FALSE(left()->GetLogScale());
  settings().setLogX(false);
  container.LogScaleX();
  EXPECT_FALSE(bottom()->GetLogScale());
  settings().blockSignals(false);
  settings().setLogX(true);
  EXPECT_TRUE(bottom()->GetLogScale()) << "a redraw takes the scale from the settings";
}

TEST_F(TitlesAndAxes, SurviveLogarithmsOfWhatHasNone)
{
  const VtkErrors errors;
  settings().yColumns = {3};
  settings().setLogX(true);
  container.setLogScaleY(true);
  expectSoundPicture(scene, container);
  container.setPlotData(tableOf({{"a", {0, 0}}, {"b", {-1, -2}}, {"c", {-5, 5}}, {"d", {0, 0}}}));
  for (const char* x : {"a", "b", "c", "d"})
  {
    SCOPED_TRACE(x);
    settings().xColumns = {Talmesh::plot::columnIndex(container.getTable(), x)};
    container.redraw();
    container.setLogScaleY(true);
    EXPECT_TRUE(bottom()->GetLogScale());
    EXPECT_TRUE(left()->GetLogScale());
    // VTK leaves an axis of negative numbers without ends. The next data must bring them back.
    if (*x == 'b')
      scene.render(container);
    else
      expectSoundPicture(scene, container);
  }
  EXPECT_EQ(errors.text(), "");
}

TEST_F(TitlesAndAxes, HaveALegendOnDemand)
{
  container.setShowLegend(true);
  EXPECT_TRUE(chart()->GetShowLegend());
  scene.render(container);
  container.setShowLegend(false);
  EXPECT_FALSE(chart()->GetShowLegend());
}

TEST_F(TitlesAndAxes, AreStoredWhileNoXYChartIsShown)
{
  for (const int style : {3, 4})
  {
    drawStyle(style);
    ASSERT_EQ(chart(), nullptr);
    container.setPlotTitle("title of " + std::to_string(style));
    container.setXLabel("x");
    container.setYLabel("y");
    container.setLogScaleY(true);
    container.LogScaleX();
    container.setShowLegend(true);
    EXPECT_EQ(settings().title, "title of " + std::to_string(style));
    drawStyle(0);
    EXPECT_EQ(chart()->GetTitle(), "title of " + std::to_string(style));
    EXPECT_EQ(bottom()->GetTitle(), "x");
    EXPECT_EQ(left()->GetTitle(), "y");
  }
}

} // namespace
