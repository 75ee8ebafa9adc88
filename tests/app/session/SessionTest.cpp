#include "app/document/PlotSession.h"
#include "app/document/ShownStudy.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"
#include "vtk/RowSelections.h"

#include <algorithm>
#include <vector>

#include "session/SavedSession.h"

using namespace Talmesh::app;
namespace plot = Talmesh::plot;

namespace
{

class Session : public SavedSession
{
};

} // namespace

TEST_F(Session, TellsHowFarItIsReadAndCanBeCancelled)
{
  save(sampleStudy());
  std::vector<double> told;
  EXPECT_TRUE(openSession(path(),
                          [&told](double done)
                          {
                            told.push_back(done);
                            return true;
                          })
                  .hasValue());
  ASSERT_GE(told.size(), 2U);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_LE(told.back(), 1.0);
  for (std::size_t steps = 0; steps < told.size(); ++steps)
  {
    std::size_t calls = 0;
    const Result<OpenedSession> given =
        openSession(path(), [&](double) { return calls++ < steps; });
    EXPECT_TRUE(given.isCancelled()) << steps;
    EXPECT_EQ(calls, steps + 1) << "nothing is done after it";
    EXPECT_FALSE(given.hasValue());
    EXPECT_EQ(given.error(), "");
  }
}

TEST_F(Session, RestoresRunsAndParameters)
{
  const Study study = sampleStudy();
  save(study);
  PlotContainer& container = reopen();
  ASSERT_TRUE(opened.study.runs);
  EXPECT_EQ(opened.study.name, "sample");
  EXPECT_EQ(studySize(opened.study), studySize(study));
  EXPECT_EQ(opened.study.runs->items, study.runs->items);
  EXPECT_EQ(opened.study.runs->parameterRanges, study.runs->parameterRanges);
  for (std::size_t i = 0; i < study.runs->items.size(); ++i)
    for (std::size_t row = 0; row < 12; ++row)
      EXPECT_EQ(opened.study.runs->values[i][row], study.runs->values[i][row]);
  EXPECT_EQ(container.getLabels(), shown->getLabels());
  EXPECT_EQ(container.getMetaData()->getStride(), 4);
  EXPECT_EQ(container.getMetaData()->parameterColumns, shown->getMetaData()->parameterColumns);
  EXPECT_EQ(stateOf(container).parameterBounds, stateOf(*shown).parameterBounds);
}

TEST_F(Session, RestoresEverySetting)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  PlotMetaData& before = *container.getMetaData();
  before.blockSignals(true);
  before.setPlotStyle(selectionCdfPlot);
  for (auto set :
       {&PlotMetaData::setLogX, &PlotMetaData::setLogParameterAxes, &PlotMetaData::setUseDensity,
        &PlotMetaData::setCommonDensityScale, &PlotMetaData::setShowQuantiles})
    (before.*set)(true);
  before.setPlotLine(false);
  before.setLimitColumVisibility(false);
  before.setKsThreshold(0.25);
  before.setPThreshold(0.001);
  before.setLineWidth(2.5);
  before.xColumns = {1};
  before.yColumns = {0, 2};
  before.zColumns = {3};
  before.markerStyle = 2;
  before.pointSize = 7.5;
  before.title = "T\xc3\xaetle";
  before.xLabel = "left";
  before.yLabel = "right";
  before.colorColumn = 1;
  before.color = {1, 2, 3, 4};
  before.solidColor = false;
  before.sourceName = "source";
  before.sourceId = -7;
  before.blockSignals(false);
  save(study, container);
  const PlotMetaData& after = *reopen().getMetaData();
  EXPECT_EQ(after.getPlotStyle(), selectionCdfPlot);
  for (auto get :
       {&PlotMetaData::getLogX, &PlotMetaData::getLogParameterAxes, &PlotMetaData::getUseDensity,
        &PlotMetaData::getCommonDensityScale, &PlotMetaData::getShowQuantiles})
    EXPECT_TRUE((after.*get)());
  EXPECT_FALSE(after.getPlotLine());
  EXPECT_FALSE(after.getLimitColumVisibility());
  EXPECT_EQ(after.getKsThreshold(), 0.25);
  EXPECT_EQ(after.getPThreshold(), 0.001);
  EXPECT_EQ(after.getLineWidth(), 2.5);
  EXPECT_EQ(after.xColumns, before.xColumns);
  EXPECT_EQ(after.yColumns, before.yColumns);
  EXPECT_EQ(after.zColumns, before.zColumns);
  EXPECT_EQ(after.markerStyle, 2);
  EXPECT_EQ(after.pointSize, 7.5);
  EXPECT_EQ(after.title, before.title);
  EXPECT_EQ(after.xLabel, "left");
  EXPECT_EQ(after.yLabel, "right");
  EXPECT_EQ(after.colorColumn, 1);
  EXPECT_EQ(after.color, before.color);
  EXPECT_FALSE(after.solidColor);
  EXPECT_EQ(after.sourceName, "source");
  EXPECT_EQ(after.sourceId, -7);
  EXPECT_FALSE(after.signalsBlocked());
}

