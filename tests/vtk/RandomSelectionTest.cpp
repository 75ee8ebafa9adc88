#include "vtk/vtkCombinedFilterAndSelectedRows.h"
#include "vtk/vtkCombinedFilterOrSelectedRows.h"

#include <vtkDoubleArray.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <set>

#include "SelectionBuilders.h"
#include "VtkTestSupport.h"

/// Both row filters against plain quadratic loops over random tables and selections.
namespace
{
using Rows = std::vector<vtkIdType>;

struct RandomCase
{
  std::vector<double> times;
  vtkIdType stride = 1;
  vtkSmartPointer<vtkTable> table;
  vtkSmartPointer<vtkSelection> selection;     // may be null
  vtkSmartPointer<vtkAnnotationLayers> layers; // may be null
  Rows listed;                                 // rows of a lone plain node, in list order
  bool loneNode = false;
  std::set<vtkIdType> selected;
  bool anySource = false;
};

class Generator
{
public:
  explicit Generator(unsigned int seed)
      : engine(seed)
  {
  }

  int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); }
  bool oneIn(int n) { return number(1, n) == 1; }

  // Some ids lie outside the table, some repeat.
  Rows ids(vtkIdType rowCount)
  {
    Rows ids;
    const int count = number(0, 12);
    for (int i = 0; i < count; ++i)
      ids.push_back(oneIn(10) ? number(-3, 80)
                              : number(0, std::max<int>(0, static_cast<int>(rowCount) - 1)));
    return ids;
  }

private:
  std::mt19937 engine;
};

void addNode(RandomCase& random, vtkSelection* selection, const Rows& ids, bool inverse)
{
  selection->AddNode(makeRowNode(ids, inverse));
  const std::set<vtkIdType> named(ids.begin(), ids.end());
  for (vtkIdType row = 0; row < static_cast<vtkIdType>(random.times.size()); ++row)
  {
    if ((named.count(row) != 0) != inverse)
      random.selected.insert(row);
  }
}

RandomCase makeCase(unsigned int seed)
{
  Generator generator(seed);
  RandomCase random;
  random.stride = generator.number(1, 6);
  const int runs = generator.number(0, 8);
  const int rowCount = static_cast<int>(random.stride) * runs + generator.number(0, 2);
  Rows rows;
  for (int row = 0; row < rowCount; ++row)
  {
    random.times.push_back(generator.oneIn(15) ? std::numeric_limits<double>::quiet_NaN()
                                               : 0.5 * (row % static_cast<int>(random.stride)) +
                                                     (generator.oneIn(6) ? 0.25 : 0.0));
    rows.push_back(row);
  }
  random.table = makeTable({{"Time", random.times}});
  random.table->AddColumn(
      makeColumn<vtkIdTypeArray>("row", std::vector<double>(rows.begin(), rows.end())));

  if (!generator.oneIn(5))
  {
    random.anySource = true;
    random.selection = vtkSmartPointer<vtkSelection>::New();
    const Rows ids = generator.ids(rowCount);
    const bool inverse = generator.oneIn(8);
    addNode(random, random.selection, ids, inverse);
    random.loneNode = !inverse;
    for (const vtkIdType id : ids)
    {
      if (id >= 0 && id < rowCount)
        random.listed.push_back(id);
    }
    if (!inverse && generator.oneIn(4))
    {
      addNode(random, random.selection, generator.ids(rowCount), true);
      random.loneNode = false;
    }
  }
  if (!random.selection || generator.oneIn(2))
  {
    std::vector<vtkSmartPointer<vtkAnnotation>> annotations;
    const int count = generator.number(0, 3);
    for (int i = 0; i < count; ++i)
    {
      const auto enabled = static_cast<Says>(generator.number(0, 2));
      const auto hidden = static_cast<Says>(generator.number(0, 2));
      const bool shown = enabled == Says::Nothing || (enabled == Says::Yes && hidden != Says::Yes);
      const bool bare = generator.oneIn(6);
      RandomCase alone;
      alone.times = random.times;
      vtkNew<vtkSelection> annotated;
      addNode(alone, annotated, generator.ids(rowCount), false);
      annotations.push_back(makeAnnotation(bare ? nullptr : annotated.Get(), enabled, hidden));
      random.anySource = random.anySource || shown;
      if (shown && !bare)
      {
        random.selected.insert(alone.selected.begin(), alone.selected.end());
        random.loneNode = false;
      }
    }
    random.layers = makeLayers(annotations);
  }
  return random;
}

bool isSelected(const RandomCase& random, vtkIdType row)
{
  return random.selected.count(row) != 0;
}

double timeOf(const RandomCase& random, vtkIdType row)
{
  return random.times[static_cast<std::size_t>(row)];
}

bool hasSelectedRowAt(const RandomCase& random, vtkIdType run, double time)
{
  return std::any_of(random.selected.begin(), random.selected.end(),
                     [&](vtkIdType row)
                     { return row / random.stride == run && timeOf(random, row) == time; });
}

bool isAccepted(const RandomCase& random, vtkIdType run)
{
  return std::all_of(random.selected.begin(), random.selected.end(),
                     [&](vtkIdType row)
                     {
                       const double time = timeOf(random, row);
                       return std::isnan(time) || hasSelectedRowAt(random, run, time);
                     });
}

