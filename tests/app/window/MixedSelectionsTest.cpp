#include "app/session/RunSelectionFile.h"
#include "app/window/FilterLine.h"
#include "app/window/RunTableView.h"
#include "support/DrawnStyles.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTreeWidget>

#include <random>

#include "window/GesturesInWindow.h"

namespace
{

using namespace Talmesh::app;
using Runs = std::set<int>;

constexpr int mixedRuns = 10;
constexpr int points = 6;
constexpr int operations = 120;

/// Ways to select, one after the other and in any order: the mouse in charts, the table of runs,
/// the line of conditions, kept selections and the keyboard. What each of them means is known.
class MixedSelections : public GesturesInWindow
{
protected:
  MixedSelections()
  {
    QFile file(folder.filePath("many.csv"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(sampleRuns(mixedRuns, points)));
    file.close();
    window.openFile(file.fileName());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
    press(QKeySequence(Qt::Key_F6));
    keep("run > 6", "late");
    keep("runs(1, 4)", "two");
    press(QKeySequence(Qt::Key_F7));
    select("run = 0");
    QTest::qWait(20);
    states = {{0}};
    first = steps();
  }

  void keep(const char* words, const char* name)
  {
    select(words);
    press(QKeySequence("Ctrl+K"));
    QTest::qWait(20);
    for (QLineEdit* edit : tree().findChildren<QLineEdit*>())
      if (edit->isVisible())
      {
        QTest::keyClicks(edit, QString::fromUtf8(name));
        QTest::keyClick(edit, Qt::Key_Return);
      }
    QTest::qWait(50);
  }

  QTreeWidget& tree() { return *window.findChild<QTreeWidget*>("keptSelections"); }
  RunTableView& table() { return *window.findChild<RunTableView*>("runTable"); }

  int below(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }

  /// Of the four, which are those of the keys and of the line.
  static Runs combined(const Runs& before, const Runs& hit, int how)
  {
    Runs after;
    for (int run = 0; run < mixedRuns; ++run)
    {
      const bool was = before.count(run) != 0;
      const bool is = hit.count(run) != 0;
      if (how == 0 ? is : how == 1 ? was || is : how == 2 ? was && !is : was != is)
        after.insert(run);
    }
    return after;
  }

  static Qt::KeyboardModifiers keysOf(int how)
  {
    return (how == 1 || how == 3 ? Qt::ControlModifier : Qt::NoModifier) |
           (how == 2 || how == 3 ? Qt::ShiftModifier : Qt::NoModifier);
  }

  void expect(const Runs& after)
  {
    if (after == states[current])
      return;
    states.resize(current + 1);
    states.push_back(after);
    ++current;
  }

  void typeCondition()
  {
    const int from = below(mixedRuns);
    const int how = below(4);
    QComboBox& box = *window.filterLine()->findChild<QComboBox*>();
    QTest::keyClick(&box, Qt::Key_Home);
    for (int i = 0; i < how; ++i)
      QTest::keyClick(&box, Qt::Key_Down);
    QLineEdit& edit = *window.filterLine()->findChild<QLineEdit*>();
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&edit, QString("run >= %1 and run < %2").arg(from).arg(from + 3));
    QTest::keyClick(&edit, Qt::Key_Return);
    Runs hit;
    for (int run = from; run < std::min(from + 3, mixedRuns); ++run)
      hit.insert(run);
    expect(combined(states[current], hit, how));
  }

  /// Around the first point of a run, where no other line is.
  void dragRectangle()
  {
    choose(xyPlot);
    const int run = below(mixedRuns);
    const int how = below(4);
    const double height = 2.0 + std::sin(run);
    drawPixels({pixelOf(0, height + 0.025), pixelOf(0.05, height - 0.025)}, keysOf(how));
    expect(combined(states[current], {run}, how));
  }

  void brushAxis()
  {
    choose(parallelCoordinates);
    const int run = 1 + below(mixedRuns - 2);
    const int how = below(4);
    vtkAxis* axis = vtkChartParallelCoordinates::SafeDownCast(container().getItem())->GetAxis(0);
    const auto pixel = [&](double k)
    {
      const double part = (k - axis->GetMinimum()) / (axis->GetMaximum() - axis->GetMinimum());
      const double y = axis->GetPoint1()[1] + part * (axis->GetPoint2()[1] - axis->GetPoint1()[1]);
      return QPoint(qRound(axis->GetPoint1()[0]), plot().height() - 1 - qRound(y));
    };
    drawPixels({pixel(run + 0.2), pixel(run + 0.8)}, keysOf(how));
    expect(combined(states[current], {run}, how));
  }

