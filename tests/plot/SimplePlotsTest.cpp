#include "support/CapturedOutput.h"
#include "support/PlotFixture.h"
#include "support/PlotStyleCount.h"
#include "support/Reaction.h"
#include "vtk/RowSelections.h"

#include <vtkCommand.h>
#include <vtkFloatArray.h>
#include <vtkPlotPoints.h>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

const std::string sizesDiffer = "SimpleXYPlot: x and y sizes differ.";

class SimplePlots : public PlotFixture
{
protected:
  vtkFloatArray* floatColumn(int index)
  {
    return vtkFloatArray::SafeDownCast(container.getTable()->GetColumn(index));
  }

  std::vector<double> x{0.1, 0.2, 0.3};
  std::vector<double> y{1, -2, 1e30};
  std::vector<double> error{0.5, 0.25, 1.0 / 3.0};
  std::vector<double> none;
};

TEST_F(SimplePlots, FillTheTableWithTheExample)
{
  const vtkSmartPointer<vtkTable> before = container.getTable();
  container.example();
  EXPECT_EQ(before->GetNumberOfColumns(), 4);
  EXPECT_EQ(container.getLabels(), (QStringList{"x", "y", "z"}));
  ASSERT_EQ(container.getTable()->GetNumberOfRows(), 400);
  ASSERT_TRUE(floatColumn(0) && floatColumn(1) && floatColumn(2));
  EXPECT_EQ(floatColumn(0)->GetValue(0), 0.0F);
  EXPECT_FLOAT_EQ(floatColumn(1)->GetValue(0), -0.14F);
  EXPECT_FLOAT_EQ(floatColumn(2)->GetValue(0), std::sin(-0.14F));
  // At a quarter both cosines vanish, at a half both are -1.
  EXPECT_EQ(floatColumn(0)->GetValue(100), 0.25F);
  EXPECT_NEAR(floatColumn(1)->GetValue(100), 0.0625 - 0.7, 1e-6);
  EXPECT_NEAR(floatColumn(2)->GetValue(100), std::sin(-0.6375) * std::cos(0.25), 1e-6);
  EXPECT_NEAR(floatColumn(1)->GetValue(200), 0.25 - 0.4 - 0.16 - 0.7, 1e-6);
  const double pi = std::acos(-1.0);
  for (int i = 0; i < 400; ++i)
  {
    const double at = i / 400.0;
    const double value =
        at * at + 0.4 * std::cos(6 * pi * at) + 0.16 * std::cos(18 * pi * at) - 0.7;
    EXPECT_FLOAT_EQ(floatColumn(0)->GetValue(i), static_cast<float>(at));
    EXPECT_NEAR(floatColumn(1)->GetValue(i), value, 2e-6) << i;
    EXPECT_NEAR(floatColumn(2)->GetValue(i), std::sin(value) * std::cos(at), 2e-6) << i;
  }
}

TEST_F(SimplePlots, DrawTheExample)
{
  settings().xColumns = {2, 3};
  settings().yColumns = {3, 2};
  newDrawings();
  container.example();
  EXPECT_EQ(newDrawings(), 1U);
  EXPECT_EQ(settings().xColumns, (std::vector<int>{0, 3}));
  EXPECT_EQ(settings().yColumns, (std::vector<int>{1, 2}));
  EXPECT_EQ(settings().title, "Example Plot");
  EXPECT_EQ(chart()->GetTitle(), "Example Plot");
  EXPECT_EQ(plottedColumn(chart()->GetPlot(0), 0), container.getTable()->GetColumn(0));
  EXPECT_EQ(plottedColumn(chart()->GetPlot(0), 1), container.getTable()->GetColumn(1));
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 1000);
}

TEST_F(SimplePlots, DrawPointsWithoutErrors)
{
  drawStyle(9);
  settings().xColumns = {3, 3};
  settings().yColumns = {3, 3};
  settings().zColumns = {3, 3};
  newDrawings();
  container.setSimpleXYPlot(x, y, none);
  EXPECT_EQ(newDrawings(), 1U) << "style and line width change silently";
  EXPECT_EQ(settings().getPlotStyle(), xyPlot);
  EXPECT_EQ(container.getLabels(), (QStringList{"x", "y"}));
  EXPECT_EQ(settings().xColumns, (std::vector<int>{0, 3}));
  EXPECT_EQ(settings().yColumns, (std::vector<int>{1, 3}));
  EXPECT_EQ(settings().zColumns, (std::vector<int>{0, 3}));
  EXPECT_EQ(settings().getLineWidth(), 1.0);
  EXPECT_EQ(settings().pointSize, 2.0);
  EXPECT_EQ(settings().markerStyle, 3);
  EXPECT_FALSE(settings().signalsBlocked());
  ASSERT_TRUE(floatColumn(0) && floatColumn(1));
  for (int row = 0; row < 3; ++row)
  {
    EXPECT_EQ(floatColumn(0)->GetValue(row), static_cast<float>(x[row]));
    EXPECT_EQ(floatColumn(1)->GetValue(row), static_cast<float>(y[row]));
  }
  auto* plot = vtkPlotPoints::SafeDownCast(chart()->GetPlot(0));
  ASSERT_NE(plot, nullptr);
  EXPECT_EQ(plot->GetMarkerSize(), 2.0F);
  EXPECT_EQ(plot->GetMarkerStyle(), 3);
  EXPECT_EQ(container.getItem(), chart());
}

