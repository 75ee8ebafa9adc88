#include "window/GesturesInWindow.h"

#include "app/window/FilterLine.h"

#include <vtkTooltipItem.h>

#include <QLineEdit>
#include <QMenu>

#include <functional>

namespace
{

using namespace Talmesh::app;
using Runs = std::set<int>;

constexpr int columnX = 0;
constexpr int columnY = 1;

/// A way to point at runs.
struct Pointing
{
  const char* name;
  Talmesh::SelectionTool tool;
  GestureRule rule;
  /// Of the drag, as x and y.
  std::vector<GesturesInWindow::Place> places;
  Runs hit;
};

const Pointing pointings[] = {
    {"click on a line",
     Talmesh::SelectionTool::Rectangle,
     GestureRule::Through,
     {{0.5, 2.148}},
     {0}},
    {"rectangle through",
     Talmesh::SelectionTool::Rectangle,
     GestureRule::Through,
     {{0.2, 2.8}, {2.8, 3.08}},
     {1, 2}},
    {"rectangle inside",
     Talmesh::SelectionTool::Rectangle,
     GestureRule::Inside,
     {{0.2, 2.8}, {2.8, 3.08}},
     {1}},
    {"lasso",
     Talmesh::SelectionTool::Lasso,
     GestureRule::Through,
     {{1.4, 2.35}, {1.6, 2.35}, {1.6, 2.7}, {1.4, 2.7}},
     {0, 2}},
    {"crossing line",
     Talmesh::SelectionTool::Line,
     GestureRule::Through,
     {{2.5, 2.1}, {2.5, 2.5}},
     {2}},
};

class PointingInWindow : public GesturesInWindow
{
protected:
  void point(const Pointing& pointing, Qt::KeyboardModifiers modifiers)
  {
    choose(pointing.tool);
    choose(pointing.rule);
    draw(pointing.places, modifiers);
  }

  /// What everybody says of the selected runs.
  void expectSelected(const Runs& expected, const std::string& where)
  {
    EXPECT_EQ(runs(), expected) << where;
    EXPECT_EQ(window.selectionText(), QString("%1 of 3 runs selected").arg(expected.size()))
        << where;
    Rows rows;
    for (const int run : expected)
      for (int point = 0; point < pointsPerRun; ++point)
        rows.insert(run * pointsPerRun + point);
    EXPECT_EQ(flags(), rows) << where;
  }
};

Runs combined(const Runs& before, const Runs& hit, Qt::KeyboardModifiers modifiers)
{
  Runs after;
  for (int run = 0; run < 3; ++run)
  {
    const bool was = before.count(run) != 0;
    const bool is = hit.count(run) != 0;
    const bool selected = modifiers == Qt::NoModifier        ? is
                          : modifiers == Qt::ControlModifier ? was || is
                          : modifiers == Qt::ShiftModifier   ? was && !is
                                                             : was != is;
    if (selected)
      after.insert(run);
  }
  return after;
}

} // namespace

TEST_F(PointingInWindow, SelectsAddsSubtractsAndTogglesRuns)
{
  const Qt::KeyboardModifiers operations[] = {Qt::NoModifier, Qt::ControlModifier,
                                              Qt::ShiftModifier,
                                              Qt::ControlModifier | Qt::ShiftModifier};
  for (const plotStyles style : {xyPlot, selectionCdfPlot})
  {
    choose(style);
    for (const Pointing& pointing : pointings)
      for (const Qt::KeyboardModifiers operation : operations)
      {
        select("runs(0, 1)");
        point(pointing, operation);
        expectSelected(combined({0, 1}, pointing.hit, operation),
                       std::string(pointing.name) + " with " + std::to_string(int(operation)));
      }
  }
}

