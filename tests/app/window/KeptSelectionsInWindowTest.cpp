#include "app/document/KeptSelections.h"
#include "app/window/KeptSelectionsDock.h"
#include "app/window/SessionController.h"

#include <QColorDialog>
#include <QMenu>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>

#include "window/WorkInWindow.h"

using namespace Talmesh::app;

namespace
{

using Runs = std::set<int>;

/// The window with the panel of kept selections, reached by keys and mouse.
class KeptSelectionsInWindow : public WorkInWindow
{
protected:
  QTreeWidget& tree() { return *find<QTreeWidget>("keptSelections"); }
  const std::vector<KeptSelection>& kept() { return window.document().kept().list(); }

  void keepAs(const std::set<int>& wanted, const QString& name)
  {
    select(wanted);
    press(QKeySequence("Ctrl+K"));
    type(name);
  }

  /// Where a name is typed, if one is asked for. One that has been closed may not be gone yet.
  QLineEdit* nameEditor()
  {
    for (QLineEdit* any : tree().findChildren<QLineEdit*>())
      if (any->isVisible())
        return any;
    return nullptr;
  }

  /// Strikes a key of the list, which has the keyboard only in a window that has it.
  void strike(Qt::Key key)
  {
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    tree().setFocus();
    ASSERT_TRUE(QTest::qWaitFor([this] { return tree().hasFocus(); }, patience));
    QTest::keyClick(&tree(), key);
  }

  /// Types the name into the row that waits for it.
  void type(const QString& name)
  {
    ASSERT_TRUE(QTest::qWaitFor([this] { return nameEditor() != nullptr; }, patience))
        << "no name is asked for";
    QTest::keyClicks(nameEditor(), name);
    QTest::keyClick(nameEditor(), Qt::Key_Return);
    // The name is taken when the row is no longer at work.
    const auto isTaken = [&]
    {
      return std::any_of(kept().begin(), kept().end(),
                         [&name](const KeptSelection& selection)
                         { return selection.name == name.toStdString(); });
    };
    EXPECT_TRUE(QTest::qWaitFor(isTaken, patience));
    EXPECT_TRUE(QTest::qWaitFor([this] { return nameEditor() == nullptr; }, patience));
    QTest::qWait(20);
  }

  QPoint placeOf(int row) { return tree().visualItemRect(tree().topLevelItem(row)).center(); }
  void click(int row)
  {
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(row));
  }

  void doubleClick(int row)
  {
    click(row);
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(row));
    QTest::qWait(20);
  }

  QToolButton* button(const char* action)
  {
    for (QToolButton* button : window.findChildren<QToolButton*>())
      if (button->defaultAction() && button->defaultAction()->objectName() == QLatin1String(action))
        return button;
    return nullptr;
  }
  void clickButton(const char* action)
  {
    ASSERT_NE(button(action), nullptr) << action;
    QTest::mouseClick(button(action), Qt::LeftButton);
  }

  /// Chooses the entry of the menu of its button, as far down as it stands there.
  void selectBy(int entry)
  {
    QMenu& menu = *window.findChild<QMenu*>("selectKept");
    QTimer::singleShot(100, &menu,
                       [&menu, entry]
                       {
                         for (int i = 0; i <= entry; ++i)
                           QTest::keyClick(&menu, Qt::Key_Down);
                         QTest::keyClick(&menu, Qt::Key_Return);
                       });
    for (QToolButton* button : window.findChildren<QToolButton*>())
      if (button->defaultAction() == menu.menuAction())
        QTest::mouseClick(button, Qt::LeftButton);
    QTest::qWait(20);
  }
};

} // namespace

TEST_F(KeptSelectionsInWindow, KeepsWhatIsSelectedUnderTheNameThatIsTyped)
{
  EXPECT_FALSE(button("keepSelection")->isEnabled()) << "nothing is selected";
  keepAs({20, 40}, "oscillating");
  keepAs({30}, "silent");
  ASSERT_EQ(kept().size(), 2U);
  EXPECT_EQ(kept()[0].name, "oscillating");
  EXPECT_EQ(kept()[0].runs, (std::vector<bool>{false, true, false, true, false, false}));
  ASSERT_EQ(tree().topLevelItemCount(), 2);
  EXPECT_TRUE(tree().isVisible());
  EXPECT_EQ(tree().topLevelItem(0)->text(0), "oscillating");
  EXPECT_EQ(tree().topLevelItem(0)->text(1), "2");
  EXPECT_EQ(tree().topLevelItem(1)->text(0), "silent");
  QUndoStack& steps = window.selectionController()->undoStack();
  EXPECT_EQ(steps.text(steps.index() - 1), "Keep silent");
}

