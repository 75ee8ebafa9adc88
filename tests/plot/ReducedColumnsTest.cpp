#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "support/CapturedOutput.h"
#include "support/PageFixture.h"
#include "support/ParameterStudy.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"
#include "vtk/RowSelections.h"

#include <vtkIntArray.h>

#include <gtest/gtest.h>

#include <QStringList>

#include <memory>
#include <sstream>

namespace
{

using Columns = std::vector<int>;

constexpr int columns = 9;

/// A table of the columns "column 0" to "column 8" and three rows, of which some are used.
class ReducedColumns : public PageFixture
{
protected:
  ReducedColumns()
  {
    NamedValues values;
    for (int i = 0; i < columns; ++i)
    {
      values.emplace_back("column " + std::to_string(i), std::vector<double>{1.0 * i, 2.0 * i, 3});
      stateOf(container).columnItems.emplace_back(Talmesh::Molecule, std::to_string(i));
    }
    container.setPlotData(tableOf(values));
    settings().xColumns = {5};
    settings().yColumns = {2};
    settings().zColumns = {};
    settings().parameterColumns = {3, 7};
    settings().colorColumn = 8;
  }

  void select(const std::vector<vtkIdType>& rows)
  {
    container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection(rows));
  }

  /// Makes column `column` an older column of flags.
  void keepOldFlags(int column)
  {
    vtkNew<vtkIntArray> flags;
    flags->SetName(("column " + std::to_string(column)).c_str());
    for (int row = 0; row < 3; ++row)
      flags->InsertNextValue(9);
    container.getTable()->AddColumn(flags);
    flags->SetName("selected points");
  }

  QStringList labels() { return container.getLabels(); }
  std::vector<std::string> itemNames()
  {
    std::vector<std::string> names;
    for (const auto& item : container.getColumnItems())
      names.push_back(item.second);
    return names;
  }
};

TEST_F(ReducedColumns, KeepAColorColumnThatNoListNames)
{
  const CapturedOutput errors(std::cerr);
  container.shrinkToColumnSelection();
  EXPECT_EQ(errors.text(), "");
  EXPECT_EQ(labels(), (QStringList{"column 2", "column 3", "column 5", "column 7", "column 8",
                                   "selected points"}));
  EXPECT_EQ(settings().colorColumn, 4);
}

TEST_F(ReducedColumns, ReportAColorColumnOutsideTheTable)
{
  for (const int outside : {columns, -1})
  {
    settings().colorColumn = outside;
    const CapturedOutput errors(std::cerr);
    container.shrinkToColumnSelection();
    EXPECT_EQ(errors.text(), "invalid color column :" + std::to_string(outside) + "\n");
    EXPECT_EQ(settings().colorColumn, outside);
  }
}

TEST_F(ReducedColumns, CarryTheFlagsOfTheSelectedRows)
{
  select({1, 2});
  container.shrinkToColumnSelection();
  EXPECT_EQ(SampleRuns::valuesOf(container.getTable(), "selected points"),
            (std::vector<double>{0, 1, 1}));
  EXPECT_EQ(labels().last(), "selected points");
}

TEST_F(ReducedColumns, WriteTheFlagsOfTheSelectedRows)
{
  select({1});
  const std::unique_ptr<char[]> text(container.saveData("", false));
  std::istringstream lines(text.get());
  std::vector<std::string> ends;
  for (std::string line; std::getline(lines, line);)
    ends.push_back(line.substr(line.rfind(',')));
  ASSERT_EQ(ends.size(), 4U);
  EXPECT_NE(ends[0].find("selected points"), std::string::npos);
  EXPECT_EQ(ends[1], ",0");
  EXPECT_EQ(ends[2], ",1");
  EXPECT_EQ(ends[3], ",0");
}