  void clickTable()
  {
    const int run = below(mixedRuns);
    const bool toggles = below(2) == 1;
    const QModelIndex index = table().model()->index(run, 0);
    table().scrollTo(index);
    QTest::mouseClick(table().viewport(), Qt::LeftButton,
                      toggles ? Qt::ControlModifier : Qt::NoModifier,
                      table().visualRect(index).center());
    QTest::qWait(30);
    expect(combined(states[current], {run}, toggles ? 3 : 0));
  }

  void clickKept()
  {
    const int row = below(2);
    const QPoint place = tree().visualItemRect(tree().topLevelItem(row)).center();
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::qWait(20);
    expect(row == 0 ? Runs{7, 8, 9} : Runs{1, 4});
  }

  void useKeys()
  {
    plot().setFocus();
    const int key = below(4);
    if (key == 0)
    {
      press(QKeySequence("Ctrl+I"));
      expect(combined(all(), states[current], 2));
    }
    else if (key == 1)
    {
      press(QKeySequence::SelectAll);
      expect(all());
    }
    else if (key == 2 && current > 0)
    {
      press(QKeySequence::Undo);
      --current;
    }
    else if (current + 1 < states.size())
    {
      press(QKeySequence::Redo);
      ++current;
    }
  }

  static Runs all()
  {
    Runs runs;
    for (int run = 0; run < mixedRuns; ++run)
      runs.insert(run);
    return runs;
  }

  const char* doSomething()
  {
    switch (below(7))
    {
    case 0:
      return typeCondition(), "condition";
    case 1:
      return dragRectangle(), "rectangle";
    case 2:
      return brushAxis(), "brush";
    case 3:
      return clickTable(), "table of runs";
    case 4:
      return clickKept(), "kept selection";
    default:
      return useKeys(), "keys";
    }
  }

  /// What everybody says in the style that is shown.
  void expectEverybody(const Runs& expected)
  {
    Rows rows;
    for (const int run : expected)
      for (int point = 0; point < points; ++point)
        rows.insert(run * points + point);
    EXPECT_EQ(runs(), expected);
    EXPECT_EQ(flags(), rows);
    EXPECT_EQ(window.selectionText(),
              QString("%1 of %2 runs selected").arg(expected.size()).arg(mixedRuns));
    Runs marked;
    for (const QModelIndex& index : table().selectionModel()->selectedRows())
      marked.insert(index.data().toInt());
    EXPECT_EQ(marked, expected);
  }

  std::mt19937 random{15};
  std::vector<Runs> states;
  std::size_t current = 0;
  int first = 0;
};

} // namespace

TEST_F(MixedSelections, AreTheSameForEverybodyAndUndoneInTheirOrder)
{
  for (int i = 0; i < operations; ++i)
  {
    const char* done = doSomething();
    QCoreApplication::processEvents();
    SCOPED_TRACE(testing::Message() << i << ": " << done);
    expectEverybody(states[current]);
    EXPECT_EQ(steps() - first, static_cast<int>(current));
    if (i % 15 == 0)
      for (const plotStyles style : drawnStyles)
      {
        choose(style);
        expectEverybody(states[current]);
        const QString path = folder.filePath("selected.json");
        EXPECT_EQ(window.selectionController()->save(path), "") << style;
        EXPECT_EQ(loadRunSelection(path).value().runs, states[current]) << style;
      }
    ASSERT_FALSE(HasFailure());
  }
  EXPECT_GT(states.size(), 20U);
}

TEST_F(MixedSelections, ComeBackWithTheSessionInAnotherWindow)
{
  for (int i = 0; i < 10; ++i)
    doSomething();
  select("run = 2 or k > 8");
  press(QKeySequence("Ctrl+I"));
  const Runs expected = runs();
  const QString words = QString::fromStdString(window.selectionController()->words());
  EXPECT_EQ(words, "not (run = 2 or k > 8)");
  ASSERT_TRUE(window.saveSessionTo(folder.filePath("a.talmesh")));
  MainWindow other;
  other.show();
  other.openFile(folder.filePath("a.talmesh"));
  ASSERT_TRUE(QTest::qWaitFor([&other] { return !other.isLoading(); }, patience));
  const std::unique_ptr<ParameterSelection> selected(
      other.plotWidget()->plotContainer()->getSelection());
  EXPECT_EQ(selected->runs, expected);
  EXPECT_EQ(other.selectionText(), "7 of 10 runs selected");
  EXPECT_EQ(QString::fromStdString(other.selectionController()->words()), words);
  const auto& kept = other.document().kept().list();
  ASSERT_EQ(kept.size(), 2U);
  EXPECT_EQ(kept[0].name, "late");
  EXPECT_EQ(kept[1].words, "runs(1, 4)");
}
