#include "app/document/GestureSelection.h"
#include "app/document/TableRuns.h"
#include "app/session/RunSelectionFile.h"
#include "app/window/RunTableDock.h"
#include "app/window/RunTableModel.h"
#include "app/window/RunTableView.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "support/DrawnStyles.h"

#include <vtkScatterPlotMatrix.h>

#include <random>

#include "window/GesturesInWindow.h"

namespace
{

using namespace Talmesh::app;
using Runs = std::set<int>;

constexpr int gestureCount = 200;
constexpr int manyRuns = 10;
constexpr int manyPoints = 6;
constexpr plotStyles charts[] = {xyPlot, selectionCdfPlot, multiPlot, scatterWithErrorBars,
                                 scatterPlotMatrix};

Runs numbered(const std::vector<bool>& runs)
{
  Runs numbers;
  for (std::size_t run = 0; run < runs.size(); ++run)
    if (runs[run])
      numbers.insert(static_cast<int>(run));
  return numbers;
}

/// Gestures of all kinds in the charts of several styles.
class RandomGestures : public GesturesInWindow
{
protected:
  RandomGestures()
  {
    QFile file(folder.filePath("many.csv"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(sampleRuns(manyRuns, manyPoints)));
    file.close();
    window.openFile(file.fileName());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
    auto& take = stateOf(container()).gestures->select;
    take = [this, selects = take](const Talmesh::SelectionGesture& gesture)
    {
      const RunGestures& gestures = window.selectionController()->gestures();
      words = meantByGesture(container(), TableRuns(container()), gesture, gestures.rule())->words;
      return selects(gesture);
    };
    press(QKeySequence(Qt::Key_F7));
    const auto isThere = [this] { return table().isComplete(); };
    EXPECT_TRUE(QTest::qWaitFor(isThere, patience));
  }

  int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(random); }

  vtkChart* chart()
  {
    if (container().getMetaData()->getPlotStyle() == scatterPlotMatrix)
      return stateOf(container()).scatterPlotMatrix->GetMainChart();
    return container().getChartXY();
  }

  QPoint pixelIn(vtkChart* where)
  {
    const int x = where->GetPoint1()[0] + upTo(where->GetPoint2()[0] - where->GetPoint1()[0] - 1);
    const int y = where->GetPoint1()[1] + upTo(where->GetPoint2()[1] - where->GetPoint1()[1] - 1);
    return pixelOfScene(plot(), x, y);
  }

  Qt::KeyboardModifiers anyModifiers()
  {
    return (upTo(1) ? Qt::ControlModifier : Qt::NoModifier) |
           (upTo(1) ? Qt::ShiftModifier : Qt::NoModifier);
  }

  /// @return how the gesture combines
  Qt::KeyboardModifiers pointSomewhere()
  {
    choose(charts[upTo(4)]);
    const Tool tool = static_cast<Tool>(upTo(2));
    choose(tool);
    choose(upTo(1) ? Rule::Through : Rule::Inside);
    std::vector<QPoint> pixels;
    const int more = tool == Tool::Lasso ? 5 : upTo(7) == 0 ? 0 : 1;
    for (int i = 0; i <= more; ++i)
      pixels.push_back(pixelIn(chart()));
    const Qt::KeyboardModifiers modifiers = anyModifiers();
    drawPixels(pixels, modifiers);
    return modifiers;
  }

  RunTableDock& table() { return *window.findChild<RunTableDock*>("runTableDock"); }

  std::vector<bool> runsWhere(const std::string& condition)
  {
    FilterFault fault;
    const TableRuns runs(container());
    const RunFilter filter = RunFilter::read(condition, runs, fault);
    EXPECT_EQ(fault.text, "") << condition;
    return filter.select(runs, {}).value();
  }

  /// The runs whose rows are marked in the table of runs.
  Runs markedInTable()
  {
    const auto& view = *table().findChild<RunTableView*>();
    const auto& model = static_cast<const RunTableModel&>(*view.model());
    Runs marked;
    for (const QModelIndex& index : view.selectionModel()->selectedRows())
      marked.insert(static_cast<int>(model.runOf(index.row())));
    return marked;
  }

