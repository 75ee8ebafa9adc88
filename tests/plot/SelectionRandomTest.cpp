#include "external/ParameterSelection.h"
#include "plot/PlotState.h"
#include "support/SampleRuns.h"

#include <vtkAnnotation.h>
#include <vtkAnnotationLayers.h>
#include <vtkAnnotationLink.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkIntArray.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <set>
#include <vector>

namespace
{

using Rows = std::set<int>;
using Values = std::vector<double>;

/// Random data, and what is to be known of it, in nothing but standard containers.
class Scenario
{
public:
  explicit Scenario(unsigned int seed)
      : random(seed)
      , plot(randomShape())
  {
    for (int run : shape.runIndices)
    {
      runOfRow.insert(runOfRow.end(), static_cast<std::size_t>(shape.stride), run);
      for (int point = 0; point < shape.stride; ++point)
        timeOfRow.push_back(point);
    }
    rowCount = static_cast<int>(runOfRow.size());
  }

  int upTo(int largest) { return std::uniform_int_distribution<int>(0, largest)(random); }
  bool chance(int percent) { return upTo(99) < percent; }

  /// Selects rows in one of the ways that VTK knows and records which rows that names.
  void selectAtRandom()
  {
    vtkNew<vtkSelection> selection;
    selection->AddNode(randomNode(chance(20), true));
    if (chance(30))
      selection->AddNode(randomNode(false, true));
    const int annotations = upTo(2);
    for (int i = 0; i < annotations; ++i)
      annotateAtRandom();
    plot.container.getAnnotationLink()->SetCurrentSelection(selection);
  }

  /// Takes every annotation away, so that the next selection stands alone.
  void forget()
  {
    vtkAnnotationLayers* layers = plot.container.getAnnotationLink()->GetAnnotationLayers();
    for (unsigned int i = layers->GetNumberOfAnnotations(); i-- > 0;)
      layers->RemoveAnnotation(layers->GetAnnotation(i));
    selected.clear();
  }

  /// The rows that the split marks as selected in an accepted run.
  Values expectedMarks() const
  {
    Values marks;
    for (int row = 0; row < rowCount; ++row)
      marks.push_back(selected.count(row) && isAccepted(row / shape.stride));
    return marks;
  }

  Values expectedFlags() const
  {
    Values flags;
    for (int row = 0; row < rowCount; ++row)
      flags.push_back(selected.count(row));
    return flags;
  }

  std::set<int> expectedRuns() const
  {
    std::set<int> runs;
    for (const int row : selected)
      runs.insert(runOfRow[static_cast<std::size_t>(row)]);
    return runs;
  }

  /// Rows of the first and second table of the split.
  std::pair<Values, Values> expectedSplit() const
  {
    std::pair<Values, Values> split;
    for (int row = 0; row < rowCount; ++row)
    {
      if (selected.count(row) && isAccepted(row / shape.stride))
        split.first.push_back(row);
      else if (selected.count(row) || isSelectedTime(timeOfRow[static_cast<std::size_t>(row)]))
        split.second.push_back(row);
    }
    return split;
  }

  Rows expectedRowsOf(const std::set<int>& runs, int offset) const
  {
    Rows rows;
    for (int row = offset % shape.stride; row < rowCount; row += shape.stride)
    {
      if (runs.count(runOfRow[static_cast<std::size_t>(row)]))
        rows.insert(row);
    }
    return rows;
  }

  PlotContainer& container() { return plot.container; }
  const SampleRuns::Shape& tableShape() const { return shape; }

private:
  SampleRuns::Shape randomShape()
  {
    shape.runIndices.clear();
    int run = upTo(3) - 2;
    for (int count = upTo(6); count >= 0; --count)
      shape.runIndices.push_back(run += 1 + upTo(2));
    shape.stride = 1 + upTo(5);
    shape.parameters = 1 + upTo(2);
    return shape;
  }

  vtkSmartPointer<vtkSelectionNode> randomNode(bool inverse, bool counts)
  {
    Rows listed;
    vtkNew<vtkIdTypeArray> list;
    for (int i = upTo(rowCount / 2); i > 0; --i)
    {
      // A few rows lie beyond either end of the table.
      const int row = upTo(rowCount + 4) - 2;
      list->InsertNextValue(row);
      listed.insert(row);
    }
    for (int row = 0; counts && row < rowCount; ++row)
    {
      if ((listed.count(row) != 0) != inverse)
        selected.insert(row);
    }
    auto node = vtkSmartPointer<vtkSelectionNode>::New();
    node->SetFieldType(vtkSelectionNode::ROW);
    node->SetContentType(vtkSelectionNode::INDICES);
    node->SetSelectionList(list);
    if (inverse || chance(20))
      node->GetProperties()->Set(vtkSelectionNode::INVERSE(), inverse ? 1 : 0);
    return node;
  }