TEST_F(ReducedColumns, LetTheSettingsFollowUsedFlagsToTheEnd)
{
  keepOldFlags(4);
  settings().zColumns = {4, 5};
  settings().yColumns = {4, 2};
  select({1});
  container.shrinkToColumnSelection();
  EXPECT_EQ(labels(), (QStringList{"column 2", "column 3", "column 5", "column 7", "column 8",
                                   "selected points"}));
  EXPECT_EQ(settings().xColumns, Columns({2}));
  EXPECT_EQ(settings().yColumns, Columns({5, 0}));
  EXPECT_EQ(settings().zColumns, Columns({5, 2}));
  EXPECT_EQ(settings().parameterColumns, Columns({1, 3}));
  EXPECT_EQ(settings().colorColumn, 4);
  EXPECT_EQ(itemNames(), (std::vector<std::string>{"2", "3", "5", "7", "8", "4"}));
  EXPECT_EQ(SampleRuns::valuesOf(container.getTable(), "selected points"),
            (std::vector<double>{0, 1, 0}));
}

TEST_F(ReducedColumns, LetTheColorFollowUsedFlagsToTheEnd)
{
  keepOldFlags(4);
  settings().colorColumn = 4;
  container.shrinkToColumnSelection();
  EXPECT_EQ(labels(),
            (QStringList{"column 2", "column 3", "column 5", "column 7", "selected points"}));
  EXPECT_EQ(settings().colorColumn, 4);
}

TEST_F(ReducedColumns, DropAnItemThatOnlyTheFlagsHad)
{
  keepOldFlags(4);
  settings().zColumns = {4};
  stateOf(container).columnItems.resize(5);
  container.shrinkToColumnSelection();
  EXPECT_EQ(itemNames(), (std::vector<std::string>{"2", "3"}));
}

TEST_F(ReducedColumns, ForgetOldFlagsThatNobodyUses)
{
  keepOldFlags(4);
  select({0});
  container.shrinkToColumnSelection();
  EXPECT_EQ(labels(), (QStringList{"column 2", "column 3", "column 5", "column 7", "column 8",
                                   "selected points"}));
  EXPECT_EQ(SampleRuns::valuesOf(container.getTable(), "selected points"),
            (std::vector<double>{1, 0, 0}));
}

TEST_F(ReducedColumns, AreFoundByTheirPlaceAmongColumnsOfOneNameOrNone)
{
  vtkTable* table = container.getTable();
  for (const int same : {2, 3, 4})
    table->GetColumn(same)->SetName("same");
  for (const int nameless : {5, 6})
    table->GetColumn(nameless)->SetName(nullptr);
  container.shrinkToColumnSelection();
  ASSERT_EQ(table->GetNumberOfColumns(), 6);
  for (const auto& [place, value] :
       std::vector<std::pair<int, double>>{{0, 2}, {1, 3}, {2, 5}, {3, 7}, {4, 8}})
    EXPECT_EQ(table->GetValue(0, place).ToDouble(), value);
  EXPECT_EQ(itemNames(), (std::vector<std::string>{"2", "3", "5", "7", "8"}));
}

TEST_F(ReducedColumns, LoseAllOlderColumnsOfFlags)
{
  keepOldFlags(4);
  container.getTable()->GetColumn(3)->SetName("selected points");
  settings().zColumns = {4, 5};
  select({2});
  container.shrinkToColumnSelection();
  EXPECT_EQ(labels(),
            (QStringList{"column 2", "column 5", "column 7", "column 8", "selected points"}));
  EXPECT_EQ(settings().parameterColumns, Columns({4, 2}));
  EXPECT_EQ(settings().zColumns, Columns({4, 1}));
  EXPECT_EQ(itemNames(), (std::vector<std::string>{"2", "5", "7", "8", "3"}));
  EXPECT_EQ(SampleRuns::valuesOf(container.getTable(), "selected points"),
            (std::vector<double>{0, 0, 1}));
}

TEST_F(ReducedColumns, KeepTheItemsInTheOrderOfTheColumns)
{
  container.setLinePlotTable(parameterStudy(4, 3, 5), false);
  settings().xColumns = {1};
  settings().yColumns = {0};
  settings().zColumns = {};
  settings().parameterColumns = {7, 3, 5};
  settings().colorColumn = 5;
  container.shrinkToColumnSelection();
  EXPECT_EQ(itemNames(),
            (std::vector<std::string>{"A", "Time [s]", "Run Index", "k1", "k3", "k5"}));
  EXPECT_EQ(settings().parameterColumns, Columns({5, 3, 4}));
}

} // namespace