TEST_F(PointingInWindow, IsOneStepInWordsThatDoItAgain)
{
  for (const Pointing& pointing : pointings)
  {
    select("runs(0, 1)");
    const int before = steps();
    point(pointing, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(steps(), before + 1) << pointing.name;
    const QString words = lastStep().section(": ", 1);
    const QString line = window.filterLine()->findChild<QLineEdit*>()->text();
    EXPECT_EQ(line, "(runs(0, 1)) xor (" + words + ')');
    select(words.toUtf8().constData());
    EXPECT_EQ(runs(), pointing.hit) << words.toStdString();
  }
}

TEST_F(PointingInWindow, WritesNumbersAsExactAsPixels)
{
  point(pointings[1], Qt::NoModifier);
  const QStringList numbers = lastStep().section("through(X, ", 1).chopped(1).split(", ");
  EXPECT_EQ(numbers.size(), 4) << lastStep().toStdString();
  // A tenth of some hundred pixels has four digits, beside "0.".
  for (const QString& number : numbers)
    EXPECT_LE(number.size(), 6) << lastStep().toStdString();
}

TEST_F(PointingInWindow, MeansPointsWhereNoLinesAreDrawn)
{
  PlotChoice choice = window.plotDock()->choice();
  choice.lines = false;
  window.plotDock()->setChoice(choice);
  emit window.plotDock()->choiceChanged();
  // The line of run 0 passes there between two points.
  draw({{0.4, 2.1}, {0.6, 2.2}});
  EXPECT_EQ(runs(), Runs{});
  draw({{0.9, 2.2}, {1.1, 2.4}});
  EXPECT_EQ(runs(), Runs{0});
  EXPECT_TRUE(lastStep().startsWith("Select 1 run: dot(X, ")) << lastStep().toStdString();
}

TEST_F(PointingInWindow, BesideEverythingChangesNothing)
{
  select("runs(0, 1)");
  const int before = steps();
  draw({{0.5, 2.5}});
  draw({{0.5, 2.5}}, Qt::ShiftModifier);
  expectSelected({0, 1}, "a click");
  EXPECT_EQ(steps(), before);
}

TEST_F(PointingInWindow, ReachesIntoTheAxesFromALittleBeside)
{
  vtkAxis* x = container().getChartXY()->GetAxis(vtkAxis::BOTTOM);
  vtkAxis* y = container().getChartXY()->GetAxis(vtkAxis::LEFT);
  const QPoint above = pixelOf(1.4, y->GetMaximum()) - QPoint(0, 10);
  drawPixels({above, pixelOf(1.6, 2.9)});
  EXPECT_EQ(runs(), Runs{1});
  const QPoint right = pixelOf(x->GetMaximum(), 2.1) + QPoint(10, 0);
  drawPixels({right, pixelOf(2.7, 2.4)});
  EXPECT_EQ(runs(), Runs{2});
}

TEST_F(PointingInWindow, MeansAnyOfTheItemsDrawn)
{
  PlotChoice choice = window.plotDock()->choice();
  choice.y = {columnX, columnY};
  window.plotDock()->setChoice(choice);
  emit window.plotDock()->choiceChanged();
  plot().updatePlot(true);
  // Y is the square of X: 9 at the top of run 1, where X of no run comes to.
  draw({{1.5, 8.5}, {2.5, 9.3}});
  EXPECT_EQ(runs(), Runs{1});
  EXPECT_TRUE(lastStep().contains("through(X, ")) << lastStep().toStdString();
  EXPECT_TRUE(lastStep().contains(" or through(Y, ")) << lastStep().toStdString();
}

TEST_F(PointingInWindow, MeansWhatIsDrawnOverAnotherItem)
{
  PlotChoice choice = window.plotDock()->choice();
  choice.x = columnX;
  choice.y = {columnY};
  window.plotDock()->setChoice(choice);
  emit window.plotDock()->choiceChanged();
  plot().updatePlot(true);
  // Run 0 leads from (2, 4) to (2.3, 5.3), and no other one below 2.2.
  draw({{2.1, 4.3}, {2.15, 5.0}});
  EXPECT_EQ(runs(), Runs{0});
  EXPECT_TRUE(lastStep().contains("through(Y over X, ")) << lastStep().toStdString();
}

TEST_F(PointingInWindow, FindsThePlacesOfLogarithmicAxes)
{
  PlotChoice choice = window.plotDock()->choice();
  choice.logY = true;
  window.plotDock()->setChoice(choice);
  emit window.plotDock()->choiceChanged();
  plot().updatePlot(true);
  vtkAxis* y = container().getChartXY()->GetAxis(vtkAxis::LEFT);
  ASSERT_TRUE(y->GetLogScaleActive());
  drawPixels({pixelOf(0.4, std::log10(2.1)), pixelOf(0.6, std::log10(2.2))});
  EXPECT_EQ(runs(), Runs{0});
  EXPECT_TRUE(lastStep().endsWith(", logy)")) << lastStep().toStdString();
}

TEST_F(PointingInWindow, NamesTheRunBesideTheMouse)
{
  const auto hover = [this](const QPoint& pixel)
  {
    QMouseEvent move(QEvent::MouseMove, pixel, plot().mapToGlobal(pixel), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&plot(), &move);
    return container().getChartXY()->GetTooltip();
  };
  vtkTooltipItem* tooltip = hover(pixelOfPoint(1, 2));
  EXPECT_TRUE(tooltip->GetVisible());
  EXPECT_EQ(tooltip->GetText(), "Run 1, X: 2, 2.99957") << "2 + sin(1.6)";
  tooltip = hover(pixelOf(1.5, 2.431));
  EXPECT_TRUE(tooltip->GetVisible()) << "between two points";
  EXPECT_EQ(std::string(tooltip->GetText()).substr(0, 8), "Run 0, X");
  EXPECT_FALSE(hover(pixelOf(0.5, 2.5))->GetVisible());
}

TEST_F(PointingInWindow, IsChosenInTheMenuWhichSaysWhatIsOn)
{
  GestureActions& actions = *window.gestureActions();
  EXPECT_TRUE(actions.action(Tool::Rectangle)->isChecked());
  EXPECT_TRUE(actions.action(Rule::Through)->isChecked());
  choose(Tool::Lasso);
  choose(Rule::Inside);
  EXPECT_FALSE(actions.action(Tool::Rectangle)->isChecked());
  EXPECT_TRUE(actions.action(Tool::Lasso)->isChecked());
  EXPECT_TRUE(actions.action(Rule::Inside)->isChecked());
  EXPECT_FALSE(actions.action(Rule::Through)->isChecked());
  int menus = 0;
  for (const QMenu* menu : window.findChildren<QMenu*>())
    menus += menu->actions().contains(actions.action(Rule::Inside)) ? 1 : 0;
  EXPECT_EQ(menus, 1);
  // The next window begins with it.
  MainWindow next;
  EXPECT_TRUE(next.gestureActions()->action(Rule::Inside)->isChecked());
  EXPECT_EQ(next.selectionController()->gestures().rule(), Rule::Inside);
}

TEST_F(PointingInWindow, KeepsItsToolInAnotherStudy)
{
  choose(Tool::Line);
  window.openFile(folder.filePath("runs.csv"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  choose(xyPlot);
  draw({{2.5, 2.1}, {2.5, 2.5}});
  EXPECT_EQ(runs(), Runs{2});
}

TEST_F(PointingInWindow, IsGivenUpByEscape)
{
  select("runs(0, 1)");
  choose(Tool::Lasso);
  QTest::mousePress(&plot(), Qt::RightButton, Qt::NoModifier, pixelOf(1.4, 2.35));
  for (const QPoint& pixel : {pixelOf(1.6, 2.35), pixelOf(1.6, 2.7)})
  {
    QMouseEvent move(QEvent::MouseMove, pixel, plot().mapToGlobal(pixel), Qt::NoButton,
                     Qt::RightButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&plot(), &move);
  }
  press(QKeySequence(Qt::Key_Escape));
  QTest::mouseRelease(&plot(), Qt::RightButton, Qt::NoModifier, pixelOf(1.4, 2.7));
  QCoreApplication::processEvents();
  expectSelected({0, 1}, "as before");
}

TEST_F(PointingInWindow, IsInvertedFromTheKeyboard)
{
  select("runs(0, 1)");
  press(QKeySequence("Ctrl+I"));
  expectSelected({2}, "the others");
  press(QKeySequence::Undo);
  expectSelected({0, 1}, "undone");
}
