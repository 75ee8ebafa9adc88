#include "app/comparison/ComparisonResults.h"
#include "app/document/FeatureColumns.h"

#include <vtkAxis.h>
#include <vtkCommand.h>

#include "document/DocumentScene.h"

using namespace Talmesh::app;

namespace
{

class DocumentSession : public DocumentScene
{
protected:
  QString path() const { return folder.filePath("study.talmesh"); }

  /// Saves, and opens that in the same document.
  void saveAndOpen()
  {
    ASSERT_EQ(document.save(path()), "");
    const Result<OpenedStudy> opened = openStudyFile(path());
    ASSERT_TRUE(opened.hasValue()) << opened.error();
    ASSERT_TRUE(opened.value().session);
    ASSERT_EQ(document.open(opened.value()), "");
    ASSERT_EQ(document.drawingError(), "");
    EXPECT_EQ(drawingsSoFar(), 1U) << "when all is restored";
  }

  std::vector<double> numbers()
  {
    std::vector<double> found;
    for (const ComparedParameter& parameter : document.comparison().current().parameters)
      found.insert(found.end(),
                   {parameter.result.distance, parameter.result.p, parameter.result.adjusted});
    return found;
  }
};

} // namespace

TEST_F(DocumentSession, BringsBackStatesNumbersAndPlots)
{
  openInXYPlot();
  PlotChoice choice = document.choice();
  choice.y = {1, 0};
  choice.legend = true;
  choice.logX = true;
  choice.logY = true;
  document.choose(choice);
  ComparisonChoice comparison = comparisonChoiceOf(container());
  comparison.pThreshold = 0.25;
  comparison.density = true;
  comparison.comparedBy = Talmesh::stats::ComparedBy::rankSum;
  comparison.design = {true, 3};
  comparison.adjustment = Talmesh::stats::Adjustment::holm;
  document.compareBy(comparison);
  document.groups().setGrouping(2, byPhases);
  group();
  document.setLook({true, true, true});
  select({0, 1, 4});
  const std::vector<double> before = numbers();
  ASSERT_EQ(before.size(), 6U);
  const std::vector<std::string> plots = labels();
  const RunGroups groups = document.groups().groups();
  saveAndOpen();
  EXPECT_EQ(document.choice(), choice);
  EXPECT_EQ(choiceOf(container()), choice);
  EXPECT_EQ(comparisonChoiceOf(container()).pThreshold, 0.25);
  EXPECT_TRUE(comparisonChoiceOf(container()).density);
  EXPECT_EQ(comparisonChoiceOf(container()).comparedBy, Talmesh::stats::ComparedBy::rankSum);
  EXPECT_EQ(comparisonChoiceOf(container()).adjustment, Talmesh::stats::Adjustment::holm);
  EXPECT_EQ(comparisonChoiceOf(container()).design, comparison.design);
  EXPECT_EQ(selectedRuns(), (std::set<int>{0, 1, 4}));
  EXPECT_EQ(numbers(), before);
  EXPECT_EQ(labels(), plots);
  EXPECT_EQ(document.groups().groups().groupOfRun, groups.groupOfRun);
  EXPECT_EQ(document.groups().groups().names, groups.names);
  const SessionGroups& restored = document.groups().state();
  EXPECT_EQ(restored.count, 2);
  EXPECT_EQ(restored.mode, byPhases);
  EXPECT_TRUE(restored.look.groupColours && restored.look.groupMeans &&
              restored.look.quartileBands);
  EXPECT_FALSE(document.selection().undoGroup().canUndo()) << "the history begins anew";
}

TEST_F(DocumentSession, BringsBackNormalisedRunsAndTheWayToTheirValues)
{
  openInXYPlot();
  const double before = value(0, 7);
  document.groups().normalise(true);
  ASSERT_NE(value(0, 0), before);
  saveAndOpen();
  EXPECT_EQ(value(0, 7), 1.0);
  EXPECT_TRUE(document.groups().showsNormalised());
  document.groups().normalise(false);
  EXPECT_EQ(value(0, 7), before);
}

TEST_F(DocumentSession, BringsBackThePartOfThePlaneAlsoOfNormalisedRuns)
{
  openInXYPlot();
  document.groups().normalise(true);
  vtkAxis* bottom = chart().GetAxis(vtkAxis::BOTTOM);
  bottom->SetRange(2.0, 3.0);
  chart().GetAxis(vtkAxis::LEFT)->SetRange(0.25, 0.5);
  chart().InvokeEvent(vtkCommand::InteractionEvent);
  saveAndOpen();
  EXPECT_EQ(chart().GetAxis(vtkAxis::BOTTOM)->GetMinimum(), 2.0);
  EXPECT_EQ(chart().GetAxis(vtkAxis::LEFT)->GetMaximum(), 0.5);
}

