#ifndef StudyWindow_h
#define StudyWindow_h

#include "app/window/MainWindow.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkPlot.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <string>

#include "SampleStudies.h"

/// The window with three runs, from which computed studies are chosen.
class StudyWindow : public ::testing::Test
{
protected:
  static constexpr int patience = 500000;

  StudyWindow()
  {
    QFile file(folder.filePath("runs.csv"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    const std::string text = sampleRuns();
    file.write(text.data(), static_cast<qint64>(text.size()));
    file.close();
    window.resize(1000, 700);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::setActiveWindow(&window);
    window.openFile(file.fileName());
    EXPECT_TRUE(waitUntilLoaded());
    QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  }

  bool waitUntilLoaded()
  {
    return QTest::qWaitFor([this] { return !window.isLoading(); }, patience);
  }

  template <typename Widget>
  Widget* find(const char* name)
  {
    auto* widget = window.findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }

  void show(const std::string& id)
  {
    find<QAction>(id.c_str())->trigger();
    ASSERT_TRUE(waitUntilLoaded());
  }

  void chooseVariant(int steps)
  {
    auto* variants = find<QComboBox>("studyVariant");
    for (int i = 0; i < steps; ++i)
      QTest::keyClick(variants, Qt::Key_Down);
  }

  PlotContainer& container() { return *window.plotWidget()->plotContainer(); }
  vtkChartXY& chart() { return *container().getChartXY(); }
  std::string title() { return chart().GetTitle(); }
  std::string axisTitle(int axis) { return chart().GetAxis(axis)->GetTitle(); }

  int seriesOf(vtkPlot* plot)
  {
    vtkStringArray* labels = plot ? plot->GetLabels() : nullptr;
    return labels ? static_cast<int>(labels->GetNumberOfValues()) : 0;
  }

  QTemporaryDir folder;
  Talmesh::app::MainWindow window;
};

#endif
