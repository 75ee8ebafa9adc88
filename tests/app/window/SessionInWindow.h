#ifndef SessionInWindow_h
#define SessionInWindow_h

#include "app/document/SelectionController.h"
#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "app/window/RecentFiles.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkChartXY.h>

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include "SampleStudies.h"

/// A window whose study, choices and selection are saved and opened again.
class SessionInWindow : public ::testing::Test
{
protected:
  static constexpr int patience = 60000;

  SessionInWindow()
  {
    QCoreApplication::setOrganizationName(QStringLiteral("TalmeshTest"));
    QCoreApplication::setApplicationName(QStringLiteral("sessions"));
    Talmesh::app::RecentFiles().clear();
    makeWindow();
  }

  ~SessionInWindow() override { Talmesh::app::RecentFiles().clear(); }

  void makeWindow()
  {
    window = std::make_unique<Talmesh::app::MainWindow>();
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
  Talmesh::app::PlotChoice change()
  {
    Talmesh::app::PlotChoice choice = window->plotDock()->choice();
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

  void expectChanged(const Talmesh::app::PlotChoice& choice)
  {
    const Talmesh::app::PlotChoice shown = window->plotDock()->choice();
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
  std::unique_ptr<Talmesh::app::MainWindow> window;
};

#endif