TEST_F(KeptSelectionsInWindow, SelectsAgainInFourWays)
{
  keepAs({20, 40}, "a");
  press(QKeySequence(Qt::Key_Escape));
  doubleClick(0);
  EXPECT_EQ(runs(), (Runs{20, 40}));
  select({10, 20});
  click(0);
  selectBy(1);
  EXPECT_EQ(runs(), (Runs{10, 20, 40}));
  selectBy(2);
  EXPECT_EQ(runs(), Runs{10});
  selectBy(3);
  EXPECT_EQ(runs(), (Runs{10, 20, 40}));
  selectBy(0);
  EXPECT_EQ(runs(), (Runs{20, 40}));
}

TEST_F(KeptSelectionsInWindow, NamesTheStepByItsWords)
{
  ASSERT_EQ(window.selectionController()->selectWhere("k > 1", RunCombination::Replace).text, "");
  QTest::qWait(20);
  press(QKeySequence("Ctrl+K"));
  type("late");
  EXPECT_EQ(tree().topLevelItem(0)->text(2), "k > 1");
  press(QKeySequence(Qt::Key_Escape));
  doubleClick(0);
  QUndoStack& steps = window.selectionController()->undoStack();
  EXPECT_EQ(steps.text(steps.index() - 1), "Select 3 runs: k > 1");
  EXPECT_EQ(window.selectionController()->words(), "k > 1");
}

TEST_F(KeptSelectionsInWindow, RenamesColoursAndRemoves)
{
  keepAs({20}, "a");
  click(0);
  strike(Qt::Key_F2);
  type("b");
  EXPECT_EQ(kept().front().name, "b");
  clickButton("renameSelection");
  type("c");
  EXPECT_EQ(kept().front().name, "c");
  clickButton("colourSelection");
  auto* dialog = window.findChild<QColorDialog*>();
  ASSERT_NE(dialog, nullptr);
  dialog->setCurrentColor(QColor(1, 2, 3));
  QMetaObject::invokeMethod(dialog, "accept");
  QTest::qWait(20);
  EXPECT_EQ(kept().front().colour, 0x010203U);
  // The dialog had the keyboard.
  strike(Qt::Key_Delete);
  EXPECT_TRUE(kept().empty());
  EXPECT_FALSE(button("removeSelection")->isEnabled());
  press(QKeySequence::Undo);
  EXPECT_EQ(kept().size(), 1U) << "a step that can be undone";
}

TEST_F(KeptSelectionsInWindow, WritesATableOfTheRuns)
{
  keepAs({20, 40}, "a");
  keepAs({40}, "b, c");
  clickButton("saveKeptSelections");
  chooseIn(window, path("kept.csv"));
  EXPECT_EQ(contentOf(path("kept.csv")),
            "run,a,\"b, c\"\n10,0,0\n20,1,0\n30,0,0\n40,1,1\n50,0,0\n60,0,0\n");
}

TEST_F(KeptSelectionsInWindow, AreAskedForBeforeTheyWouldBeLost)
{
  keepAs({20}, "a");
  press(QKeySequence(Qt::Key_Escape));
  window.close();
  ASSERT_NE(leavingQuestion(), nullptr);
  EXPECT_TRUE(leavingQuestion()->informativeText().contains("kept selections"))
      << leavingQuestion()->informativeText().toStdString();
  answer(leavingQuestion(), QMessageBox::Cancel);
  ASSERT_TRUE(window.saveSessionTo(path("a.talmesh")));
  EXPECT_FALSE(window.sessionController().isUnsaved());
  openIn(window, path("a.talmesh"));
  ASSERT_EQ(tree().topLevelItemCount(), 1);
  EXPECT_EQ(tree().topLevelItem(0)->text(0), "a");
  EXPECT_FALSE(window.sessionController().isUnsaved());
}

TEST_F(KeptSelectionsInWindow, RememberWhatWasAskedForWhenSelectedAgain)
{
  std::vector<bool> two(window.selectionController()->selectedRuns().size(), false);
  two[0] = two[1] = true;
  window.document().kept().keep("fast", two, "runs(0, 1)", {"k"});
  QTest::qWait(20);
  press(QKeySequence(Qt::Key_Escape));
  doubleClick(0);
  EXPECT_EQ(window.selectionController()->conditions(),
            (std::vector<std::string>{"runs(0, 1)", "k = k"}));
}
