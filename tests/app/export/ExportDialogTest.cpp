#include "app/export/ExportDialog.h"

#include "app/window/MainWindow.h"
#include "support/PdfPages.h"
#include "support/Pictures.h"
#include "widgets/VtkPlotWidget.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include "window/WrittenByWindow.h"

using namespace Talmesh::app;

namespace
{

class ExportDialogOfAWindow : public ::testing::Test
{
protected:
  ExportDialogOfAWindow()
  {
    QCoreApplication::setOrganizationName(QStringLiteral("TalmeshTest"));
    QCoreApplication::setApplicationName(QStringLiteral("export"));
    QSettings().clear();
  }

  ~ExportDialogOfAWindow() override { QSettings().clear(); }

  template <typename Widget>
  static Widget& child(QWidget& of, const char* name)
  {
    return *of.findChild<Widget*>(QLatin1String(name));
  }
};

} // namespace

TEST_F(ExportDialogOfAWindow, OffersTheShapeOfTheScreenOnAPageOfAJournal)
{
  ExportDialog dialog(mostPixels, QSize(900, 600));
  ASSERT_TRUE(dialog.paper());
  EXPECT_EQ(dialog.paper()->millimetres, QSizeF(180.0, 120.0));
  EXPECT_EQ(dialog.paper()->dotsPerInch, 300);
}

TEST_F(ExportDialogOfAWindow, AsksForAResolutionOnlyForPixels)
{
  for (const bool pixels : {true, false})
  {
    ExportDialog dialog(pixels ? std::optional<int>(mostPixels) : std::nullopt, QSize(900, 600));
    dialog.show();
    EXPECT_EQ(child<QSpinBox>(dialog, "exportResolution").isVisible(), pixels);
  }
}

TEST_F(ExportDialogOfAWindow, RemembersWhatWasAccepted)
{
  {
    ExportDialog dialog(mostPixels, QSize(900, 600));
    child<QDoubleSpinBox>(dialog, "exportWidth").setValue(85.0);
    child<QDoubleSpinBox>(dialog, "exportHeight").setValue(60.0);
    child<QSpinBox>(dialog, "exportResolution").setValue(600);
    dialog.accept();
  }
  {
    ExportDialog dialog(mostPixels, QSize(900, 600));
    EXPECT_EQ(dialog.paper()->millimetres, QSizeF(85.0, 60.0));
    EXPECT_EQ(dialog.paper()->dotsPerInch, 600);
    child<QDoubleSpinBox>(dialog, "exportWidth").setValue(100.0);
    dialog.reject();
  }
  ExportDialog dialog(mostPixels, QSize(900, 600));
  EXPECT_EQ(dialog.paper()->millimetres.width(), 85.0);
}

TEST_F(ExportDialogOfAWindow, CanTakeTheSizeOfTheScreen)
{
  ExportDialog dialog(mostPixels, QSize(900, 600));
  child<QRadioButton>(dialog, "asOnScreen").click();
  EXPECT_FALSE(dialog.paper());
  EXPECT_FALSE(child<QDoubleSpinBox>(dialog, "exportWidth").isEnabled());
}

TEST_F(ExportDialogOfAWindow, RefusesMorePixelsThanMemoryShouldHold)
{
  ExportDialog dialog(mostPixels, QSize(900, 600));
  const QPushButton* save =
      child<QDialogButtonBox>(dialog, "exportButtons").button(QDialogButtonBox::Save);
  EXPECT_TRUE(save->isEnabled());
  child<QDoubleSpinBox>(dialog, "exportWidth").setValue(1000.0);
  child<QSpinBox>(dialog, "exportResolution").setValue(1200);
  EXPECT_FALSE(save->isEnabled());
  EXPECT_EQ(errorOf(*dialog.paper(), mostPixels),
            dialog.findChild<QLabel*>(QStringLiteral("exportPixels"))->text().toStdString());
}

TEST_F(ExportDialogOfAWindow, TakesAnySizeForVectors)
{
  ExportDialog dialog({}, QSize(900, 600));
  child<QDoubleSpinBox>(dialog, "exportWidth").setValue(PaperSize::largestSide);
  EXPECT_TRUE(
      child<QDialogButtonBox>(dialog, "exportButtons").button(QDialogButtonBox::Save)->isEnabled());
}

