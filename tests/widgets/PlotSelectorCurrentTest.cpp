#include "widgets/PlotSelector.h"

#include <gtest/gtest.h>

#include <QTest>

namespace
{

using Items = std::vector<Talmesh::TypedConcentrationName>;

/// Clicks, and the current item across a rebuild.
class SelectorCurrent : public ::testing::Test
{
protected:
  SelectorCurrent()
  {
    QObject::connect(&selector, &PlotSelector::notifySelectionChanged,
                     [this](Items* items) { reported = *items; });
  }

  void offer(Items options)
  {
    selector.setSelectionOptions(options);
    selector.expandAll();
  }
  QTreeWidgetItem* child(int category, int index)
  {
    return selector.topLevelItem(category)->child(index);
  }
  void click(QTreeWidgetItem* item)
  {
    QTest::mouseClick(selector.viewport(), Qt::LeftButton, Qt::NoModifier,
                      selector.visualItemRect(item).center());
  }
  void show()
  {
    selector.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&selector));
  }

  PlotSelector selector;
  Items reported;
};

class SelectorCurrentInMode : public SelectorCurrent,
                              public ::testing::WithParamInterface<QAbstractItemView::SelectionMode>
{
protected:
  SelectorCurrentInMode()
  {
    if (GetParam() != QAbstractItemView::ExtendedSelection)
      selector.setMultipleSelections(GetParam() == QAbstractItemView::MultiSelection);
  }
};

INSTANTIATE_TEST_SUITE_P(Modes, SelectorCurrentInMode,
                         ::testing::Values(QAbstractItemView::ExtendedSelection,
                                           QAbstractItemView::MultiSelection,
                                           QAbstractItemView::SingleSelection));

TEST_P(SelectorCurrentInMode, IsTheLastOfEqualItemsAfterARebuild)
{
  const Items twice{{Talmesh::Molecule, "A"}, {Talmesh::Molecule, "A"}, {Talmesh::Molecule, "B"}};
  offer(twice);
  ASSERT_EQ(selector.selectionMode(), GetParam());
  selector.setCurrentItem(child(0, 0));
  offer(twice);
  EXPECT_EQ(selector.currentItem(), child(0, 1));
  EXPECT_EQ(selector.selectedItems(), QList<QTreeWidgetItem*>{child(0, 1)});
  EXPECT_EQ(reported, (Items{{Talmesh::Molecule, "A"}}));
}

TEST_P(SelectorCurrentInMode, IsNothingAfterACategory)
{
  const Items items{{Talmesh::Molecule, "A"}, {Talmesh::Complex, "Molecule"}};
  offer(items);
  selector.setCurrentItem(selector.topLevelItem(1));
  ASSERT_EQ(selector.currentItem()->text(0), "Molecule");
  offer(items);
  EXPECT_EQ(selector.currentItem(), nullptr);
  EXPECT_TRUE(selector.selectedItems().isEmpty());
  EXPECT_TRUE(reported.empty());
}

TEST_P(SelectorCurrentInMode, IsTheNamesakeOfACategoryAmongTheItemsWithoutAWord)
{
  const Items items{{Talmesh::Molecule, "A"}, {Talmesh::TimeOrValue, "Molecule"}};
  offer(items);
  selector.setCurrentItem(selector.topLevelItem(1));
  ASSERT_EQ(selector.currentItem()->text(0), "Molecule");
  offer(items);
  EXPECT_EQ(selector.currentItem(), child(0, 0));
  EXPECT_EQ(reported, (Items{{Talmesh::Parameter, "Molecule"}}));
}

TEST_F(SelectorCurrent, ClicksToggleItemsOfAMultipleSelection)
{
  selector.setMultipleSelections(true);
  offer({{Talmesh::Molecule, "A"}, {Talmesh::Molecule, "B"}});
  show();
  click(child(0, 0));
  EXPECT_EQ(reported, (Items{{Talmesh::Molecule, "A"}}));
  click(child(0, 1));
  EXPECT_EQ(reported.size(), 2U);
  click(child(0, 0));
  EXPECT_EQ(reported, (Items{{Talmesh::Molecule, "B"}}));
  click(child(0, 1));
  EXPECT_TRUE(reported.empty());
}

TEST_F(SelectorCurrent, ClicksReplaceTheItemOfASingleSelection)
{
  selector.setMultipleSelections(false);
  offer({{Talmesh::Molecule, "A"}, {Talmesh::Molecule, "B"}});
  show();
  click(child(0, 0));
  click(child(0, 1));
  EXPECT_EQ(reported, (Items{{Talmesh::Molecule, "B"}}));
  click(child(0, 1));
  EXPECT_EQ(reported, (Items{{Talmesh::Molecule, "B"}}));
}

} // namespace