TEST_F(DocumentSession, BringsBackChartsOfRunsWithTheirFeaturesAndAxes)
{
  openInXYPlot();
  PlotChoice choice = document.choice();
  choice.x = featureColumn(1, RunFeature::Mean);
  choice.y = {featureColumn(0, RunFeature::Final), 4, featureColumn(0, RunFeature::Max)};
  choice.axes = {5, featureColumn(0, RunFeature::Final)};
  document.choose(choice);
  vtkAxis* bottom = chart().GetAxis(vtkAxis::BOTTOM);
  bottom->SetRange(2.0, 3.0);
  chart().InvokeEvent(vtkCommand::InteractionEvent);
  const std::vector<std::string> plots = labels();
  const vtkIdType columns = container().getTable()->GetNumberOfColumns();
  saveAndOpen();
  EXPECT_EQ(document.choice(), choice);
  EXPECT_EQ(labels(), plots);
  EXPECT_TRUE(container().showsSummary());
  EXPECT_EQ(container().getTable()->GetNumberOfColumns(), columns) << "the session keeps the runs";
  EXPECT_EQ(chart().GetAxis(vtkAxis::BOTTOM)->GetMinimum(), 2.0);
}

TEST_F(DocumentSession, DrawsAndAnnouncesOnceWhatItRestores)
{
  open();
  select({0, 1, 4});
  ASSERT_EQ(document.save(path()), "");
  const Result<OpenedStudy> opened = openStudyFile(path());
  for (const plotStyles style : {selectionCdfPlot, xyPlot, parallelCoordinates})
  {
    PlotWishes wishes;
    wishes.style = style;
    announced = 0;
    ASSERT_EQ(document.open(opened.value(), wishes), "");
    QCoreApplication::processEvents();
    EXPECT_EQ(drawingsSoFar(), 1U) << style;
    EXPECT_EQ(announced, 1) << style;
    EXPECT_EQ(selectedRuns(), (std::set<int>{0, 1, 4})) << style;
    EXPECT_EQ(document.choice().style, style);
    EXPECT_FALSE(document.selection().undoGroup().canUndo()) << style;
  }
}

TEST_F(DocumentSession, OffersNoColumnsThatMarkWhatIsSelected)
{
  open();
  const QStringList before = document.columns();
  select({0, 1, 4});
  saveAndOpen();
  EXPECT_EQ(document.columns(), before);
  ASSERT_EQ(selectedRuns(), (std::set<int>{0, 1, 4}));
}

TEST_F(DocumentSession, LetsWishesGoBeforeWhatItRestores)
{
  openInXYPlot();
  ASSERT_EQ(document.save(path()), "");
  PlotWishes wishes;
  wishes.y = {"Y"};
  ASSERT_EQ(document.open(openStudyFile(path()).value(), wishes), "");
  EXPECT_EQ(document.choice().style, xyPlot);
  EXPECT_EQ(document.choice().y, std::vector<int>{1});
  EXPECT_EQ(labels(), std::vector<std::string>{"Y"});
}

TEST_F(DocumentSession, KeepsWhatWasShownBeforeAChartOfItsOwn)
{
  openInXYPlot();
  select({2});
  OwnChart chart;
  chart.steps = [](int) { return ChartSteps{[](PlotContainer&) {}, {}}; };
  OpenedStudy own;
  own.study.chart = std::make_shared<const OwnChart>(chart);
  document.open(own);
  saveAndOpen();
  EXPECT_EQ(selectedRuns(), std::set<int>{2});
  EXPECT_FALSE(document.canReturnToRuns()) << "it has taken the place of those runs";
}

TEST_F(DocumentSession, LeavesOutWhatDoesNotFitTheRuns)
{
  openInXYPlot();
  SessionGroups groups;
  groups.count = 7;
  groups.mode = 1;
  groups.look = {true, true, true};
  document.groups().restore(groups);
  const SessionGroups& restored = document.groups().state();
  EXPECT_EQ(restored.count, 3) << "six runs make no seven groups";
  EXPECT_EQ(restored.mode, byCourse);
  EXPECT_FALSE(restored.look.groupColours || restored.look.groupMeans) << "without groups";
  EXPECT_TRUE(restored.look.quartileBands);
}

TEST_F(DocumentSession, SaysWhereItCannotBeWritten)
{
  openInXYPlot();
  const QString inside = folder.filePath("no such folder/study.talmesh");
  EXPECT_EQ(document.save(inside).rfind(inside.toStdString(), 0), 0U);
}
