#include "app/document/GestureSelection.h"

#include "app/document/DocumentScene.h"
#include "app/document/TableRuns.h"

#include <gtest/gtest.h>

using namespace Talmesh::app;
using Talmesh::SelectionGesture;

namespace
{

using Kind = SelectionGesture::Kind;
using Runs = std::set<int>;

/// Gestures in charts that draw the six runs in other ways than as lines over time.
class GesturesInCharts : public DocumentScene
{
protected:
  GesturesInCharts() { EXPECT_EQ(open(), ""); }

  SelectionGesture gestureIn(vtkTable* table, const char* x, const char* y, Kind kind,
                             std::vector<SelectionGesture::Point> points)
  {
    SelectionGesture gesture;
    gesture.kind = kind;
    gesture.points = std::move(points);
    gesture.unitsX = 0.01;
    gesture.unitsY = 0.01;
    gesture.table = table;
    gesture.series = {{x, y, false}};
    return gesture;
  }

  std::optional<std::string> wordsOf(const SelectionGesture& gesture,
                                     GestureRule rule = GestureRule::Through)
  {
    const auto meant = meantByGesture(container(), TableRuns(container()), gesture, rule);
    return meant ? std::optional<std::string>(meant->words) : std::nullopt;
  }

  std::optional<std::string> beside(const SelectionGesture& gesture)
  {
    return nearestRun(container(), TableRuns(container()), gesture);
  }

  Runs selectedBy(const std::string& words)
  {
    EXPECT_EQ(document.selection().selectWhere(words, RunCombination::Replace).text, "");
    QCoreApplication::processEvents();
    return selectedRuns();
  }

  /// A row per run: k is 1 to 6, the largest X, as any program may call it, 8, 16, ... 48.
  static vtkSmartPointer<vtkTable> pointPerRun(const char* second)
  {
    auto table = vtkSmartPointer<vtkTable>::New();
    table->AddColumn(Talmesh::plot::makeColumn("k", {1, 2, 3, 4, 5, 6}));
    table->AddColumn(Talmesh::plot::makeColumn(second, {8, 16, 24, 32, 40, 48}));
    return table;
  }
};

} // namespace

TEST_F(GesturesInCharts, AreAboutOneParameterOverAnother)
{
  vtkTable* table = container().getTable();
  const std::string k = table->GetColumnName(4);
  const std::string m = table->GetColumnName(5);
  const auto words =
      wordsOf(gestureIn(table, k.c_str(), m.c_str(), Kind::Rectangle, {{1.5, 5.5}, {3.5, 6.5}}));
  ASSERT_TRUE(words);
  EXPECT_EQ(*words, "dot(m over k, 1.5, 3.5, 5.5, 6.5)");
  EXPECT_EQ(selectedBy(*words), Runs{1}) << "m is 1, 6, 5, ... of runs 0, 1, 2, ...";
}

TEST_F(GesturesInCharts, CoverNoTimesUnlessTheyAreRectangles)
{
  vtkTable* table = container().getTable();
  const std::string time = table->GetColumnName(2);
  const std::string x = table->GetColumnName(0);
  const auto gesture =
      gestureIn(table, time.c_str(), x.c_str(), Kind::Lasso, {{0.5, 0}, {1.5, 0}, {1, 9}});
  EXPECT_EQ(wordsOf(gesture, GestureRule::Inside)->substr(0, 9), "dotlasso(");
  auto rectangle = gesture;
  rectangle.kind = Kind::Rectangle;
  rectangle.points.resize(2);
  EXPECT_EQ(wordsOf(rectangle, GestureRule::Inside)->substr(0, 7), "inside(");
}

TEST_F(GesturesInCharts, AreComparisonsWhereEachRunIsAPoint)
{
  const auto table = pointPerRun("max(X)");
  const auto words =
      wordsOf(gestureIn(table, "k", "max(X)", Kind::Rectangle, {{3.5, 20}, {1.5, 50}}));
  ASSERT_TRUE(words);
  EXPECT_EQ(*words, "k >= 1.5 and k <= 3.5 and max(X) >= 20 and max(X) <= 50");
  EXPECT_EQ(selectedBy(*words), Runs{2});
}

TEST_F(GesturesInCharts, AreNumbersOfRunsWhereNoWordsSayMore)
{
  const auto table = pointPerRun("height");
  const auto rectangle = gestureIn(table, "k", "height", Kind::Rectangle, {{1.5, 0}, {3.5, 50}});
  EXPECT_EQ(wordsOf(rectangle), "runs(1, 2)");
  const auto lasso =
      gestureIn(table, "k", "height", Kind::Lasso, {{4.5, 30}, {6.5, 30}, {6.5, 60}, {4.5, 60}});
  EXPECT_EQ(wordsOf(lasso), "runs(4, 5)");
  EXPECT_EQ(wordsOf(gestureIn(table, "k", "height", Kind::Line, {{0, 0}, {9, 60}})), "none")
      << "there is nothing to cross";
  EXPECT_EQ(wordsOf(gestureIn(table, "k", "height", Kind::Rectangle, {{1.2, 0}, {1.8, 50}})),
            "none");
  EXPECT_EQ(wordsOf(gestureIn(table, "k", "height", Kind::Rectangle, {{0, 0}, {9, 50}})), "all");
  EXPECT_EQ(wordsOf(gestureIn(table, "k", "height", Kind::Click, {{4.03, 32.03}})), "runs(3)");
  EXPECT_EQ(wordsOf(gestureIn(table, "k", "height", Kind::Click, {{4.3, 32}})), "");
  EXPECT_EQ(beside(gestureIn(table, "k", "height", Kind::Click, {{4.03, 32.03}})),
            "Run 3, height: 4, 32");
}

TEST_F(GesturesInCharts, AreNotTakenWhereTheyMeanNoRuns)
{
  const auto table = pointPerRun("max(X)");
  EXPECT_FALSE(wordsOf(gestureIn(table, "k", "nothing", Kind::Click, {{4, 32}})));
  table->InsertNextBlankRow();
  EXPECT_FALSE(wordsOf(gestureIn(table, "k", "max(X)", Kind::Click, {{4, 32}})));
  EXPECT_FALSE(beside(gestureIn(table, "k", "max(X)", Kind::Click, {{4, 32}})));
  ASSERT_EQ(open("a,b\n1,2\n3,4\n"), "");
  EXPECT_FALSE(wordsOf(gestureIn(container().getTable(), "a", "b", Kind::Click, {{1, 2}})));
}

TEST_F(GesturesInCharts, ReachAsManyPixelsAsTheyAreTold)
{
  // Ten pixels of the scene beside a point of either chart: time 3 of run 2, and k of run 2.
  vtkTable* table = container().getTable();
  const auto line = gestureIn(table, table->GetColumnName(2), table->GetColumnName(0), Kind::Click,
                              {{3.1, value(0, 2 * 8 + 3)}});
  const auto points = pointPerRun("max(X)");
  const auto point = gestureIn(points, "k", "max(X)", Kind::Click, {{3.1, 24}});
  for (const SelectionGesture& click : {line, point})
  {
    const TableRuns runs(container());
    const auto rule = GestureRule::Through;
    EXPECT_EQ(meantByGesture(container(), runs, click, rule)->words, "");
    EXPECT_EQ(meantByGesture(container(), runs, click, rule, 2 * pointingReach)->words, "runs(2)");
    EXPECT_EQ(nearestRun(container(), runs, click), "");
    EXPECT_EQ(nearestRun(container(), runs, click, 2 * pointingReach)->rfind("Run 2", 0), 0U);
  }
}
