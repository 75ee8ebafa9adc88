#include <vtkAxis.h>
#include <vtkChartXY.h>

#include <QFileDialog>

#include "DialogAnswers.h"
#include "LinePlotFixture.h"

namespace
{

/// A shown widget with data, whose parts are reached with keys.
class LinePlotKeys : public LinePlotFixture
{
protected:
  LinePlotKeys()
  {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    widget.setData(&data);
    selector().expandAll();
    show();
  }
  ~LinePlotKeys() override { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false); }

  vtkIdType plots() { return container().getChartXY()->GetNumberOfPlots(); }
};

TEST_F(LinePlotKeys, ArrowsPlotTheItemThatTheyReach)
{
  selector().setFocus();
  selector().setCurrentItem(selector().topLevelItem(0));
  EXPECT_EQ(plots(), 0);
  QTest::keyClick(&selector(), Qt::Key_Down);
  EXPECT_EQ(plots(), 1);
  QTest::keyClick(&selector(), Qt::Key_Up);
  EXPECT_EQ(plots(), 0);
}

TEST_F(LinePlotKeys, ShiftAndArrowsPlotFurtherItems)
{
  selector().setCurrentItem(selector().topLevelItem(0)->child(0));
  EXPECT_EQ(plots(), 1);
  // Over the category of the second item.
  QTest::keyClick(&selector(), Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&selector(), Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(plots(), 2);
}

TEST_F(LinePlotKeys, ControlAndSpaceTakeAnItemAway)
{
  selector().setCurrentItem(selector().topLevelItem(0)->child(0));
  EXPECT_EQ(plots(), 1);
  QTest::keyClick(&selector(), Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(plots(), 0);
}

TEST_F(LinePlotKeys, SpaceTogglesTheLegendWhenItGoesDown)
{
  auto* button = find<QPushButton>("showLegend");
  button->setFocus();
  QTest::keyPress(button, Qt::Key_Space);
  EXPECT_TRUE(container().getChartXY()->GetShowLegend());
  EXPECT_EQ(button->text(), "Hide the Legend");
  QTest::keyRelease(button, Qt::Key_Space);
  EXPECT_TRUE(container().getChartXY()->GetShowLegend());
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_FALSE(container().getChartXY()->GetShowLegend());
}

TEST_F(LinePlotKeys, SpaceTogglesTheScaleWhenItGoesDown)
{
  auto* button = find<QPushButton>("logSButton");
  vtkAxis* left = container().getChartXY()->GetAxis(vtkAxis::LEFT);
  button->setFocus();
  QTest::keyPress(button, Qt::Key_Space);
  EXPECT_TRUE(left->GetLogScale());
  QTest::keyRelease(button, Qt::Key_Space);
  EXPECT_TRUE(left->GetLogScale());
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_FALSE(left->GetLogScale());
}

TEST_F(LinePlotKeys, SpaceAsksForAFileToExportTo)
{
  bool asked = false;
  DialogAnswers answers({[&asked](QDialog& dialog)
                         {
                           asked = qobject_cast<QFileDialog*>(&dialog) != nullptr;
                           cancelDialog(dialog);
                         }});
  QTest::keyClick(find<QPushButton>("exportButton"), Qt::Key_Space);
  EXPECT_TRUE(asked);
  EXPECT_EQ(answers.given(), 1U);
}

TEST_F(LinePlotKeys, TabReachesTheListAndEveryButton)
{
  QApplication::setActiveWindow(&widget);
  selector().setFocus();
  QList<QWidget*> reached;
  for (int i = 0; i < 8; ++i)
  {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    reached.append(QApplication::focusWidget());
  }
  EXPECT_TRUE(reached.contains(&selector()));
  for (const char* name : {"exportButton", "showLegend", "logSButton"})
    EXPECT_TRUE(reached.contains(find<QPushButton>(name))) << name;
}

} // namespace
