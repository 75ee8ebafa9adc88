#include "external/LinePlotData.h"
#include "support/LineTables.h"
#include "support/PlotFixture.h"

#include <gtest/gtest.h>

#include <ctime>
#include <functional>

namespace
{

constexpr std::size_t many = 60000;
/// Processor time, so that a busy machine does not matter. A search of all columns for each one
/// takes more than ten seconds, going through them once less than a tenth of this.
constexpr double mostSeconds = 4.0;

double secondsOf(const std::function<void()>& work)
{
  const std::clock_t begin = std::clock();
  work();
  return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

std::vector<Talmesh::TypedConcentrationName> manyItems()
{
  std::vector<Talmesh::TypedConcentrationName> items{{Talmesh::TimeOrValue, "Time [s]"}};
  while (items.size() < many)
    items.emplace_back(Talmesh::Molecule, std::to_string(items.size()));
  return items;
}

class ManyColumns : public PlotFixture
{
};

TEST_F(ManyColumns, OfALineTableAreEachLookedAtOnce)
{
  const auto lines = lineTableOf(manyItems(), {}, 2, 1);
  EXPECT_LT(secondsOf([&] { container.setLinePlotTable(lines, false); }), mostSeconds);
  ASSERT_EQ(container.getTable()->GetNumberOfColumns(), static_cast<vtkIdType>(many));
  EXPECT_STREQ(container.getTable()->GetColumnName(many - 1), "Molecule: 59999");
  EXPECT_LT(secondsOf([&] { container.setLinePlotTableAsAdditionalData(lines.get()); }),
            mostSeconds);
  EXPECT_EQ(container.getDerivedTables().back()->GetNumberOfColumns(),
            static_cast<vtkIdType>(many));
}

TEST_F(ManyColumns, OfTimeSeriesAreEachLookedAtOnce)
{
  std::vector<double> values{1, 2};
  LinePlotData data;
  data.xName = "Time [s]";
  data.xValues = &values;
  for (const auto& item : manyItems())
    data.series[item] = &values;
  EXPECT_LT(secondsOf([&] { container.setLinePlotData(&data); }), mostSeconds);
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), static_cast<vtkIdType>(many) + 1);
  EXPECT_LT(secondsOf([&] { container.setLinePlotDataAsAdditionalData(&data); }), mostSeconds);
}

} // namespace
