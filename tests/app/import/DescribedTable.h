#ifndef DescribedTable_h
#define DescribedTable_h

#include "app/import/RunTableImport.h"

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "import/ImportedRuns.h"

using Names = std::vector<std::string>;

/// A table with what was understood of it.
struct DescribedTable
{
  Talmesh::app::ImportedTable table;
  Talmesh::app::ImportReport report;
  std::string error;

  std::size_t runs() const { return report.runs; }
  /// The levels of a category by its column's label.
  Names levels(const std::string& column) const
  {
    for (const Talmesh::app::Category& category : table.categories)
      if (category.column == column)
        return category.levels;
    return {};
  }
  Names options() const
  {
    Names all;
    for (const Talmesh::app::ImportCandidate& candidate : report.candidates)
      all.push_back(candidate.option);
    return all;
  }
  bool warns(const std::string& part) const
  {
    for (const std::string& warning : report.warnings)
      if (warning.find(part) != std::string::npos)
        return true;
    return false;
  }
};

/// Files beside a table, by name.
using Beside = std::map<std::string, std::string>;

inline DescribedTable described(const std::string& text,
                                const Talmesh::app::ImportRequest& request = {},
                                const Beside& beside = {})
{
  Talmesh::app::ImportTask task;
  task.request = request;
  task.beside = [&beside](const std::string& name) -> std::optional<std::string>
  {
    const auto found = beside.find(name);
    return found == beside.end() ? std::nullopt : std::make_optional(found->second);
  };
  DescribedTable result;
  const auto read = Talmesh::app::importTable(text, task, result.report);
  result.error = read.error();
  if (read.hasValue())
    result.table = read.value();
  EXPECT_NE(read.hasValue(), !result.error.empty());
  return result;
}

/// What is told of a table that is understood.
inline void expectDescribed(const DescribedTable& table, const std::string& layout,
                            std::size_t runs, std::size_t points, const Names& items,
                            const Names& parameters = {}, const Names& categories = {})
{
  EXPECT_EQ(table.error, "");
  EXPECT_EQ(table.report.layout, layout);
  EXPECT_EQ(table.report.runs, runs);
  EXPECT_EQ(table.report.fewestPoints, points);
  EXPECT_EQ(table.report.mostPoints, points);
  EXPECT_EQ(table.report.items, items);
  EXPECT_EQ(table.report.parameters, parameters);
  EXPECT_EQ(table.report.categories, categories);
}

#endif
