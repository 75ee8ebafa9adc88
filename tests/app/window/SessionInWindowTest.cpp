#include "window/SessionInWindow.h"

#include <vtkAxis.h>

#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>

using namespace Talmesh::app;

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
