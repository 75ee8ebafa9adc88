#include "plot/ContainerAccess.h"
#include "support/PlotFixture.h"

#include <vtkPen.h>
#include <vtkPlotLine.h>

#include <gtest/gtest.h>

#include <array>

namespace
{

class Decorations : public PlotFixture
{
protected:
  /// `lines` lines over a last column of x values.
  static vtkSmartPointer<vtkTable> decorationTable(int lines)
  {
    NamedValues columns;
    for (int i = 0; i < lines; ++i)
      columns.push_back({"line" + std::to_string(i), {0.0 + i, 1.0 + i, 0.5 + i}});
    columns.push_back({"Time", {0, 2, 4}});
    return tableOf(columns);
  }

  void expectLine(int plotIndex, const vtkSmartPointer<vtkTable>& table, int column)
  {
    auto* plot = vtkPlotLine::SafeDownCast(chart()->GetPlot(plotIndex));
    ASSERT_NE(plot, nullptr);
    EXPECT_EQ(plottedColumn(plot, 0), table->GetColumn(table->GetNumberOfColumns() - 1));
    EXPECT_EQ(plottedColumn(plot, 1), table->GetColumn(column));
  }
};

TEST_F(Decorations, AreHiddenAndAbsentAtFirst)
{
  EXPECT_FALSE(container.getShowDecorations());
  EXPECT_EQ(stateOf(container).decorationTable, nullptr);
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
}

TEST_F(Decorations, FollowThePlotAsLinesOverTheLastColumn)
{
  const auto table = decorationTable(3);
  container.setDecorations(table, true);
  EXPECT_TRUE(container.getShowDecorations());
  container.redraw();
  ASSERT_EQ(chart()->GetNumberOfPlots(), 4);
  for (int i = 0; i < 3; ++i)
  {
    expectLine(1 + i, table, i);
    EXPECT_EQ(chart()->GetPlot(1 + i)->GetWidth(), 4.0F);
  }
  scene.render(container);
}

TEST_F(Decorations, GoThroughTwelveDarkColorsAgainAndAgain)
{
  // 200 times the palette's 0.3, 0.6 and 0.9.
  const std::array<std::array<int, 3>, 12> colors{{{120, 180, 180},
                                                   {180, 180, 120},
                                                   {120, 120, 180},
                                                   {180, 120, 60},
                                                   {60, 120, 180},
                                                   {180, 60, 120},
                                                   {120, 180, 60},
                                                   {180, 120, 180},
                                                   {180, 180, 180},
                                                   {120, 60, 120},
                                                   {120, 180, 120},
                                                   {180, 180, 60}}};
  container.setDecorations(decorationTable(25), true);
  container.redraw();
  ASSERT_EQ(chart()->GetNumberOfPlots(), 26);
  for (std::size_t i = 0; i < 25; ++i)
  {
    unsigned char rgb[3];
    vtkPen* pen = chart()->GetPlot(static_cast<vtkIdType>(i) + 1)->GetPen();
    pen->GetColor(rgb);
    EXPECT_EQ((std::array<int, 3>{rgb[0], rgb[1], rgb[2]}), colors.at(i % 12)) << i;
    EXPECT_EQ(pen->GetOpacity(), 230) << i;
  }
}

TEST_F(Decorations, OfThirteenLinesRepeatTheFirstColor)
{
  container.setDecorations(decorationTable(13), true);
  container.redraw();
  ASSERT_EQ(chart()->GetNumberOfPlots(), 14);
  unsigned char rgb[3];
  chart()->GetPlot(13)->GetColor(rgb);
  EXPECT_EQ((std::array<int, 3>{rgb[0], rgb[1], rgb[2]}), (std::array<int, 3>{120, 180, 180}));
}

TEST_F(Decorations, CannotBeSelected)
{
  container.setDecorations(decorationTable(2), true);
  container.redraw();
  ASSERT_EQ(chart()->GetNumberOfPlots(), 3);
  EXPECT_TRUE(chart()->GetPlot(0)->GetSelectable());
  EXPECT_FALSE(chart()->GetPlot(1)->GetSelectable());
  EXPECT_FALSE(chart()->GetPlot(2)->GetSelectable());
}

TEST_F(Decorations, AreNotDrawnWhenHiddenOrTooFew)
{
  container.setDecorations(decorationTable(3), false);
  container.redraw();
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
  for (const auto& table :
       {vtkSmartPointer<vtkTable>(), vtkSmartPointer<vtkTable>::New(), decorationTable(0)})
  {
    container.setDecorations(table, true);
    container.redraw();
    EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
    scene.render(container);
  }
}

TEST_F(Decorations, AreSwitchedOnAndOffWithTheNextRedraw)
{
  container.setDecorations(decorationTable(3), false);
  container.setShowDecorations(true);
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
  container.redraw();
  EXPECT_EQ(chart()->GetNumberOfPlots(), 4);
  container.setShowDecorations(false);
  container.redraw();
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
}

TEST_F(Decorations, AreAddedByADirectCall)
{
  container.setDecorations(decorationTable(3), true);
  container.drawDecorations(scene.scene());
  EXPECT_EQ(chart()->GetNumberOfPlots(), 4);
  container.drawDecorations(nullptr);
  EXPECT_EQ(chart()->GetNumberOfPlots(), 7);
}

TEST_F(Decorations, DoNotPileUpInStylesThatKeepTheXYChart)
{
  container.setDecorations(decorationTable(3), true);
  for (const int style : {0, 1, 2, 10})
  {
    drawStyle(style);
    container.redraw();
    container.redraw();
    EXPECT_EQ(chart()->GetNumberOfPlots(), style == 0 ? 4 : 3) << style;
    scene.render(container);
  }
}

TEST_F(Decorations, AreLeftOutWhileNoXYChartIsShown)
{
  container.setDecorations(decorationTable(3), true);
  for (const int style : {3, 4})
  {
    drawStyle(style);
    EXPECT_EQ(chart(), nullptr);
    container.drawDecorations(scene.scene());
    scene.render(container);
  }
}

TEST_F(Decorations, SurviveColumnsThatCannotBeDrawn)
{
  const auto table = decorationTable(2);
  addStringColumn(table, "words");
  container.setDecorations(table, true);
  container.redraw();
  scene.render(container);
  const auto unnamed = decorationTable(2);
  unnamed->GetColumn(0)->SetName(nullptr);
  container.setDecorations(unnamed, true);
  container.redraw();
  ASSERT_EQ(chart()->GetNumberOfPlots(), 3);
  EXPECT_EQ(chart()->GetPlot(1)->GetInput(), nullptr);
  expectLine(2, unnamed, 1);
  scene.render(container);
}

} // namespace
