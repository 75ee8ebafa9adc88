#ifndef GroupsInWindow_h
#define GroupsInWindow_h

#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "external/ParameterSelection.h"
#include "plot/PlotContainer.h"
#include "plot/TableColumns.h"
#include "support/CapturedOutput.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkChartXY.h>
#include <vtkPlot.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDockWidget>
#include <QFile>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include <iostream>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

/// Six runs of two shapes, numbered 10, 20, ... 60: the even places rise, the odd ones fall.
inline std::string twoShapes(int pointsPerRun = 8)
{
  std::ostringstream text;
  text << "run,time,k,X,Y\n";
  for (int run = 0; run < 6; ++run)
    for (int point = 0; point < pointsPerRun; ++point)
    {
      const int step = run % 2 == 0 ? point : pointsPerRun - 1 - point;
      text << 10 * (run + 1) << ',' << point << ',' << 0.5 * run << ',' << (run + 1) * (step + 1)
           << ',' << 1 + point % 3 + run << '\n';
    }
  return text.str();
}

/// The window with six runs and its panel of groups.
class GroupsInWindow : public ::testing::Test
{
protected:
  static constexpr int pointsPerRun = 8;

  GroupsInWindow()
  {
    window.resize(1000, 700);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::setActiveWindow(&window);
    open("runs.csv", twoShapes(pointsPerRun));
    chooseStyle(xyPlot);
    window.findChild<QDockWidget*>(QStringLiteral("clusterDock"))->raise();
    QCoreApplication::processEvents();
  }

  void open(const char* name, const std::string& text)
  {
    QFile file(folder.filePath(QString::fromUtf8(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.data(), static_cast<qint64>(text.size()));
    file.close();
    window.openFile(file.fileName());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, 60000));
  }

  template <typename Widget>
  Widget* find(const char* name)
  {
    auto* widget = window.findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }

  /// Sorts the runs into so many groups by the panel's controls.
  void group(int count)
  {
    auto* box = find<QSpinBox>("clusterCount");
    box->selectAll();
    QTest::keyClicks(box, QString::number(count));
    const CapturedOutput quiet(std::cout);
    QTest::mouseClick(find<QPushButton>("clusterStart"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isBusy(); }, 60000));
  }

  void tick(const char* name) { QTest::keyClick(find<QCheckBox>(name), Qt::Key_Space); }

  void clickGroup(int row)
  {
    auto* list = find<QListWidget>("clusterList");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(row)).center());
    QCoreApplication::processEvents();
  }

  void press(const QKeySequence& keys)
  {
    QTest::keySequence(&window, keys);
    QCoreApplication::processEvents();
  }

  PlotContainer& container() { return *window.plotWidget()->plotContainer(); }
  vtkChartXY& chart() { return *container().getChartXY(); }
  std::set<int> runs()
  {
    return std::unique_ptr<ParameterSelection>(container().getSelection())->runs;
  }
  double value(int column, vtkIdType row)
  {
    return Talmesh::plot::doubleColumn(container().getTable(), column)->GetValue(row);
  }

  void choose(const Talmesh::app::PlotChoice& choice)
  {
    window.plotDock()->setChoice(choice);
    emit window.plotDock()->choiceChanged();
  }

  void chooseStyle(plotStyles style)
  {
    Talmesh::app::PlotChoice choice = window.plotDock()->choice();
    choice.style = style;
    choose(choice);
  }

  template <typename Plot>
  std::vector<Plot*> plots()
  {
    std::vector<Plot*> found;
    for (vtkIdType i = 0; i < chart().GetNumberOfPlots(); ++i)
    {
      if (auto* plot = Plot::SafeDownCast(chart().GetPlot(i)))
        found.push_back(plot);
    }
    return found;
  }

  QTemporaryDir folder;
  Talmesh::app::MainWindow window;
};

#endif