TEST_F(SimplePlots, TakeErrorsOfTheRightNumber)
{
  settings().setLineWidth(9.0);
  newDrawings();
  container.setSimpleXYPlot(x, y, error);
  EXPECT_EQ(newDrawings(), 1U);
  EXPECT_EQ(settings().getPlotStyle(), scatterWithErrorBars);
  EXPECT_EQ(container.getLabels(), (QStringList{"x", "y", "error"}));
  EXPECT_EQ(settings().xColumns.front(), 0);
  EXPECT_EQ(settings().yColumns.front(), 1);
  EXPECT_EQ(settings().zColumns.front(), 2);
  EXPECT_EQ(settings().getLineWidth(), 1.0);
  EXPECT_EQ(settings().pointSize, 2.0);
  EXPECT_EQ(settings().markerStyle, 3);
  EXPECT_FALSE(settings().signalsBlocked());
  ASSERT_NE(floatColumn(2), nullptr);
  EXPECT_EQ(floatColumn(2)->GetValue(2), static_cast<float>(error[2]));
}

TEST_F(SimplePlots, LeaveOutErrorsOfAnotherNumber)
{
  for (const std::size_t count : {1U, 2U, 4U})
  {
    error.assign(count, 1.0);
    container.setSimpleXYPlot(x, y, error);
    EXPECT_EQ(settings().getPlotStyle(), xyPlot);
    EXPECT_EQ(container.getLabels(), (QStringList{"x", "y"}));
    EXPECT_EQ(settings().zColumns.front(), 0);
  }
}

TEST_F(SimplePlots, TakeThreeEmptyListsAsErrorBars)
{
  container.setSimpleXYPlot(none, none, none);
  EXPECT_EQ(settings().getPlotStyle(), scatterWithErrorBars);
  EXPECT_EQ(container.getLabels(), (QStringList{"x", "y", "error"}));
  EXPECT_EQ(container.getTable()->GetNumberOfRows(), 0);
  scene.render(container);
}

TEST_F(SimplePlots, UnblockTheSettingsThatWereBlockedBefore)
{
  settings().blockSignals(true);
  container.setSimpleXYPlot(x, y, none);
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(SimplePlots, UnblockTheSettingsAlsoWhereADrawingIsLeftByAnException)
{
  // Cut by the drawing, which whoever watches the selection hears.
  const vtkSmartPointer<vtkAnnotationLink> link = container.getAnnotationLink();
  link->SetCurrentSelection(Talmesh::makeRowSelection({3}));
  vtkNew<Reaction> throwing;
  throwing->react = [] { throw 7; };
  link->AddObserver(vtkCommand::AnnotationChangedEvent, throwing);
  settings().blockSignals(true);
  EXPECT_THROW(container.setSimpleXYPlot(x, y, none), int);
  link->RemoveObserver(throwing);
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(SimplePlots, SayThatSizesDifferAndStaySilent)
{
  settings().title = "kept";
  settings().xColumns = {3};
  y.pop_back();
  newDrawings();
  container.setSimpleXYPlot(x, y, error);
  EXPECT_EQ(chart()->GetTitle(), sizesDiffer);
  EXPECT_EQ(settings().title, "kept");
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 0);
  EXPECT_EQ(container.getTable()->GetNumberOfRows(), 0);
  EXPECT_TRUE(settings().signalsBlocked());
  EXPECT_EQ(newDrawings(), 0U);
  EXPECT_EQ(settings().getPlotStyle(), xyPlot);
  EXPECT_EQ(settings().xColumns, std::vector<int>{3});
  scene.render(container);
}

TEST_F(SimplePlots, EmptyTheTableForDifferentSizesWhileNoXYChartIsShown)
{
  for (const int style : {3, 4})
  {
    drawStyle(style);
    ASSERT_EQ(chart(), nullptr);
    container.setSimpleXYPlot(x, none, none);
    EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 0);
    EXPECT_TRUE(settings().signalsBlocked());
    scene.render(container);
  }
}

TEST_F(SimplePlots, AppearAfterAnyStyle)
{
  for (int style = 0; style <= plotStyleCount; ++style)
  {
    drawStyle(style);
    container.setSimpleXYPlot(x, y, none);
    ASSERT_NE(chart(), nullptr);
    EXPECT_EQ(container.getItem(), chart());
    EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
    scene.render(container);
  }
}

TEST(SimplePlotsWithoutScene, UnblockTheSettingsAllTheSame)
{
  PlotContainer container(nullptr);
  const CapturedOutput output(std::cout);
  std::vector<double> x{1};
  std::vector<double> y{2};
  std::vector<double> error;
  container.setSimpleXYPlot(x, y, error);
  EXPECT_EQ(output.text(), "void PlotContainer::redraw(): invalid scene\n");
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

} // namespace
