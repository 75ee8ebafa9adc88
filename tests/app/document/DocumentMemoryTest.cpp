#include "app/memory/PaintingMemory.h"
#include "support/CapturedOutput.h"

#include <vtkChartMatrix.h>

#include <iostream>

#include "document/DocumentScene.h"

using namespace Talmesh::app;

namespace
{

const std::string refusal = "cannot draw this: there is not enough memory for this picture";

/// A document that is told how many bytes there are.
class DocumentOfMuch : public DocumentScene
{
protected:
  DocumentOfMuch()
  {
    document.setMemoryCheck(
        [this](std::size_t bytes)
        {
          asked = bytes;
          return bytes <= there;
        });
  }

  void choose(plotStyles style)
  {
    PlotChoice choice = document.choice();
    choice.style = style;
    document.choose(choice);
  }

  std::size_t there = std::size_t{1} << 40U;
  std::size_t asked = 0;
};

} // namespace

TEST_F(DocumentOfMuch, DrawsWhatThereIsMemoryFor)
{
  openInXYPlot();
  choose(scatterPlotMatrix);
  EXPECT_EQ(document.drawingError(), "");
  EXPECT_EQ(asked, memoryToDraw(container()));
  const std::size_t ofMatrix = asked;
  choose(xyPlot);
  EXPECT_LT(asked, ofMatrix);
  there = ofMatrix;
  choose(scatterPlotMatrix);
  EXPECT_EQ(document.drawingError(), "");
  EXPECT_NE(vtkChartMatrix::SafeDownCast(container().getItem()), nullptr);
}

TEST_F(DocumentOfMuch, KeepsTheLastDrawingWhenAnotherNeedsTooMuch)
{
  openInXYPlot();
  // The scene learns of its size when it is painted.
  scene.render(container());
  document.draw();
  there = asked;
  countDrawings();
  const vtkAbstractContextItem* before = container().getItem();
  choose(scatterPlotMatrix);
  EXPECT_EQ(document.drawingError(), refusal);
  EXPECT_EQ(container().getItem(), before);
  EXPECT_EQ(drawings, 0);
  EXPECT_EQ(announced, 1) << "the refusal is for the user to read";
  scene.render(container());
  EXPECT_GT(scene.paintedPixels(), 0);
  choose(xyPlot);
  EXPECT_EQ(document.drawingError(), "");
  EXPECT_EQ(drawings, 1);
}

TEST_F(DocumentOfMuch, OpensWhatItCannotDraw)
{
  openInXYPlot();
  there = 0;
  EXPECT_EQ(open(), "");
  EXPECT_EQ(document.drawingError(), refusal);
  EXPECT_EQ(document.size(), "6 runs, 8 points each, 2 parameters");
  there = std::size_t{1} << 40U;
  document.draw();
  EXPECT_EQ(document.drawingError(), "");
  EXPECT_NE(vtkChartMatrix::SafeDownCast(container().getItem()), nullptr);
}

TEST_F(DocumentOfMuch, CountsTheCopiesOfThePageThatComparesRuns)
{
  EXPECT_EQ(open(), "");
  ASSERT_EQ(document.choice().style, selectionCdfPlot);
  scene.render(container());
  document.draw();
  // 6 runs of 8 points in 6 columns of doubles.
  EXPECT_EQ(asked - memoryToPaint(container(), QSize(640, 480)), 6U * 8U * 6U * 8U);
}

TEST_F(DocumentOfMuch, RefusesThePageOfASelectionThatLeavesTooLittle)
{
  EXPECT_EQ(open(), "");
  countDrawings();
  there = 0;
  const CapturedOutput errors(std::cerr);
  select({0, 2});
  EXPECT_EQ(errors.text(), "");
  EXPECT_EQ(selectedRuns(), (std::set<int>{0, 2}));
  EXPECT_EQ(drawings, 0);
  EXPECT_EQ(announced, 1);
  EXPECT_EQ(document.drawingError(), refusal);
  EXPECT_TRUE(container().getKsResults().empty());
  there = std::size_t{1} << 40U;
  document.draw();
  EXPECT_EQ(document.drawingError(), "");
  EXPECT_EQ(container().getKsResults().size(), 2U) << "compared as soon as there is memory";
}

TEST_F(DocumentOfMuch, RefusesWhatASettingBegins)
{
  EXPECT_EQ(open(), "");
  countDrawings();
  there = 0;
  const CapturedOutput errors(std::cerr);
  settings().setPThreshold(0.011);
  EXPECT_EQ(errors.text(), "");
  EXPECT_EQ(drawings, 0);
  EXPECT_EQ(announced, 1);
  EXPECT_EQ(document.drawingError(), refusal);
  there = std::size_t{1} << 40U;
  settings().setPThreshold(0.012);
  EXPECT_EQ(drawings, 1);
  EXPECT_EQ(document.drawingError(), "");
}