  Runs selectedInFile()
  {
    const QString path = folder.filePath("selected.json");
    EXPECT_EQ(window.selectionController()->save(path), "");
    return loadRunSelection(path).value().runs;
  }

  /// All that says which runs are selected, but for the charts of other styles.
  void expectToldAlike(const Runs& expected)
  {
    Rows rows;
    for (const int run : expected)
      for (int point = 0; point < manyPoints; ++point)
        rows.insert(run * manyPoints + point);
    EXPECT_EQ(runs(), expected);
    EXPECT_EQ(flags(), rows);
    EXPECT_EQ(window.selectionText(),
              QString("%1 of %2 runs selected").arg(expected.size()).arg(manyRuns));
    EXPECT_EQ(markedInTable(), expected);
    EXPECT_EQ(selectedInFile(), expected);
    const std::string condition = window.selectionController()->words();
    EXPECT_EQ(condition.empty(), expected.empty());
    EXPECT_EQ(condition.empty() ? expected : numbered(runsWhere(condition)), expected) << condition;
  }

  /// The same with each style's own charts.
  void expectEverywhere(const Runs& expected)
  {
    for (const plotStyles style : drawnStyles)
    {
      choose(style);
      expectToldAlike(expected);
    }
    // A line is a run.
    EXPECT_EQ(highlightedLines(), Rows(expected.begin(), expected.end()));
  }

  std::mt19937 random{20261122};
  std::string words; ///< of the last gesture
};

RunCombination combinationOf(Qt::KeyboardModifiers modifiers)
{
  if (modifiers == (Qt::ControlModifier | Qt::ShiftModifier))
    return RunCombination::Toggle;
  if (modifiers == Qt::ControlModifier)
    return RunCombination::Add;
  return modifiers == Qt::ShiftModifier ? RunCombination::Subtract : RunCombination::Replace;
}

} // namespace

TEST_F(RandomGestures, SelectTheSameRunsForEverybody)
{
  std::vector<bool> expected(manyRuns, false);
  int hits = 0;
  for (int i = 0; i < gestureCount; ++i)
  {
    words.clear();
    const RunCombination how = combinationOf(pointSomewhere());
    // A click beside everything says nothing.
    if (!words.empty())
      expected = combineRuns(expected, runsWhere(words), how);
    hits += words.empty() ? 0 : 1;
    expectToldAlike(numbered(expected));
    expectEverywhere(numbered(expected));
    if (HasFailure())
      FAIL() << "gesture " << i << ' ' << words;
  }
  EXPECT_GT(hits, gestureCount / 2);
}

/// The lines as many points.
TEST_F(RandomGestures, HitTheLinesThatARectangleIsDrawnOver)
{
  choose(xyPlot);
  int inside = 0;
  for (int i = 0; i < 60; ++i)
  {
    const QPoint from = pixelIn(chart());
    const QPoint to = from + QPoint(5 + upTo(20), 5 + upTo(20));
    drawPixels({from, to});
    for (int run = 0; run < manyRuns; ++run)
    {
      bool surely = false;
      bool perhaps = false;
      for (int step = 0; step <= 1000 * (manyPoints - 1); ++step)
      {
        const int point = std::min(step / 1000, manyPoints - 2);
        const double part = step / 1000.0 - point;
        const auto value = [&](int at) { return 2.0 + std::sin(at * 0.3 + run); };
        const QPoint pixel =
            pixelOf(point + part, value(point) + part * (value(point + 1) - value(point)));
        const auto isWithin = [&](int margin)
        {
          return pixel.x() >= from.x() - margin && pixel.x() <= to.x() + margin &&
                 pixel.y() >= from.y() - margin && pixel.y() <= to.y() + margin;
        };
        surely = surely || isWithin(-1);
        perhaps = perhaps || isWithin(1);
      }
      const bool selected = runs().count(run) != 0;
      EXPECT_TRUE(selected || !surely) << i << ' ' << lastStep().toStdString() << ' ' << run;
      EXPECT_TRUE(perhaps || !selected) << i << ' ' << lastStep().toStdString() << ' ' << run;
      inside += surely ? 1 : 0;
    }
  }
  EXPECT_GT(inside, 30);
}
