#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/SampleTables.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkRenderWindow.h>

#include <gtest/gtest.h>

#include <QTest>

namespace
{

class PixelSampling : public ::testing::Test
{
protected:
  PixelSampling()
  {
    container.setPlotData(
        tableOf({{"a", {0, 1, 2, 3, 0, 1, 2, 3}}, {"b", {0, 1, 4, 2, 1, 2, 5, 4}}}));
    container.getMetaData()->setStride(4);
    widget.resize(400, 300);
    widget.setPlotContainer(&container);
    widget.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&widget));
  }

  int samplesOf(bool lines)
  {
    container.getMetaData()->setPlotLine(lines);
    container.redraw();
    widget.updatePlot(true);
    return widget.renderWindow()->GetMultiSamples();
  }

  /// Pixels of the data between black and white, where nothing of the axes is.
  int greyPixels()
  {
    const QImage picture = widget.grabFramebuffer();
    int grey = 0;
    for (int y = 60; y < 200; ++y)
    {
      for (int x = 100; x < 370; ++x)
      {
        const int level = picture.pixelColor(x, y).value();
        grey += level > 20 && level < 220;
      }
    }
    return grey;
  }

  PlotContainer container{nullptr};
  VtkPlotWidget widget;
};

TEST_F(PixelSampling, IsOfOneSampleWhileLinesAreSmoothWithoutMore)
{
  const int before = samplesOf(false);
  ASSERT_GT(before, 1) << "as windows have been set up ever since";
  EXPECT_EQ(samplesOf(true), 0);
  EXPECT_GT(greyPixels(), 300) << "the edges of lines are smooth";
  EXPECT_EQ(samplesOf(false), before);
  EXPECT_EQ(samplesOf(true), 0);
}

TEST_F(PixelSampling, IsAsTheWindowWasSet)
{
  samplesOf(true);
  widget.renderWindow()->SetMultiSamples(2);
  EXPECT_EQ(samplesOf(true), 0);
  EXPECT_EQ(samplesOf(false), 2);
  widget.renderWindow()->SetMultiSamples(0);
  EXPECT_EQ(samplesOf(true), 0);
  EXPECT_EQ(samplesOf(false), 0) << "who wants none gets none";
}

} // namespace
