#include "widgets/VtkPlotWidget.h"

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/CapturedOutput.h"
#include "support/OpenSockets.h"
#include "support/Pictures.h"
#include "support/SampleTables.h"
#include "support/VtkErrors.h"
#include "widgets/WidgetSupport.h"

#include <vtkAbstractContextItem.h>
#include <vtkChartXY.h>
#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkScatterPlotMatrix.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMetaMethod>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <string>

namespace
{

vtkAbstractContextItem* shownItem(const VtkPlotWidget& widget)
{
  vtkContextScene* scene = widget.contextView()->GetScene();
  return scene->GetNumberOfItems() == 1 ? scene->GetItem(0) : nullptr;
}

TEST(VtkPlotWidget, ShowsTheExamplePlotFromTheStart)
{
  VtkPlotWidget widget;
  ASSERT_NE(widget.plotContainer(), nullptr);
  EXPECT_EQ(widget.plotContainer()->parent(), &widget);
  EXPECT_EQ(widget.plotContainer()->getTable()->GetNumberOfRows(), 400);
  EXPECT_EQ(widget.plotContainer()->getMetaData()->title, "Example Plot");
  EXPECT_EQ(shownItem(widget), widget.plotContainer()->getItem());
  widget.resize(400, 300);
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  EXPECT_GT(paintedPixels(widget.grabFramebuffer()), 1000);
}

TEST(VtkPlotWidget, OffersExactlyItsTwoSlots)
{
  const QMetaObject& meta = VtkPlotWidget::staticMetaObject;
  EXPECT_STREQ(meta.className(), "VtkPlotWidget");
  ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 2);
  EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "updatePlot(bool)");
  EXPECT_EQ(meta.method(meta.methodOffset()).parameterNames(), QList<QByteArray>{"clear"});
  EXPECT_EQ(meta.method(meta.methodOffset() + 1).methodSignature(), "updatePlot()");
  EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
}

TEST(VtkPlotWidget, TakesLettersWithoutAWarning)
{
  VtkPlotWidget widget;
  widget.resize(400, 300);
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  const VtkErrors reports;
  QTest::mouseMove(&widget, QPoint(1, 1));
  for (const char letter : std::string("frswpejtcau3l"))
    QTest::keyClick(&widget, letter);
  EXPECT_EQ(reports.text(), "");
  EXPECT_GT(paintedPixels(widget.grabFramebuffer()), 1000);
}

TEST(VtkPlotWidget, ShowsAnExchangedChartOnlyWhenItClearsTheScene)
{
  VtkPlotWidget widget;
  vtkAbstractContextItem* before = shownItem(widget);
  widget.plotContainer()->setPlotStyle(scatterPlotMatrix);
  widget.updatePlot(false);
  EXPECT_EQ(shownItem(widget), before);
  widget.updatePlot(true);
  EXPECT_TRUE(vtkScatterPlotMatrix::SafeDownCast(shownItem(widget)));
  widget.plotContainer()->setPlotStyle(xyPlot);
  widget.updatePlot();
  EXPECT_TRUE(vtkChartXY::SafeDownCast(shownItem(widget)));
}

TEST(VtkPlotWidget, ShowsAnotherContainerWithoutOwningIt)
{
  PlotContainer other(nullptr);
  other.setPlotData(plainTable());
  {
    VtkPlotWidget widget;
    PlotContainer* own = widget.plotContainer();
    widget.setPlotContainer(&other);
    EXPECT_EQ(widget.plotContainer(), &other);
    EXPECT_EQ(shownItem(widget), other.getItem());
    EXPECT_EQ(own->parent(), &widget);
    widget.setPlotContainer(nullptr);
    EXPECT_EQ(widget.plotContainer(), &other);
  }
  CapturedOutput output(std::cout);
  other.redraw();
  EXPECT_EQ(output.text(), "void PlotContainer::redraw(): invalid scene\n");
}

TEST(VtkPlotWidget, MovesAContainerFromOneWidgetToAnother)
{
  PlotContainer container(nullptr);
  container.setPlotData(plainTable());
  VtkPlotWidget first;
  VtkPlotWidget second;
  first.setPlotContainer(&container);
  second.setPlotContainer(&container);
  EXPECT_EQ(first.contextView()->GetScene()->GetNumberOfItems(), 0U);
  EXPECT_EQ(shownItem(second), container.getItem());
  first.updatePlot(false);
}

TEST(VtkPlotWidget, SurvivesTheDeathOfItsContainer)
{
  VtkPlotWidget widget;
  widget.show();
  {
    PlotContainer other(nullptr);
    other.setPlotData(plainTable());
    widget.setPlotContainer(&other);
  }
  EXPECT_EQ(widget.plotContainer(), nullptr);
  widget.updatePlot(false);
  widget.updatePlot(true);
  QApplication::processEvents();
}

TEST(VtkPlotWidget, LeavesNoConnectionToTheDisplayBehind)
{
  const auto showOne = []
  {
    VtkPlotWidget widget;
    widget.resize(400, 300);
    widget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
    widget.grabFramebuffer();
  };
  showOne();
  const int before = openSockets();
  showOne();
  EXPECT_EQ(openSockets(), before);
}

class PdfExport : public ::testing::Test
{
protected:
  QString path(const char* name) const { return folder.filePath(name); }
  QTemporaryDir folder;
};

TEST_F(PdfExport, WritesAPictureBeforeTheWidgetWasEverShown)
{
  VtkPlotWidget widget;
  widget.resize(500, 400);
  widget.printPlot(path("plot.pdf"));
  const QByteArray pdf = contentOf(path("plot.pdf"));
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_GT(pdf.size(), 10000);
  EXPECT_TRUE(pdf.contains("/MediaBox [ 0 0 500 400 ]") || pdf.contains("500 400"))
      << pdf.left(600).toStdString();
}

TEST_F(PdfExport, WritesTheShownWidget)
{
  VtkPlotWidget widget;
  widget.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  widget.printPlot(path("a.pdf.pdf"));
  EXPECT_TRUE(QFile::exists(path("a.pdf.pdf")));
  EXPECT_FALSE(QFile::exists(path("a.pdf")));
  widget.printPlot(path("noSuffix"));
  EXPECT_TRUE(contentOf(path("noSuffix.pdf")).startsWith("%PDF"));
  EXPECT_GT(paintedPixels(widget.grabFramebuffer()), 1000) << "the widget still shows its picture";
}

/// Bytes of the picture's PDF beyond its background, an uncompressed image of 3 bytes a pixel.
int vectorBytes(const QString& fileName, int width, int height)
{
  VtkPlotWidget widget;
  widget.resize(width, height);
  widget.printPlot(fileName);
  return contentOf(fileName).size() - 3 * width * height;
}

TEST_F(PdfExport, DrawsTheCurvesAsVectors)
{
  const int small = vectorBytes(path("small.pdf"), 500, 400);
  const int large = vectorBytes(path("large.pdf"), 1000, 800);
  EXPECT_GT(small, 10000);
  EXPECT_LT(large, 1.5 * small) << "vectors do not grow with the pixels";
}

TEST(WidgetSupport, AsksForThePlatformsFileDialog)
{
  EXPECT_EQ(static_cast<int>(getFileDialogOption()), 0);
  QT_BUG_26351_WORKAROUND(nullptr);
}

} // namespace