TEST_F(Session, KeepsLegendAndLogarithmInEveryStyle)
{
  const Study study = sampleStudy();
  for (const plotStyles style : {xyPlot, scatterPlotMatrix, multiPlot, selectionCdfPlot})
  {
    PlotContainer container(nullptr);
    showStudy(study, container);
    container.setPlotStyle(style);
    PlotChoice choice = choiceOf(container);
    choice.legend = true;
    choice.logY = true;
    ASSERT_EQ(saveSession(path(), sessionOf(study, container, choice)), "");
    PlotContainer& again = reopen();
    again.redraw();
    const PlotChoice restoredOne = restoredChoice(*opened.session, again);
    EXPECT_EQ(restoredOne.style, style);
    EXPECT_TRUE(restoredOne.legend) << style;
    EXPECT_TRUE(restoredOne.logY) << style;
  }
}

TEST_F(Session, RestoresTheAxisWindowOnItsScales)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  plot::PlotState& before = stateOf(container);
  before.coordinateWindows[plot::currentKey(before)] = {0.5, 1.0, 2.5, 1.75, true};
  before.windowScales[plot::currentKey(before)] = {false, true};
  save(study, container);
  const plot::PlotState& after = stateOf(reopen());
  const CoordinateWindow* window = plot::rememberedWindow(after);
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(window->xMin, 0.5);
  EXPECT_EQ(window->yMin, 1.0);
  EXPECT_EQ(window->xMax, 2.5);
  EXPECT_EQ(window->yMax, 1.75);
  const plot::WindowScales scales = after.windowScales.at(plot::currentKey(after));
  EXPECT_FALSE(scales.xLog);
  EXPECT_TRUE(scales.yLog);
}

TEST_F(Session, RestoresTheSelectionWithoutMarkingTheTable)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({4, 5, 11}));
  save(study, container);
  PlotContainer& again = reopen();
  const auto flags = vtkSmartPointer<vtkIntArray>::Take(again.getCurrentSelection());
  ASSERT_TRUE(flags);
  for (int row = 0; row < 12; ++row)
    EXPECT_EQ(flags->GetValue(row), row == 4 || row == 5 || row == 11) << row;
  EXPECT_FALSE(again.getLabels().contains(plot::selectionFlagColumn));
}

TEST_F(Session, RefusesSettingsThatAreNoObject)
{
  const QByteArray dump = dumpOf(sampleStudy());
  for (const char* settings : {"", "[]", "{", "{\"name\": }", "\xff\xfe"})
    EXPECT_EQ(errorOf({settings, dump}), "the session's settings are damaged") << settings;
}

TEST_F(Session, IsCalledAfterItsFileWithoutAName)
{
  EXPECT_EQ(errorOf({"{}", dumpOf(sampleStudy("a,b\n1,2\n"))}), "");
  EXPECT_EQ(openSession(path()).value().study.name, "study.talmesh");
}
