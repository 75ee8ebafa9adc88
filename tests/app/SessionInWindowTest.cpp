#include "app/MainWindow.h"
#include "app/PlotDock.h"
#include "app/SelectionController.h"
#include "app/SessionFile.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkChartXY.h>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

constexpr int patience = 60000;

class SessionInWindow : public ::testing::Test
{
protected:
  SessionInWindow()
  {
    QCoreApplication::setOrganizationName(QStringLiteral("TalmeshTest"));
    QCoreApplication::setApplicationName(QStringLiteral("sessions"));
    RecentFiles().clear();
    makeWindow();
  }

  ~SessionInWindow() override { RecentFiles().clear(); }

  void makeWindow()
  {
    window = std::make_unique<MainWindow>();
    window->resize(700, 500);
    window->show();
  }

  QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }

  bool loaded()
  {
    return QTest::qWaitFor([this] { return !window->isLoading(); }, patience);
  }

  void openSample()
  {
    QFile file(path("runs.csv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(sampleRuns()));
    file.close();
    window->openFile(path("runs.csv"));
    ASSERT_TRUE(loaded());
  }

  /// Chooses what the window does not show by itself.
  PlotChoice change()
  {
    PlotChoice choice = window->plotDock()->choice();
    choice.style = xyPlot;
    choice.y = {1, 0};
    choice.legend = true;
    choice.logY = true;
    choice.lines = false;
    window->plotDock()->setChoice(choice);
    emit window->plotDock()->choiceChanged();
    window->selectionController()->selectAll();
    QTest::qWait(50);
    return choice;
  }

  void expectChanged(const PlotChoice& choice)
  {
    const PlotChoice shown = window->plotDock()->choice();
    EXPECT_EQ(shown.style, choice.style);
    EXPECT_EQ(shown.y, choice.y);
    EXPECT_EQ(shown.legend, choice.legend);
    EXPECT_EQ(shown.logY, choice.logY);
    EXPECT_EQ(shown.lines, choice.lines);
    EXPECT_EQ(window->sizeText(), "3 runs, 4 points each, 1 parameter");
    EXPECT_EQ(window->selectionText(), "3 of 3 runs selected");
    EXPECT_EQ(window->windowTitle(), "runs.csv - Talmesh Plot");
    EXPECT_TRUE(container().getChartXY()->GetShowLegend());
    EXPECT_EQ(container().getChartXY()->GetNumberOfPlots(), 2);
  }

  PlotContainer& container() { return *window->plotWidget()->plotContainer(); }

  QTemporaryDir folder;
  std::unique_ptr<MainWindow> window;
};

} // namespace

TEST_F(SessionInWindow, ComesBackInAnotherWindow)
{
  openSample();
  const PlotChoice choice = change();
  ASSERT_TRUE(window->saveSessionTo(path("a.talmesh")));
  makeWindow();
  window->openFile(path("a.talmesh"));
  ASSERT_TRUE(loaded());
  expectChanged(choice);
  EXPECT_FALSE(window->selectionController()->undoStack().canUndo());
}

TEST_F(SessionInWindow, OpensFromTheCommandLine)
{
  openSample();
  const PlotChoice choice = change();
  ASSERT_TRUE(window->saveSessionTo(path("a.talmesh")));
  makeWindow();
  CommandLineOptions options;
  options.file = path("a.talmesh").toStdString();
  const QSignalSpy spy(window.get(), SIGNAL(opened()));
  window->open(options);
  ASSERT_TRUE(loaded());
  EXPECT_EQ(spy.count(), 1);
  expectChanged(choice);
}

TEST_F(SessionInWindow, OpensWhenDropped)
{
  openSample();
  const PlotChoice choice = change();
  ASSERT_TRUE(window->saveSessionTo(path("a.talmesh")));
  makeWindow();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(path("a.talmesh"))});
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window.get(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent dropped(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window.get(), &dropped);
  ASSERT_TRUE(loaded());
  expectChanged(choice);
}

TEST_F(SessionInWindow, IsSavedThroughTheDialog)
{
  openSample();
  QApplication::setActiveWindow(window.get());
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  QFileDialog* dialog = nullptr;
  ASSERT_TRUE(QTest::qWaitFor(
      [&]
      {
        dialog = window->findChild<QFileDialog*>();
        return dialog && dialog->isVisible();
      },
      patience));
  dialog->selectFile(path("chosen"));
  QMetaObject::invokeMethod(dialog, "accept");
  EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(path("chosen.talmesh")); }, patience));
  EXPECT_EQ(loadSessionFile(path("chosen.talmesh")).error, "");
  EXPECT_TRUE(RecentFiles().paths().contains(path("chosen.talmesh")));
}

TEST_F(SessionInWindow, SaysWhyItCannotBeOpened)
{
  openSample();
  QFile damaged(path("bad.talmesh"));
  ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
  damaged.write("\x89TALMESH\0\0");
  damaged.close();
  const QSignalSpy spy(window.get(), SIGNAL(openFailed(QString)));
  window->openFile(path("bad.talmesh"));
  ASSERT_TRUE(loaded());
  ASSERT_EQ(spy.count(), 1);
  EXPECT_EQ(spy[0][0].toString(), path("bad.talmesh") + ": the session is cut short");
  EXPECT_EQ(window->sizeText(), "3 runs, 4 points each, 1 parameter");
}

TEST_F(SessionInWindow, SaysWhyItCannotBeSaved)
{
  openSample();
  EXPECT_FALSE(window->saveSessionTo(path("no/such/folder/a.talmesh")));
  auto* box = window->findChild<QMessageBox*>();
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(box->text().startsWith(path("no/such/folder/a.talmesh") + ": cannot be written: "));
}
