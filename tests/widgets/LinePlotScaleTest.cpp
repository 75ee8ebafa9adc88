#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkPlot.h>

#include <QLabel>

#include <cmath>

#include "LinePlotFixture.h"

namespace
{

/// A shown widget with a positive series ("Molecule: A") and one that crosses zero ("Molecule: B").
class LinePlotScale : public LinePlotFixture
{
protected:
  LinePlotScale()
  {
    time = {0, 1, 2, 3, 4};
    a = {1, 10, 100, 1000, 10000};
    data.series = {{{Talmesh::Molecule, "A"}, &a}, {{Talmesh::Molecule, "B"}, &crossing}};
    widget.setData(&data);
    selector().expandAll();
    show();
  }

  QTreeWidgetItem* item(int row) { return selector().topLevelItem(0)->child(row); }
  void plot(int row)
  {
    selector().clearSelection();
    item(row)->setSelected(true);
  }
  QString button() { return find<QPushButton>("logSButton")->text(); }
  bool noticed()
  {
    auto* notice = find<QLabel>("scaleNotice");
    return notice && notice->isVisible() && notice->text().contains("positive");
  }
  vtkAxis* left() { return container().getChartXY()->GetAxis(vtkAxis::LEFT); }

  std::vector<double> crossing = {0, 1, 2, 0, -1};
};

TEST_F(LinePlotScale, IsLinearForSeriesThatCrossZeroAndSaysSo)
{
  plot(0);
  press("logSButton");
  EXPECT_TRUE(left()->GetLogScaleActive());
  EXPECT_EQ(button(), "Use Linear Scale");
  EXPECT_FALSE(noticed());
  plot(1);
  EXPECT_FALSE(left()->GetLogScaleActive());
  EXPECT_TRUE(std::isfinite(left()->GetMinimum()));
  EXPECT_LE(left()->GetMinimum(), -1.0);
  EXPECT_EQ(button(), "Use Log Scale");
  EXPECT_TRUE(noticed());
  item(0)->setSelected(true);
  EXPECT_FALSE(left()->GetLogScaleActive()) << "both";
  EXPECT_GE(left()->GetMaximum(), 10000.0);
  EXPECT_TRUE(noticed());
  plot(0);
  EXPECT_TRUE(left()->GetLogScaleActive());
  EXPECT_EQ(left()->GetMaximum(), 4.0);
  EXPECT_EQ(button(), "Use Linear Scale");
  EXPECT_FALSE(noticed());
}

TEST_F(LinePlotScale, SaysSoWhenTheButtonAsksForWhatTheSeriesForbid)
{
  plot(1);
  EXPECT_FALSE(noticed());
  press("logSButton");
  EXPECT_EQ(button(), "Use Log Scale") << "what is shown is linear";
  EXPECT_TRUE(noticed());
  press("logSButton");
  EXPECT_FALSE(noticed());
  plot(0);
  EXPECT_FALSE(left()->GetLogScale());
}

TEST_F(LinePlotScale, HasNothingToSayWithoutData)
{
  plot(1);
  press("logSButton");
  ASSERT_TRUE(noticed());
  widget.removeData();
  EXPECT_FALSE(noticed());
  EXPECT_EQ(button(), "Use Linear Scale") << "nothing forbids what was asked for";
}

} // namespace
