#ifndef LinePlotFixture_h
#define LinePlotFixture_h

#include "external/LinePlotData.h"
#include "plot/PlotContainer.h"
#include "widgets/LinePlotWidget.h"
#include "widgets/PlotSelector.h"
#include "widgets/VtkPlotWidget.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

#include <vector>

/// A line plot widget, hidden and without data, and two series for it.
class LinePlotFixture : public ::testing::Test
{
protected:
  LinePlotFixture()
  {
    data.xName = "Time [s]";
    data.yName = "Count";
    data.xValues = &time;
    data.series[{Talmesh::Molecule, "A"}] = &a;
    data.series[{Talmesh::Parameter, "k"}] = &k;
  }

  template <typename Child>
  Child* find(const char* name)
  {
    return widget.findChild<Child*>(name);
  }
  VtkPlotWidget& plotter() { return *find<VtkPlotWidget>("plotter"); }
  PlotContainer& container() { return *plotter().plotContainer(); }
  PlotSelector& selector() { return *find<PlotSelector>("selector"); }
  QStackedWidget* pages() { return find<QStackedWidget>("stackedWidget"); }
  void press(const char* button)
  {
    QTest::mousePress(find<QPushButton>(button), Qt::LeftButton);
    QTest::mouseRelease(find<QPushButton>(button), Qt::LeftButton);
  }
  /// Clicks the first item of a category.
  void clickFirstOf(int category)
  {
    selector().expandAll();
    QTreeWidgetItem* item = selector().topLevelItem(category)->child(0);
    QTest::mouseClick(selector().viewport(), Qt::LeftButton, Qt::NoModifier,
                      selector().visualItemRect(item).center());
  }
  void show()
  {
    widget.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&widget));
  }

  std::vector<double> time = {0, 1, 2};
  std::vector<double> a = {3, 4, 5};
  std::vector<double> k = {1, 1, 1};
  LinePlotData data;
  LinePlotWidget widget;
};

#endif
