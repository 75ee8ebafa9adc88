#include "support/LineTables.h"
#include "support/PlotFixture.h"

#include <gtest/gtest.h>

#include <string>

using Talmesh::Complex;
using Talmesh::Molecule;
using Talmesh::Parameter;
using Talmesh::Pattern;
using Talmesh::TimeOrValue;

namespace
{

struct Choice
{
  std::string description;
  std::vector<Talmesh::TypedConcentrationName> items;
  int x;
  int color;
  std::string xLabel;
  std::string yLabel;
};

void PrintTo(const Choice& choice, std::ostream* stream)
{
  *stream << choice.description;
}

class TimeColumnChoice : public PlotFixture, public ::testing::WithParamInterface<Choice>
{
};

TEST_P(TimeColumnChoice, SetsColumnsAndLabels)
{
  // Parameters vary unless they are called "fixed".
  std::vector<std::pair<double, double>> ranges;
  for (const auto& [kind, name] : GetParam().items)
  {
    if (kind == Parameter)
      ranges.emplace_back(0.0, name == "fixed" ? 0.0 : 1.0);
  }
  settings().xColumns = {50, 51};
  settings().yColumns = {60, 61};
  settings().zColumns = {70, 71};
  container.setLinePlotTable(lineTableOf(GetParam().items, ranges), false);

  EXPECT_EQ(settings().xColumns, (std::vector<int>{GetParam().x, 51}));
  EXPECT_EQ(settings().yColumns, (std::vector<int>{0, 61}));
  EXPECT_EQ(settings().zColumns, (std::vector<int>{1, 71}));
  EXPECT_EQ(settings().colorColumn, GetParam().color);
  EXPECT_EQ(settings().xLabel, GetParam().xLabel);
  EXPECT_EQ(settings().yLabel, GetParam().yLabel);
  EXPECT_EQ(bottom()->GetTitle(), GetParam().xLabel);
  EXPECT_EQ(left()->GetTitle(), GetParam().yLabel);
  scene.render(container);
}

INSTANTIATE_TEST_SUITE_P(
    EveryRule, TimeColumnChoice,
    ::testing::Values(
        Choice{"time wins over earlier and later values",
               {{Complex, "A"},
                {TimeOrValue, "Value"},
                {TimeOrValue, "Time [s]"},
                {TimeOrValue, "Value"}},
               2,
               2,
               "Time [s]",
               "A"},
        Choice{"the first of two times ends the scan",
               {{Complex, "A"}, {TimeOrValue, "Time [s]"}, {TimeOrValue, "Time [s]"}},
               1,
               1,
               "Time [s]",
               "A"},
        Choice{"a value replaces an earlier item without a kind",
               {{Complex, "A"}, {TimeOrValue, "Run Index"}, {TimeOrValue, "Value"}},
               2,
               2,
               "Value",
               "A"},
        Choice{"a value stays before a later item without a kind",
               {{Complex, "A"}, {TimeOrValue, "Value"}, {TimeOrValue, "Run Index"}},
               1,
               1,
               "Value",
               "A"},
        Choice{"the last of two values",
               {{TimeOrValue, "Value"}, {Complex, "A"}, {TimeOrValue, "Value"}},
               2,
               2,
               "Value",
               "Value"},
        Choice{"the first of items without a kind that are neither",
               {{Complex, "A"}, {TimeOrValue, "Run Index"}, {TimeOrValue, "time [s]"}},
               1,
               1,
               "Run Index",
               "A"},
        Choice{"only items without a kind count as time",
               {{Molecule, "Time [s]"}, {Pattern, "Value"}, {TimeOrValue, "Run Index"}},
               2,
               2,
               "Run Index",
               "Time [s]"},
        Choice{"the first parameter colours",
               {{Complex, "A"}, {TimeOrValue, "Time [s]"}, {Parameter, "k"}, {Parameter, "q"}},
               1,
               2,
               "Time [s]",
               "A"},
        Choice{"constant parameters take no position",
               {{Parameter, "fixed"},
                {Complex, "A"},
                {Parameter, "fixed"},
                {TimeOrValue, "Time [s]"},
                {Parameter, "k"}},
               1,
               2,
               "Time [s]",
               "A"},
        Choice{"without time two columns before the first parameter",
               {{Complex, "A"}, {Complex, "B"}, {Complex, "C"}, {Parameter, "k"}},
               1,
               3,
               "B",
               "A"},
        Choice{"two columns before the first parameter is the first column",
               {{Complex, "A"}, {Complex, "B"}, {Parameter, "k"}, {Parameter, "q"}},
               0,
               2,
               "A",
               "A"},
        Choice{"two columns before the second column is no column",
               {{Complex, "A"}, {Parameter, "k"}},
               -1,
               1,
               "",
               "A"},
        Choice{"two columns before the first column is no column",
               {{Parameter, "k"}, {Complex, "A"}},
               -2,
               0,
               "",
               "k"},
        Choice{"neither time nor parameters: the last column",
               {{Complex, "A"}, {Complex, "B"}, {Pattern, "C"}},
               2,
               2,
               "C",
               "A"},
        Choice{"constant parameters are no parameters",
               {{Complex, "A"}, {Complex, "B"}, {Parameter, "fixed"}},
               1,
               1,
               "B",
               "A"}));

} // namespace
