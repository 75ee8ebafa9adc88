#include "app/window/FilterLine.h"
#include "app/window/StepsDock.h"

#include <QAction>
#include <QClipboard>
#include <QDockWidget>
#include <QLineEdit>
#include <QToolButton>
#include <QUndoView>

#include "window/SelectionInWindow.h"

using namespace Talmesh::app;

namespace
{

/// The window with the panel of steps, reached by mouse and keys.
class StepsInWindow : public SelectionInWindow
{
protected:
  StepsInWindow()
  {
    press(QKeySequence(Qt::Key_F5));
    QTest::qWait(20);
  }

  QUndoView& steps() { return *window.findChild<QUndoView*>("steps"); }

  void type(const QString& words)
  {
    auto& edit = *window.filterLine()->findChild<QLineEdit*>();
    edit.clear();
    QTest::keyClicks(&edit, words);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::qWait(20);
  }

  void clickStep(int row)
  {
    const QModelIndex index = steps().model()->index(row, 0);
    QTest::mouseClick(steps().viewport(), Qt::LeftButton, Qt::NoModifier,
                      steps().visualRect(index).center());
    QTest::qWait(20);
  }

  QToolButton* button(const char* action)
  {
    for (QToolButton* button : window.findChildren<QToolButton*>())
      if (button->defaultAction() && button->defaultAction()->objectName() == QLatin1String(action))
        return button;
    return nullptr;
  }

  QString textOfStep(int row) { return steps().model()->index(row, 0).data().toString(); }
};

} // namespace

TEST_F(StepsInWindow, AreListedInWordsAndReturnedToByAClick)
{
  type("run > 0");
  type("run = 1");
  ASSERT_EQ(steps().model()->rowCount(), 3);
  EXPECT_EQ(textOfStep(0), "As opened");
  EXPECT_EQ(textOfStep(1), "Select 2 runs: run > 0");
  EXPECT_EQ(textOfStep(2), "Select 1 run: run = 1");
  clickStep(1);
  EXPECT_EQ(runs(), (Runs{1, 2}));
  clickStep(0);
  EXPECT_EQ(runs(), Runs{});
  clickStep(2);
  EXPECT_EQ(runs(), Runs{1});
}

TEST_F(StepsInWindow, AreCopiedAsFarAsTheyWent)
{
  EXPECT_FALSE(button("copySteps")->isEnabled());
  type("run > 0");
  type("k < 2 and run = 1");
  QTest::mouseClick(button("copySteps"), Qt::LeftButton);
  EXPECT_EQ(QApplication::clipboard()->text(), "1. Select 2 runs: run > 0\n"
                                               "2. Select 1 run: k < 2 and run = 1\n"
                                               "1 of 3 runs selected\n");
  clickStep(1);
  QTest::mouseClick(button("copySteps"), Qt::LeftButton);
  EXPECT_EQ(QApplication::clipboard()->text(), "1. Select 2 runs: run > 0\n2 of 3 runs selected\n");
}

TEST_F(StepsInWindow, AreCopiedWithWhatWasSelectedAtFirst)
{
  OpeningWishes wishes;
  wishes.file = folder.filePath("runs.csv").toStdString();
  wishes.select = {"run = 2"};
  window.open(wishes);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  QTest::qWait(20);
  EXPECT_EQ(textOfStep(0), "As opened: run = 2");
  QTest::mouseClick(button("copySteps"), Qt::LeftButton);
  EXPECT_EQ(QApplication::clipboard()->text(), "As opened: run = 2\n1 of 3 runs selected\n");
}

TEST_F(StepsInWindow, SayThatOthersWentBeforeThoseThatAreKnown)
{
  const int known = window.selectionController()->undoStack().undoLimit();
  for (int i = 0; i <= known; ++i)
    type(i % 2 == 0 ? "run = 1" : "run = 2");
  QTest::mouseClick(button("copySteps"), Qt::LeftButton);
  EXPECT_EQ(QApplication::clipboard()->text().split('\n').value(0), "As opened");
  EXPECT_EQ(QApplication::clipboard()->text().split('\n').value(2), "2. Select 1 run: run = 2");
}

TEST_F(StepsInWindow, GiveTheConditionOfTheSelectionToOtherProgramsAndToTheLine)
{
  EXPECT_FALSE(button("copyCondition")->isEnabled());
  type("run > 0");
  ASSERT_EQ(window.selectionController()->selectWhere("run = 2", RunCombination::Subtract).text,
            "");
  QTest::qWait(20);
  QTest::mouseClick(button("copyCondition"), Qt::LeftButton);
  EXPECT_EQ(QApplication::clipboard()->text(), "(run > 0) and not (run = 2)");
  auto& edit = *window.filterLine()->findChild<QLineEdit*>();
  edit.clear();
  QTest::mouseClick(button("reuseCondition"), Qt::LeftButton);
  EXPECT_EQ(edit.text(), "(run > 0) and not (run = 2)");
  press(QKeySequence(Qt::Key_Escape));
  EXPECT_FALSE(button("copyCondition")->isEnabled());
  QTest::keyClick(&edit, Qt::Key_Return);
  EXPECT_EQ(runs(), Runs{1});
}
