#ifndef ImportedRuns_h
#define ImportedRuns_h

#include "app/import/RunTableImport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

/// The import of a text that must succeed.
inline Talmesh::app::ImportedTable imported(const std::string& text)
{
  const auto read = Talmesh::app::importRunTable(text);
  EXPECT_EQ(read.error(), "");
  return read.hasValue() ? read.value() : Talmesh::app::ImportedTable();
}

/// Why the import of a text fails, as it must.
inline std::string errorOf(const std::string& text)
{
  const auto read = Talmesh::app::importRunTable(text);
  EXPECT_FALSE(read.hasValue());
  EXPECT_EQ(read.error().find('\n'), std::string::npos);
  return read.error();
}

/// The typed names of the items.
inline std::vector<std::string> labels(const Talmesh::app::ImportedTable& table)
{
  std::vector<std::string> all;
  for (const auto& item : table.runs->items)
    all.push_back(Talmesh::selectionPairToString(item));
  return all;
}

/// All values of the item of a typed name.
inline std::vector<double> values(const Talmesh::app::ImportedTable& table,
                                  const std::string& label)
{
  const LinePlotTable& runs = *table.runs;
  for (std::size_t i = 0; i < runs.items.size(); ++i)
    if (Talmesh::selectionPairToString(runs.items[i]) == label)
      return {runs.values[i],
              runs.values[i] + runs.numberOfTrajectories * runs.pointsPerTrajectory};
  ADD_FAILURE() << "no item " << label;
  return {};
}

/// A NaN is equal to a NaN here.
inline void expectValues(const Talmesh::app::ImportedTable& table, const std::string& label,
                         const std::vector<double>& expected)
{
  const std::vector<double> found = values(table, label);
  ASSERT_EQ(found.size(), expected.size()) << label;
  for (std::size_t i = 0; i < found.size(); ++i)
    if (std::isnan(expected[i]))
      EXPECT_TRUE(std::isnan(found[i])) << label << ' ' << i;
    else
      EXPECT_EQ(found[i], expected[i]) << label << ' ' << i;
}

inline void expectShape(const Talmesh::app::ImportedTable& table, std::size_t runs,
                        std::size_t points)
{
  ASSERT_TRUE(table.runs);
  EXPECT_FALSE(table.table);
  EXPECT_EQ(table.runs->numberOfTrajectories, runs);
  EXPECT_EQ(table.runs->pointsPerTrajectory, points);
}

#endif
