#include "app/Session.h"

#include "app/SessionFile.h"
#include "app/SessionTable.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "plot/SelectionNodes.h"
#include "plot/TableColumns.h"
#include "support/PlotScene.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <algorithm>
#include <limits>
#include <memory>

#include "SampleStudies.h"

using namespace Talmesh::app;
namespace plot = Talmesh::plot;

namespace
{

std::vector<double> valuesOf(vtkTable* table, const std::string& name)
{
  auto* column = vtkDoubleArray::SafeDownCast(plot::columnNamed(table, name));
  if (!column)
    return {};
  return {column->GetPointer(0), column->GetPointer(0) + column->GetNumberOfValues()};
}

class Session : public ::testing::Test
{
protected:
  QString path() const { return folder.filePath("study.talmesh"); }

  void save(const Study& study)
  {
    shown = std::make_unique<PlotContainer>(nullptr);
    showStudy(study, *shown);
    save(study, *shown);
  }

  void save(const Study& study, PlotContainer& container)
  {
    EXPECT_EQ(saveSession(path(), study, container, choiceOf(container)), "");
  }

  /// Opens what was saved and shows it in a fresh container.
  PlotContainer& reopen()
  {
    opened = openSession(path());
    EXPECT_EQ(opened.error, "");
    restored = std::make_unique<PlotContainer>(nullptr);
    restored->setScene(view.scene());
    if (opened.session)
    {
      showStudy(opened.study, *restored);
      restoreSettings(*opened.session, *restored);
      restoreWindow(*opened.session, *restored);
      restoreSelection(*opened.session, *restored);
    }
    return *restored;
  }

  std::string errorOf(const SessionParts& parts)
  {
    EXPECT_EQ(saveSessionFile(path(), parts), "");
    return openSession(path()).error;
  }

  QByteArray dumpOf(const Study& study)
  {
    PlotContainer container(nullptr);
    showStudy(study, container);
    return dumpStudy(study, container, container.getTable());
  }

  QTemporaryDir folder;
  std::unique_ptr<PlotContainer> shown;
  PlotScene view;
  std::unique_ptr<PlotContainer> restored;
  OpenedSession opened;
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
                  .session);
  ASSERT_GE(told.size(), 2U);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_LE(told.back(), 1.0);
  for (std::size_t steps = 0; steps < told.size(); ++steps)
  {
    std::size_t calls = 0;
    const OpenedSession given = openSession(path(), [&](double) { return calls++ < steps; });
    EXPECT_TRUE(given.cancelled) << steps;
    EXPECT_EQ(calls, steps + 1) << "nothing is done after it";
    EXPECT_FALSE(given.session);
    EXPECT_EQ(given.error, "");
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
  EXPECT_EQ(container.state().parameterBounds, shown->state().parameterBounds);
}

TEST_F(Session, KeepsParametersThatAreTheSameInAllRuns)
{
  // Plots leave them out.
  const Study study = sampleStudy(": Time [s],Molecule: A,Parameter: c,Parameter: k,: Run Index\n"
                                  "0,1,7,2,0\n1,2,7,2,0\n0,3,7,3,1\n1,4,7,3,1\n");
  save(study);
  PlotContainer& container = reopen();
  EXPECT_EQ(opened.study.runs->items, study.runs->items);
  EXPECT_EQ(opened.study.runs->parameterRanges, study.runs->parameterRanges);
  EXPECT_EQ(opened.study.runs->values[2][3], 7.0);
  EXPECT_EQ(container.getLabels(), shown->getLabels());
  EXPECT_FALSE(container.getLabels().contains("Parameter: c"));
}

TEST_F(Session, KeepsBoundsThatAreInfinite)
{
  const Study study = sampleStudy();
  study.runs->parameterRanges[0] = {0.25, std::numeric_limits<double>::infinity()};
  save(study);
  reopen();
  EXPECT_EQ(opened.study.runs->parameterRanges, study.runs->parameterRanges);
}

TEST_F(Session, RestoresAPlainTable)
{
  const Study study = sampleStudy("a,b\n1,2\n3,nan\n");
  save(study);
  PlotContainer& container = reopen();
  EXPECT_FALSE(opened.study.runs);
  EXPECT_EQ(container.getLabels(), QStringList({"a", "b"}));
  EXPECT_EQ(valuesOf(container.getTable(), "a"), (std::vector<double>{1, 3}));
}

TEST_F(Session, KeepsNamesOfAnyLetters)
{
  save(sampleStudy("time,\xce\xb1 [\xc2\xb5M]\n0,1\n1,2\n"));
  EXPECT_TRUE(reopen().getLabels().contains(QString::fromUtf8("Molecule: \xce\xb1 [\xc2\xb5M]")));
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
    ASSERT_EQ(saveSession(path(), study, container, choice), "");
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
  plot::PlotState& before = container.state();
  before.coordinateWindows[plot::currentKey(before)] = {0.5, 1.0, 2.5, 1.75, true};
  before.windowScales[plot::currentKey(before)] = {false, true};
  save(study, container);
  const plot::PlotState& after = reopen().state();
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
  container.getAnnotationLink()->SetCurrentSelection(plot::makeRowSelection({4, 5, 11}));
  save(study, container);
  PlotContainer& again = reopen();
  const auto flags = vtkSmartPointer<vtkIntArray>::Take(again.getCurrentSelection());
  ASSERT_TRUE(flags);
  for (int row = 0; row < 12; ++row)
    EXPECT_EQ(flags->GetValue(row), row == 4 || row == 5 || row == 11) << row;
  EXPECT_FALSE(again.getLabels().contains(plot::selectionFlagColumn));
}

TEST_F(Session, KeepsColumnsThatWereAddedLater)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  const std::vector<double> later = {12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1};
  container.addColumn(later, "later");
  save(study, container);
  PlotContainer& again = reopen();
  EXPECT_EQ(again.getLabels(), container.getLabels());
  EXPECT_EQ(valuesOf(again.getTable(), "later"), later);
}

