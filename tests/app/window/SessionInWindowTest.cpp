#include "app/document/SelectionController.h"
#include "app/session/SessionFile.h"
#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
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

  /// Waits for the one file dialog that is open.
  QFileDialog* fileDialog()
  {
    QFileDialog* dialog = nullptr;
    EXPECT_TRUE(QTest::qWaitFor(
        [&]
        {
          dialog = window->findChild<QFileDialog*>();
          return dialog && dialog->isVisible();
        },
        patience));
    return dialog;
  }

  /// The entry of the menu bar's first menu that holds a text in any place.
  QAction* fileEntry(const QString& text)
  {
    for (QAction* entry : window->menuBar()->actions().first()->menu()->actions())
      if (entry->text().remove(QLatin1Char('&')).contains(text))
        return entry;
    return nullptr;
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

TEST_F(SessionInWindow, KeepsTheLegendBehindAnotherStyle)
{
  openSample();
  PlotChoice choice = change();
  choice.style = scatterPlotMatrix;
  window->plotDock()->setChoice(choice);
  emit window->plotDock()->choiceChanged();
  ASSERT_TRUE(window->saveSessionTo(path("a.talmesh")));
  makeWindow();
  window->openFile(path("a.talmesh"));
  ASSERT_TRUE(loaded());
  // The selection is announced later.
  QTest::qWait(50);
  PlotChoice shown = window->plotDock()->choice();
  EXPECT_EQ(shown.style, scatterPlotMatrix);
  EXPECT_TRUE(shown.legend);
  EXPECT_TRUE(shown.logY);
  auto* style = window->plotDock()->findChild<QComboBox*>(QStringLiteral("style"));
  style->setCurrentIndex(style->findData(static_cast<int>(xyPlot)));
  EXPECT_TRUE(container().getChartXY()->GetShowLegend());
  EXPECT_TRUE(container().getChartXY()->GetAxis(vtkAxis::LEFT)->GetLogScale());
}

TEST_F(SessionInWindow, OpensThroughTheMenuAndItsDialog)
{
  openSample();
  const PlotChoice choice = change();
  ASSERT_TRUE(window->saveSessionTo(path("a.talmesh")));
  makeWindow();
  QAction* entry = fileEntry(QStringLiteral("Open session"));
  ASSERT_NE(entry, nullptr);
  entry->trigger();
  QFileDialog* dialog = fileDialog();
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->windowTitle(), "Open session");
  EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptOpen);
  EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFile);
  EXPECT_EQ(dialog->nameFilters(), QStringList("Sessions (*.talmesh)"));
  dialog->setDirectory(folder.path());
  dialog->selectFile(path("a.talmesh"));
  QMetaObject::invokeMethod(dialog, "accept");
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return window->windowTitle() != "Talmesh Plot"; }, patience));
  ASSERT_TRUE(loaded());
  expectChanged(choice);
}

TEST_F(SessionInWindow, CannotBeSavedBeforeAnythingIsOpen)
{
  QAction* save = fileEntry(QStringLiteral("Save session"));
  ASSERT_NE(save, nullptr);
  EXPECT_FALSE(save->isEnabled());
  EXPECT_FALSE(window->saveSessionTo(path("a.talmesh")));
  EXPECT_FALSE(QFile::exists(path("a.talmesh")));
  openSample();
  EXPECT_TRUE(save->isEnabled());
}

TEST_F(SessionInWindow, CannotBeSavedOverAChartOfItsOwn)
{
  openSample();
  window->findChild<QAction*>(QStringLiteral("indomethacin-fit"))->trigger();
  ASSERT_TRUE(loaded());
  EXPECT_FALSE(fileEntry(QStringLiteral("Save session"))->isEnabled());
  EXPECT_FALSE(window->saveSessionTo(path("a.talmesh")));
  EXPECT_FALSE(QFile::exists(path("a.talmesh")));
  window->returnToRuns();
  EXPECT_TRUE(fileEntry(QStringLiteral("Save session"))->isEnabled());
  EXPECT_TRUE(window->saveSessionTo(path("a.talmesh")));
}

TEST_F(SessionInWindow, SavesNoOtherStudyThanTheOneThatItsDialogWasOpenedFor)
{
  openSample();
  fileEntry(QStringLiteral("Save session"))->trigger();
  const QPointer<QFileDialog> dialog = fileDialog();
  ASSERT_TRUE(dialog);
  openSample();
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.isNull(); }, patience));
  EXPECT_EQ(window->windowTitle(), "runs.csv - Talmesh Plot");
}

TEST_F(SessionInWindow, OpensFromTheCommandLine)
{
  openSample();
  const PlotChoice choice = change();
  ASSERT_TRUE(window->saveSessionTo(path("a.talmesh")));
  makeWindow();
  OpeningWishes options;
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
  QFileDialog* dialog = fileDialog();
  ASSERT_NE(dialog, nullptr);
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