TEST_F(ExportDialogOfAWindow, AsksWhichShapesOfAPageAreVectors)
{
  {
    ExportDialog pixels(mostPixels, QSize(900, 600));
    pixels.show();
    EXPECT_FALSE(child<QComboBox>(pixels, "exportVectors").isVisible());
    EXPECT_FALSE(child<QSpinBox>(pixels, "exportPictureResolution").isVisible());
  }
  {
    ExportDialog page({}, QSize(900, 600));
    page.show();
    EXPECT_EQ(page.vectors(), Talmesh::Vectors::Auto);
    EXPECT_EQ(page.dotsPerInch(), 300);
    ASSERT_TRUE(child<QComboBox>(page, "exportVectors").isVisible());
    child<QSpinBox>(page, "exportPictureResolution").setValue(150);
    QTest::keyClicks(&child<QComboBox>(page, "exportVectors"), QStringLiteral("All"));
    EXPECT_EQ(page.vectors(), Talmesh::Vectors::All);
    page.accept();
  }
  ExportDialog page({}, QSize(900, 600));
  EXPECT_EQ(page.vectors(), Talmesh::Vectors::All);
  EXPECT_EQ(page.dotsPerInch(), 150);
  EXPECT_EQ(page.paper()->dotsPerInch, 150);
  EXPECT_EQ(ExportDialog(mostPixels, QSize(900, 600)).dotsPerInch(), 300);
}

TEST_F(ExportDialogOfAWindow, WritesAPlotThatAnotherTabHides)
{
  const QTemporaryDir folder;
  MainWindow window;
  // Large enough for its panels, or it grows when the event loop gets to it.
  window.resize(1200, 900);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  QSignalSpy opened(&window, &MainWindow::opened);
  window.openExample();
  ASSERT_TRUE(opened.wait(60000));
  const QSize before = window.plotWidget()->size();
  auto* tabs = window.findChild<QTabWidget*>();
  tabs->setCurrentIndex(1);
  ASSERT_FALSE(window.plotWidget()->isVisible());

  const PaperSize paper = {QSizeF(180.0, 120.0), 200};
  const QString png = folder.filePath(QStringLiteral("plot.png"));
  const QString pdf = folder.filePath(QStringLiteral("plot.pdf"));
  EXPECT_EQ(writtenBy(window, png, {paper}), "");
  EXPECT_EQ(writtenBy(window, pdf, {paper}), "");
  // 180 by 120 mm are 510 by 340 points.
  const QImage page = pageOf(pdf);
  EXPECT_EQ(page.size(), QSize(510, 340));
  const QImage picture(png);
  EXPECT_EQ(picture.size(), pixelsOn(paper));
  for (const QImage& painted : {page, picture.scaled(510, 340)})
  {
    // The plot fills the page.
    EXPECT_GT(paintedPixels(painted.copy(0, 0, 255, 340)), 300);
    EXPECT_GT(paintedPixels(painted.copy(255, 0, 255, 340)), 300);
    EXPECT_GT(paintedPixels(painted.copy(0, 290, 510, 50)), 100);
  }
  EXPECT_EQ(window.plotWidget()->size(), before);
  tabs->setCurrentIndex(0);
  EXPECT_EQ(window.plotWidget()->grabFramebuffer().size(), before);
  EXPECT_GT(paintedPixels(window.plotWidget()->grabFramebuffer()), 300);
}

TEST_F(ExportDialogOfAWindow, WritesTheFileOfTheSizeAccepted)
{
  const QTemporaryDir folder;
  MainWindow window;
  window.resize(500, 400);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  const QSize before = window.plotWidget()->size();
  const QString path = folder.filePath(QStringLiteral("plot.png"));
  window.exportController().askForSize(path);
  auto* dialog = window.findChild<ExportDialog*>();
  ASSERT_TRUE(dialog);
  child<QDoubleSpinBox>(*dialog, "exportWidth").setValue(90.0);
  child<QDoubleSpinBox>(*dialog, "exportHeight").setValue(60.0);
  child<QSpinBox>(*dialog, "exportResolution").setValue(200);
  dialog->accept();
  ASSERT_TRUE(QTest::qWaitFor([&window] { return !window.isBusy(); }, 60000));
  EXPECT_EQ(QImage(path).size(), QSize(709, 472));
  EXPECT_EQ(window.plotWidget()->size(), before);
}