TEST_F(Session, FindsColumnsBehindTheMarksOfASelection)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  const QStringList before = container.getLabels();
  container.getAnnotationLink()->SetCurrentSelection(plot::makeRowSelection({4, 5, 6, 7}));
  ASSERT_GT(container.getLabels().size(), before.size());
  container.addColumn(std::vector<double>(12, 3.0), "later");
  container.getMetaData()->yColumns = {0, static_cast<int>(container.getLabels().size()) - 1};
  save(study, container);
  PlotContainer& again = reopen();
  const std::vector<int> y = again.getMetaData()->yColumns;
  EXPECT_EQ(y, (std::vector<int>{0, static_cast<int>(before.size())}));
  EXPECT_EQ(plot::columnName(again.getTable(), y[1]), "later");
}

TEST_F(Session, TakesAColumnForOneItemOnly)
{
  // Two items "Molecule: X" and one column of that name, of one row.
  const QByteArray dump =
      QByteArray::fromHex("000000020000000100000002005800000001000000020058000000010000"
                          "000100000016004d006f006c006500630075006c0065003a00200058013f"
                          "f0000000000000");
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 1})", dump}), "the session's table is damaged");
}

TEST_F(Session, RefusesTablesThatDoNotFitTheirRuns)
{
  const QByteArray dump = dumpOf(sampleStudy());
  const std::string damaged = "the session's table is damaged";
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 5})", dump}), damaged);
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 4})", QByteArray(12, '\0')}), damaged);
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 4})", dumpOf(sampleStudy("a,b\n1,2\n"))}), damaged);
  EXPECT_EQ(errorOf({"{}", QByteArray(12, '\0')}), damaged);
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 4})", dump}), "");
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
  EXPECT_EQ(openSession(path()).study.name, "study.talmesh");
}

TEST_F(Session, FindsBoundsThatAreMissing)
{
  const Study study = sampleStudy();
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 4})", dumpOf(study)}), "");
  EXPECT_EQ(openSession(path()).study.runs->parameterRanges, study.runs->parameterRanges);
}
