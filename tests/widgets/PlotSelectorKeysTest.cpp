#include "widgets/PlotSelector.h"

#include <gtest/gtest.h>

#include <QTest>

#include <algorithm>

namespace
{

using Items = std::vector<Talmesh::TypedConcentrationName>;

/// A shown list of three molecules below their category, which the keys go to.
class SelectorKeys : public ::testing::Test
{
protected:
  SelectorKeys()
  {
    QObject::connect(&selector, &PlotSelector::notifySelectionChanged,
                     [this](Items* items)
                     {
                       reported = *items;
                       std::sort(reported.begin(), reported.end());
                       ++reports;
                     });
    Items options = {{Talmesh::Molecule, "A"}, {Talmesh::Molecule, "B"}, {Talmesh::Molecule, "C"}};
    selector.setSelectionOptions(options);
    selector.expandAll();
    selector.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&selector));
    selector.setFocus();
    reports = 0;
  }

  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    QTest::keyClick(&selector, key, modifiers);
  }

  static Items molecules(const std::vector<std::string>& names)
  {
    Items items;
    for (const std::string& name : names)
      items.emplace_back(Talmesh::Molecule, name);
    return items;
  }

  PlotSelector selector;
  Items reported;
  int reports = 0;
};

TEST_F(SelectorKeys, ArrowsMoveTheSelection)
{
  selector.setCurrentItem(selector.topLevelItem(0));
  reports = 0;
  press(Qt::Key_Down);
  EXPECT_EQ(reported, molecules({"A"}));
  press(Qt::Key_Down);
  EXPECT_EQ(reported, molecules({"B"}));
  press(Qt::Key_Up);
  EXPECT_EQ(reported, molecules({"A"}));
  EXPECT_EQ(reports, 3);
}

TEST_F(SelectorKeys, AnArrowOntoTheCategorySelectsNothing)
{
  selector.setCurrentItem(selector.topLevelItem(0)->child(0));
  ASSERT_EQ(reported, molecules({"A"}));
  press(Qt::Key_Up);
  EXPECT_EQ(selector.currentItem(), selector.topLevelItem(0));
  EXPECT_TRUE(reported.empty());
}

TEST_F(SelectorKeys, ShiftAndArrowsExtendTheSelection)
{
  selector.setCurrentItem(selector.topLevelItem(0)->child(0));
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(reported, molecules({"A", "B"}));
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(reported, molecules({"A", "B", "C"}));
  press(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(reported, molecules({"A", "B"}));
}

TEST_F(SelectorKeys, ControlAndSpaceToggleWhatControlAndArrowsReach)
{
  selector.setCurrentItem(selector.topLevelItem(0)->child(0));
  reports = 0;
  press(Qt::Key_Down, Qt::ControlModifier);
  press(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(selector.currentItem(), selector.topLevelItem(0)->child(2));
  EXPECT_EQ(reports, 0) << "nothing is selected on the way";
  press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(reported, molecules({"A", "C"}));
  press(Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(reported, molecules({"A"}));
}

TEST_F(SelectorKeys, SpaceTogglesInAMultipleSelection)
{
  selector.setMultipleSelections(true);
  selector.setCurrentItem(selector.topLevelItem(0)->child(0));
  press(Qt::Key_Down);
  press(Qt::Key_Space);
  const Items both = reported;
  press(Qt::Key_Space);
  EXPECT_NE(std::find(both.begin(), both.end(), molecules({"B"}).front()), both.end());
  EXPECT_EQ(std::find(reported.begin(), reported.end(), molecules({"B"}).front()), reported.end());
}

TEST_F(SelectorKeys, ArrowsReplaceTheItemOfASingleSelection)
{
  selector.setMultipleSelections(false);
  selector.setCurrentItem(selector.topLevelItem(0)->child(0));
  press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(reported, molecules({"B"}));
}

TEST_F(SelectorKeys, ControlAndASelectEverything)
{
  press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(reported, molecules({"A", "B", "C"}));
}

TEST_F(SelectorKeys, EachReportHasAListOfItsOwn)
{
  // A receiver that changes the selection is told of it before it returns.
  Items outer;
  bool nested = false;
  QObject::connect(&selector, &PlotSelector::notifySelectionChanged,
                   [&](Items* items)
                   {
                     if (nested)
                       return;
                     nested = true;
                     selector.clearSelection();
                     outer = *items;
                   });
  selector.setCurrentItem(selector.topLevelItem(0)->child(1));
  EXPECT_TRUE(reported.empty());
  EXPECT_EQ(outer, molecules({"B"})) << "the list lives as long as its report";
}

TEST_F(SelectorKeys, ReceiversMayChangeTheListOfAReport)
{
  QObject::connect(&selector, &PlotSelector::notifySelectionChanged,
                   [](Items* items) { items->emplace_back(Talmesh::Pattern, "left behind"); });
  selector.setCurrentItem(selector.topLevelItem(0)->child(0));
  press(Qt::Key_Down);
  EXPECT_EQ(reported, molecules({"B"}));
}

} // namespace