template <class Filter>
void run(Filter* filter, const RandomCase& random)
{
  filter->SetInputData(0, random.table);
  if (random.selection)
    filter->SetInputData(1, random.selection);
  if (random.layers)
    filter->SetInputData(2, random.layers);
  filter->SetTimeColumnIndex(0);
  filter->AddOriginalRowIdsArrayOn();
  filter->Update();
}

Rows outputRows(vtkTableAlgorithm* filter, int port)
{
  const Rows rows = idColumn(filter->GetOutput(port), "row");
  EXPECT_EQ(idColumn(filter->GetOutput(port), "vtkOriginalRowIds"), rows);
  return rows;
}

void expectShallowCopy(vtkTableAlgorithm* filter, const RandomCase& random)
{
  EXPECT_EQ(filter->GetOutput(0)->GetColumn(0), random.table->GetColumn(0));
  EXPECT_EQ(filter->GetOutput(1)->GetNumberOfColumns(), 0);
  EXPECT_EQ(random.table->GetNumberOfColumns(), 2);
}

std::vector<NodeText> describeAll(const RandomCase& random)
{
  auto nodes = describe(random.selection);
  const unsigned int count = random.layers ? random.layers->GetNumberOfAnnotations() : 0;
  for (unsigned int i = 0; i < count; ++i)
  {
    const auto annotated = describe(random.layers->GetAnnotation(i)->GetSelection());
    nodes.insert(nodes.end(), annotated.begin(), annotated.end());
  }
  return nodes;
}
} // namespace

TEST(RandomSelections, SplitLikePlainLoopsInTheOrFilter)
{
  int comparedRows = 0;
  for (unsigned int seed = 1; seed <= 1000; ++seed)
  {
    SCOPED_TRACE(seed);
    const RandomCase random = makeCase(seed);
    const auto nodes = describeAll(random);
    vtkNew<vtkCombinedFilterOrSelectedRows> filter;
    run(filter.Get(), random);
    ASSERT_EQ(describeAll(random), nodes);
    if (!random.anySource)
    {
      expectShallowCopy(filter, random);
      continue;
    }
    Rows compared;
    Rows complement;
    for (vtkIdType row = 0; row < static_cast<vtkIdType>(random.times.size()); ++row)
    {
      bool reachesUp = false;
      bool reachesDown = false;
      for (const vtkIdType other : random.selected)
      {
        reachesUp = reachesUp || timeOf(random, other) >= timeOf(random, row);
        reachesDown = reachesDown || timeOf(random, other) <= timeOf(random, row);
      }
      const bool inRange = !isSelected(random, row) && reachesUp && reachesDown;
      complement.push_back(inRange ? 1 : 0);
      if (inRange)
        compared.push_back(row);
    }
    const Rows selected = outputRows(filter, 0);
    ASSERT_EQ(std::set<vtkIdType>(selected.begin(), selected.end()), random.selected);
    if (random.loneNode)
    {
      ASSERT_EQ(selected, random.listed);
    }
    ASSERT_EQ(outputRows(filter, 1), compared);
    ASSERT_EQ(idColumn(random.table, "vtkComplementSelection"), complement);
    comparedRows += static_cast<int>(compared.size());
  }
  EXPECT_GT(comparedRows, 1000) << "the cases are not trivial";
}

TEST(RandomSelections, SplitLikePlainLoopsInTheAndFilter)
{
  int acceptedRows = 0;
  for (unsigned int seed = 1; seed <= 1000; ++seed)
  {
    SCOPED_TRACE(seed);
    const RandomCase random = makeCase(seed);
    const auto nodes = describeAll(random);
    vtkNew<vtkCombinedFilterAndSelectedRows> filter;
    filter->SetParaCount(0);
    filter->SetStride(random.stride);
    run(filter.Get(), random);
    ASSERT_EQ(describeAll(random), nodes);
    if (!random.anySource)
    {
      expectShallowCopy(filter, random);
      continue;
    }
    const bool anyTime =
        std::any_of(random.selected.begin(), random.selected.end(),
                    [&](vtkIdType row) { return !std::isnan(timeOf(random, row)); });
    Rows outputs[2];
    Rows complement;
    Rows reduced;
    Rows remainder;
    for (vtkIdType row = 0; anyTime && row < static_cast<vtkIdType>(random.times.size()); ++row)
    {
      const bool selected = isSelected(random, row);
      const bool accepted = selected && isAccepted(random, row / random.stride);
      const bool matched =
          !selected && std::any_of(random.selected.begin(), random.selected.end(),
                                   [&](vtkIdType other)
                                   { return timeOf(random, other) == timeOf(random, row); });
      remainder.push_back(accepted ? 1 : 0);
      reduced.push_back(selected && !accepted ? 1 : 0);
      complement.push_back(matched ? 1 : 0);
      if (accepted)
        outputs[0].push_back(row);
      else if (selected || matched)
        outputs[1].push_back(row);
    }
    ASSERT_EQ(outputRows(filter, 0), outputs[0]);
    ASSERT_EQ(outputRows(filter, 1), outputs[1]);
    ASSERT_EQ(idColumn(random.table, "vtkComplementSelection"), complement);
    ASSERT_EQ(idColumn(random.table, "vtkReducedSelection"), reduced);
    ASSERT_EQ(idColumn(random.table, "vtkRemainderSelection"), remainder);
    acceptedRows += static_cast<int>(outputs[0].size());
  }
  EXPECT_GT(acceptedRows, 500) << "the cases are not trivial";
}
