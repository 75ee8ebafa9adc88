#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/CapturedOutput.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>
#include <vtkContextMouseEvent.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <stdexcept>

#include "FitParameterFixture.h"

namespace
{

using Values = std::vector<double>;

class FitParameterPage : public FitParameterFixture
{
};

TEST_F(FitParameterPage, HasAChartPerPairAndOnePerParameter)
{
  draw();
  EXPECT_EQ(container.getItem(), container.getChartMatrix());
  EXPECT_EQ(container.getItem()->GetScene(), scene.scene());
  EXPECT_EQ(container.getChartMatrix()->GetSize(), vtkVector2i(3, 3));
  const std::set<std::pair<int, int>> filled = {{0, 0}, {0, 1}, {1, 0}, {0, 2}, {1, 1}, {2, 0}};
  for (int column = 0; column < 3; ++column)
  {
    for (int row = 0; row < 3; ++row)
      EXPECT_EQ(cell(column, row)->GetNumberOfPlots(), filled.count({column, row}) ? 1 : 0);
  }
}

TEST_F(FitParameterPage, PlotsEveryPairOnce)
{
  draw();
  EXPECT_EQ(input(0, 0, 0), "Parameter: k1");
  EXPECT_EQ(input(0, 0, 1), "Parameter: k3");
  EXPECT_EQ(input(0, 1, 0), "Parameter: k1");
  EXPECT_EQ(input(0, 1, 1), "Parameter: k2");
  EXPECT_EQ(input(1, 0, 0), "Parameter: k2");
  EXPECT_EQ(input(1, 0, 1), "Parameter: k3");
}

TEST_F(FitParameterPage, PlotsEveryParameterOverTheIteration)
{
  draw();
  const char* names[] = {"Parameter: k1", "Parameter: k2", "Parameter: k3"};
  for (int m = 0; m < 3; ++m)
  {
    EXPECT_EQ(input(m, 2 - m, 0), "Iteration");
    EXPECT_EQ(input(m, 2 - m, 1), names[m]);
    EXPECT_EQ(bottom(m, 2 - m)->GetTitle(), "Iteration");
    EXPECT_EQ(left(m, 2 - m)->GetTitle(), std::string(names[m]).substr(11));
  }
}

TEST_F(FitParameterPage, TitlesAndLabelsPairsAtTheEdgeOnly)
{
  draw();
  EXPECT_EQ(bottom(0, 0)->GetTitle(), "k1");
  EXPECT_EQ(left(0, 0)->GetTitle(), "k3");
  EXPECT_EQ(bottom(0, 1)->GetTitle(), "");
  EXPECT_EQ(left(0, 1)->GetTitle(), "k2");
  EXPECT_EQ(bottom(1, 0)->GetTitle(), "k2");
  EXPECT_EQ(left(1, 0)->GetTitle(), "");
  EXPECT_TRUE(bottom(0, 0)->GetLabelsVisible());
  EXPECT_TRUE(left(0, 0)->GetLabelsVisible());
  EXPECT_FALSE(bottom(0, 1)->GetLabelsVisible());
  EXPECT_TRUE(left(0, 1)->GetLabelsVisible());
  EXPECT_TRUE(bottom(1, 0)->GetLabelsVisible());
  EXPECT_FALSE(left(1, 0)->GetLabelsVisible());
}

TEST_F(FitParameterPage, TakesLogarithmicAxesForParametersButNotForTheIteration)
{
  for (const bool log : {true, false})
  {
    settings().setLogParameterAxes(log);
    draw();
    EXPECT_EQ(bottom(0, 1)->GetLogScale(), log);
    EXPECT_EQ(left(1, 0)->GetLogScale(), log);
    EXPECT_EQ(left(1, 1)->GetLogScale(), log);
    EXPECT_FALSE(bottom(1, 1)->GetLogScale());
  }
}

TEST_F(FitParameterPage, ThinsTheTicksOfManyDecades)
{
  Values wide;
  for (int i = 0; i <= 20; ++i)
    wide.push_back(std::pow(10.0, 4.0 - 0.5 * i));
  container.getTable()->AddColumn(Talmesh::plot::makeColumn("Parameter: k2", wide));
  settings().setLogParameterAxes(true);
  draw();
  scene.render(container);
  vtkStringArray* labels = left(0, 1)->GetTickLabels();
  ASSERT_EQ(labels->GetNumberOfValues(), 3);
  EXPECT_EQ(labels->GetValue(0), "1e-4");
  EXPECT_EQ(labels->GetValue(1), "1");
  EXPECT_EQ(labels->GetValue(2), "1e4");
  EXPECT_TRUE(left(0, 1)->GetLogScaleActive());
  EXPECT_GT(left(0, 2)->GetTickLabels()->GetNumberOfValues(), 3) << "one decade keeps its ticks";
  settings().setLogParameterAxes(false);
  draw();
  scene.render(container);
  EXPECT_NE(left(0, 1)->GetTickLabels()->GetValue(0), "1e-4");
}

TEST_F(FitParameterPage, SelectsWithTheRightButtonAndNeitherPansNorZooms)
{
  draw();
  EXPECT_EQ(cell(0, 0)->GetActionToButton(vtkChart::SELECT), vtkContextMouseEvent::RIGHT_BUTTON);
  for (const auto& position : {vtkVector2i(0, 0), vtkVector2i(1, 0), vtkVector2i(1, 1)})
  {
    vtkChart* chart = container.getChartMatrix()->GetChart(position);
    EXPECT_LE(chart->GetActionToButton(vtkChart::PAN), 0);
    EXPECT_LE(chart->GetActionToButton(vtkChart::ZOOM), 0);
  }
  EXPECT_EQ(cell(0, 0)->GetAnnotationLink(), container.getAnnotationLink());
  EXPECT_EQ(cell(1, 0)->GetAnnotationLink(), container.getAnnotationLink());
}

TEST_F(FitParameterPage, TakesMarginsAndGutters)
{
  container.setLeftMargin(81);
  container.setTopMargin(21);
  container.setBottomMargin(41);
  container.setRightMargin(22);
  container.setHorizontalGutter(29);
  container.setVerticalGutter(30);
  draw();
  int borders[4];
  container.getChartMatrix()->GetBorders(borders);
  EXPECT_EQ(borders[vtkAxis::LEFT], 81);
  EXPECT_EQ(borders[vtkAxis::BOTTOM], 41);
  EXPECT_EQ(borders[vtkAxis::RIGHT], 22);
  EXPECT_EQ(borders[vtkAxis::TOP], 21);
  EXPECT_EQ(container.getChartMatrix()->GetGutter(), vtkVector2f(30.0F, 29.0F));
}

TEST_F(FitParameterPage, IsEmptyWithoutParameters)
{
  settings().parameterColumns.clear();
  draw();
  EXPECT_EQ(container.getChartMatrix()->GetSize(), vtkVector2i(0, 0));
  EXPECT_EQ(container.getItem(), container.getChartMatrix());
  scene.render(container);
  EXPECT_EQ(scene.paintedPixels(), 0);
}

TEST_F(FitParameterPage, OfOneParameterIsItsCourse)
{
  settings().parameterColumns = {3};
  draw();
  EXPECT_EQ(container.getChartMatrix()->GetSize(), vtkVector2i(1, 1));
  EXPECT_EQ(bottom(0, 0)->GetTitle(), "Iteration");
  EXPECT_EQ(left(0, 0)->GetTitle(), "k2");
}

TEST_F(FitParameterPage, RefusesAShortNameBeforeAnythingChanges)
{
  settings().parameterColumns = {2, 3};
  draw();
  container.getTable()->GetColumn(3)->SetName("0123456789");
  settings().parameterColumns = {2, 3, 4};
  vtkChart* before = cell(0, 0);
  EXPECT_THROW(draw(), std::out_of_range);
  EXPECT_EQ(container.getChartMatrix()->GetSize(), vtkVector2i(2, 2));
  EXPECT_EQ(cell(0, 0), before);
  EXPECT_EQ(before->GetNumberOfPlots(), 1);
}

TEST_F(FitParameterPage, ReportsAShortNameWhenTheSettingsAskForTheDrawing)
{
  settings().setPlotStyle(xyPlot);
  container.getTable()->GetColumn(3)->SetName("short");
  settings().blockSignals(false);
  CapturedOutput errors(std::cerr);
  settings().setPlotStyle(fitParameterDistribution);
  EXPECT_EQ(errors.text().substr(0, errors.text().find("::substr") + 8),
            "void PlotContainer::redraw(): basic_string::substr");
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(FitParameterPage, GivesANameOfJustThePrefixAnEmptyTitle)
{
  container.getTable()->GetColumn(2)->SetName("Parameter: ");
  draw();
  EXPECT_EQ(bottom(0, 0)->GetTitle(), "");
  EXPECT_EQ(left(0, 2)->GetTitle(), "");
}

TEST_F(FitParameterPage, LeavesPositionsOutsideTheTableEmpty)
{
  settings().parameterColumns = {2, -1, 99};
  draw();
  scene.render(container);
  EXPECT_EQ(points(0, 0)->GetInput(), nullptr);
  EXPECT_EQ(bottom(1, 0)->GetTitle(), "");
  EXPECT_NE(points(0, 2)->GetInput(), nullptr);
}

TEST_F(FitParameterPage, OfAnEmptyTableIsDrawn)
{
  container.setPlotData(vtkSmartPointer<vtkTable>::New());
  settings().parameterColumns = {2, 3};
  draw();
  scene.render(container);
  EXPECT_EQ(container.getChartMatrix()->GetSize(), vtkVector2i(2, 2));
}

TEST_F(FitParameterPage, KeepsNothingOfAnEarlierPage)
{
  draw();
  container.getChartMatrix()->SetChartSpan(vtkVector2i(0, 0), vtkVector2i(2, 2));
  container.getChartMatrix()->SetSpecificResize(vtkVector2i(0, 1), vtkVector2f(50, 50));
  cell(0, 0)->SetTitle("old");
  cell(2, 2)->AddPlot(vtkChart::LINE);
  bottom(0, 0)->SetBehavior(vtkAxis::FIXED);
  bottom(0, 0)->SetRange(-7, -6);
  left(0, 0)->SetLogScale(true);
  cell(0, 0)->SetActionToButton(vtkChart::PAN, vtkContextMouseEvent::LEFT_BUTTON);
  draw();
  EXPECT_EQ(container.getChartMatrix()->GetChartSpan(vtkVector2i(0, 0)), vtkVector2i(1, 1));
  EXPECT_EQ(cell(0, 0)->GetTitle(), "");
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 1);
  EXPECT_EQ(cell(2, 2)->GetNumberOfPlots(), 0);
  EXPECT_EQ(bottom(0, 0)->GetBehavior(), vtkAxis::AUTO);
  EXPECT_FALSE(left(0, 0)->GetLogScale());
  EXPECT_LE(cell(0, 0)->GetActionToButton(vtkChart::PAN), 0);
  scene.render(container);
  EXPECT_FLOAT_EQ(cell(0, 1)->GetSize().GetX(), cell(0, 0)->GetSize().GetX());
}

TEST_F(FitParameterPage, IsTheChartOfItsStyle)
{
  container.redraw();
  EXPECT_EQ(container.getItem(), container.getChartMatrix());
  EXPECT_EQ(container.getChartMatrix()->GetSize(), vtkVector2i(3, 3));
  EXPECT_FALSE(settings().signalsBlocked());
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 5000);
}

} // namespace