  void annotateAtRandom()
  {
    vtkNew<vtkAnnotation> annotation;
    const int enable = upTo(2) - 1;
    const int hide = upTo(2) - 1;
    if (enable >= 0)
      annotation->GetInformation()->Set(vtkAnnotation::ENABLE(), enable);
    if (hide >= 0)
      annotation->GetInformation()->Set(vtkAnnotation::HIDE(), hide);
    const bool contributes = enable != 0 && !(enable == 1 && hide == 1);
    const bool hasSelection = chance(90);
    vtkNew<vtkSelection> annotated;
    annotated->AddNode(randomNode(false, contributes && hasSelection));
    annotation->SetSelection(hasSelection ? annotated.Get() : nullptr);
    plot.container.getAnnotationLink()->GetAnnotationLayers()->AddAnnotation(annotation);
  }

  bool isSelectedTime(int time) const
  {
    return std::any_of(selected.begin(), selected.end(),
                       [&](int row) { return timeOfRow[static_cast<std::size_t>(row)] == time; });
  }

  bool isAccepted(int run) const
  {
    for (int point = 0; point < shape.stride; ++point)
    {
      if (isSelectedTime(point) && !selected.count(run * shape.stride + point))
        return false;
    }
    return true;
  }

  std::mt19937 random;
  SampleRuns::Shape shape;
  SampleRuns::Plot plot;
  int rowCount = 0;
  std::vector<int> runOfRow;
  std::vector<int> timeOfRow;
  Rows selected;
};

/// Table rows from the values of "Complex: A", which are 10 run + point.
Values rowsIn(vtkTable* table, int stride)
{
  Values rows;
  for (const double value : SampleRuns::valuesOf(table, "Complex: A"))
  {
    const int number = static_cast<int>(value);
    rows.push_back(number / 10 * stride + number % 10);
  }
  return rows;
}

void expectTheSplit(Scenario& scenario)
{
  const auto [first, second] = scenario.expectedSplit();
  const auto& tables = scenario.container().getDerivedTables();
  if (first.empty())
  {
    EXPECT_EQ(tables.size(), 2U);
    return;
  }
  ASSERT_EQ(tables.size(), 8U);
  EXPECT_EQ(rowsIn(tables[2], scenario.tableShape().stride), first);
  EXPECT_EQ(rowsIn(tables[5], scenario.tableShape().stride), second);
}

void expectTheRuns(Scenario& scenario, const std::set<int>& runs)
{
  const std::unique_ptr<ParameterSelection> selection(scenario.container().getSelection());
  ASSERT_NE(selection, nullptr);
  EXPECT_EQ(selection->runs, runs);
}

void expectTheRowsOfChosenRuns(Scenario& scenario)
{
  ParameterSelection chosen;
  for (int run = -3; run < 25; ++run)
  {
    if (scenario.chance(30))
      chosen.runs.insert(run);
  }
  const int offset = scenario.upTo(12);
  scenario.container().setSelection(&chosen, offset);
  const auto rows = SampleRuns::selectedRows(scenario.container());
  EXPECT_EQ(Rows(rows.begin(), rows.end()), scenario.expectedRowsOf(chosen.runs, offset));
}

} // namespace

TEST(RandomSelections, AgreeWithAnIndependentReading)
{
  for (unsigned int seed = 0; seed < 1000; ++seed)
  {
    SCOPED_TRACE(seed);
    Scenario scenario(seed);
    scenario.selectAtRandom();
    const auto flags = vtk::TakeSmartPointer(scenario.container().getCurrentSelection());
    EXPECT_EQ(SampleRuns::valuesOf(flags), scenario.expectedFlags());
    expectTheRuns(scenario, scenario.expectedRuns());
    expectTheSplit(scenario);
    expectTheRowsOfChosenRuns(scenario);
    if (HasFailure())
      return;
  }
}

TEST(RandomSelections, AgreeWithAnIndependentReadingOneAfterAnother)
{
  for (unsigned int seed = 2000; seed < 2200; ++seed)
  {
    Scenario scenario(seed);
    for (int step = 0; step < 8; ++step)
    {
      SCOPED_TRACE(::testing::Message() << "seed " << seed << ", step " << step);
      scenario.forget();
      scenario.selectAtRandom();
      const auto flags = vtk::TakeSmartPointer(scenario.container().getCurrentSelection());
      EXPECT_EQ(SampleRuns::valuesOf(flags), scenario.expectedFlags());
      expectTheRuns(scenario, scenario.expectedRuns());
      expectTheSplit(scenario);
      // Before the first selection that names a row there are no marks.
      const Values marks =
          SampleRuns::valuesOf(scenario.container().getTable(), "vtkRemainderSelection");
      if (!marks.empty() || !scenario.expectedRuns().empty())
      {
        EXPECT_EQ(marks, scenario.expectedMarks());
      }
      // Some selections come from the list of runs, not from the chart.
      if (scenario.chance(30))
        expectTheRowsOfChosenRuns(scenario);
      if (HasFailure())
        return;
    }
  }
}
