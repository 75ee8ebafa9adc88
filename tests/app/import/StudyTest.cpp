#include "app/document/ShownStudy.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PlotScene.h"

#include <vtkScatterPlotMatrix.h>

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

class StudyInAContainer : public ::testing::Test
{
protected:
  StudyInAContainer()
      : container(nullptr)
  {
    container.setScene(view.scene());
  }

  const PlotMetaData& settings() const { return *container.getMetaData(); }

  PlotScene view;
  PlotContainer container;
};

} // namespace

TEST_F(StudyInAContainer, ShowsTheFirstItemOverTimeAsLines)
{
  showStudy(sampleStudy(), container);
  EXPECT_EQ(settings().getPlotStyle(), xyPlot);
  EXPECT_TRUE(settings().getPlotLine());
  EXPECT_EQ(settings().getStride(), 4);
  EXPECT_EQ(settings().xColumns, std::vector<int>{2});
  EXPECT_EQ(settings().yColumns, std::vector<int>{0});
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(StudyInAContainer, ShowsPlainColumnsThatAreTheSameInAllRuns)
{
  showStudy(sampleStudy("run,time,c,X,k\n0,0,7,1,3\n0,1,7,2,3\n1,0,7,3,4\n1,1,7,4,4\n"), container);
  EXPECT_EQ(container.getLabels(),
            (QStringList{"Molecule: X", "Molecule: c", ": time", ": Run Index", "Parameter: k"}));
  EXPECT_EQ(settings().yColumns, std::vector<int>{0});
  EXPECT_EQ(settings().parameterColumns, std::vector<int>{4});
}

TEST(StudySize, SaysHowManyParameterValuesAreMissing)
{
  const std::string head = "run,time,X,k,m\n";
  const std::string rest = "1,0,3,4,5\n1,1,4,4,5\n2,0,5,6,7\n2,1,6,6,7\n";
  EXPECT_EQ(studySize(sampleStudy(head + "0,0,1,2,3\n0,1,2,2,3\n" + rest)),
            "3 runs, 2 points each, 2 parameters");
  EXPECT_EQ(studySize(sampleStudy(head + "0,0,1,,3\n0,1,2,,3\n" + rest)),
            "3 runs, 2 points each, 2 parameters, 1 parameter value missing");
  EXPECT_EQ(studySize(sampleStudy(head + "0,0,1,,\n0,1,2,,\n" + rest)),
            "3 runs, 2 points each, 2 parameters, 2 parameter values missing");
}

TEST_F(StudyInAContainer, DrawsTheCurvesOfAParameterThatOneRunLacks)
{
  std::string text = "run,time,X,k,m\n0,0,1,,3\n0,1,2,,3\n";
  for (int run = 1; run < 20; ++run)
    for (int point = 0; point < 2; ++point)
      text += std::to_string(run) + ',' + std::to_string(point) + ",1," + std::to_string(run % 7) +
              ".5," + std::to_string(run) + '\n';
  showStudy(sampleStudy(text), container);
  container.setPlotStyle(selectionCdfPlot);
  container.redraw();
  for (vtkTable* table :
       {container.getDerivedTables()[0].Get(), container.getDerivedTables()[1].Get()})
    for (int column = 0; column < table->GetNumberOfColumns(); ++column)
      for (vtkIdType row = 0; row < table->GetNumberOfRows(); ++row)
        EXPECT_TRUE(std::isfinite(table->GetValue(row, column).ToDouble()))
            << table->GetColumnName(column) << ", row " << row;
}

TEST_F(StudyInAContainer, ShowsEveryColumnOfASingleRun)
{
  showStudy(sampleStudy("k,time,X\n7,0,1\n7,1,2\n"), container);
  EXPECT_EQ(container.getLabels(),
            (QStringList{"Molecule: X", "Molecule: k", ": time", ": Run Index"}));
  EXPECT_EQ(settings().yColumns, std::vector<int>{0});
}

TEST_F(StudyInAContainer, LeavesDeclaredParametersThatNeverChangeOut)
{
  showStudy(sampleStudy("Molecule: X,: Time [s],: Run Index,Parameter: c,Parameter: k\n"
                        "1,0,0,7,3\n2,1,0,7,3\n3,0,1,7,4\n4,1,1,7,4\n"),
            container);
  EXPECT_EQ(container.getLabels(),
            (QStringList{"Molecule: X", ": Time [s]", ": Run Index", "Parameter: k"}));
  EXPECT_EQ(settings().parameterColumns, std::vector<int>{3});
}

TEST_F(StudyInAContainer, LimitsTheScatterPlotMatrixToWhatHasParameters)
{
  showStudy(sampleStudy(), container);
  EXPECT_TRUE(settings().getLimitColumVisibility());
  PlotContainer other(nullptr);
  other.setScene(view.scene());
  showStudy(sampleStudy("time,X\n0,1\n1,2\n"), other);
  EXPECT_FALSE(other.getMetaData()->getLimitColumVisibility());
}

TEST_F(StudyInAContainer, DoesNotTakeTimeForAnItem)
{
  showStudy(sampleStudy(": Time [s],: Run Index,Parameter: k,Complex: X\n"
                        "0,0,1,5\n1,0,1,6\n0,1,2,5\n1,1,2,6\n"),
            container);
  EXPECT_EQ(settings().xColumns, std::vector<int>{0});
  EXPECT_EQ(settings().yColumns, std::vector<int>{3});
  EXPECT_EQ(settings().zColumns, std::vector<int>{3});
}

TEST_F(StudyInAContainer, DrawsTheSecondItemUpwards)
{
  showStudy(sampleStudy(": Time [s],: Run Index,Parameter: k,Complex: X,Complex: Y\n"
                        "0,0,1,5,6\n1,0,1,6,7\n0,1,2,5,8\n1,1,2,6,9\n"),
            container);
  EXPECT_EQ(settings().yColumns, std::vector<int>{3});
  EXPECT_EQ(settings().zColumns, std::vector<int>{4});
}

TEST_F(StudyInAContainer, ShowsRunsOfOnePointAsPoints)
{
  showStudy(sampleStudy("run,a,b\n0,1,2\n1,3,4\n"), container);
  EXPECT_FALSE(settings().getPlotLine());
}

TEST_F(StudyInAContainer, ShowsThePlainTableOfOneColumn)
{
  showStudy(sampleStudy("a\n1\n2\n"), container);
  EXPECT_EQ(settings().yColumns, std::vector<int>{0});
  EXPECT_EQ(settings().zColumns, std::vector<int>{0});
  EXPECT_EQ(container.getLabels(), QStringList{"a"});
}

TEST_F(StudyInAContainer, LetsManyRunsShineThrough)
{
  showStudy(sampleStudy(), container);
  EXPECT_EQ(settings().color[3], 255);
  PlotContainer other(nullptr);
  other.setScene(view.scene());
  showStudy(sampleStudy(sampleRuns(20, 2)), other);
  EXPECT_EQ(other.getMetaData()->color[3], 127);
}

TEST(Study, KeepsTheLastPointOfEveryRun)
{
  const Study study = sampleStudy("run,time,X\n0,0,1\n0,1,2\n1,0,3\n1,1,4\n");
  const Study last = lastPoints(study);
  EXPECT_EQ(last.runs->items, study.runs->items);
  EXPECT_EQ(last.runs->numberOfTrajectories, 2u);
  EXPECT_EQ(last.runs->pointsPerTrajectory, 1u);
  EXPECT_EQ(last.runs->values[0][0], 2.0);
  EXPECT_EQ(last.runs->values[0][1], 4.0);
}

TEST(Study, HasNoLastPointsWithoutRuns)
{
  const Study study = sampleStudy("a,b\n1,2\n");
  EXPECT_EQ(lastPoints(study).table, study.table);
}

TEST(Study, SaysHowMuchItHolds)
{
  EXPECT_EQ(studySize(sampleStudy()), "3 runs, 4 points each, 1 parameter");
  EXPECT_EQ(studySize(sampleStudy("time,X\n0,1\n")), "1 run, 1 point each, 0 parameters");
  EXPECT_EQ(studySize(sampleStudy("a,b\n1,2\n3,4\n")), "2 rows, 2 columns");
  EXPECT_EQ(studySize(Study()), "");
}

TEST_F(StudyInAContainer, LeavesTheUserThePairOfTheScatterPlotMatrix)
{
  showStudy(sampleStudy(), container);
  container.setPlotStyle(scatterPlotMatrix);
  view.render(container);
  auto* pairs = vtkScatterPlotMatrix::SafeDownCast(container.getItem());
  ASSERT_GT(pairs->GetSize().GetX(), 2);
  const vtkVector2i chosen(1, 0);
  ASSERT_NE(pairs->GetActivePlot(), chosen);
  ASSERT_TRUE(pairs->SetActivePlot(chosen));
  container.redraw();
  EXPECT_EQ(pairs->GetActivePlot(), chosen);
}
