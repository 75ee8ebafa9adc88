#include "app/RunTableImport.h"

#include <vtkDelimitedTextWriter.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

using namespace Talmesh::app;

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

ImportedTable imported(const std::string& text)
{
  ImportedTable table = importRunTable(text);
  EXPECT_EQ(table.error, "");
  EXPECT_FALSE(table.cancelled);
  return table;
}

std::string errorOf(const std::string& text)
{
  const ImportedTable table = importRunTable(text);
  EXPECT_FALSE(table.runs);
  EXPECT_FALSE(table.table);
  EXPECT_EQ(table.error.find('\n'), std::string::npos);
  return table.error;
}

std::vector<std::string> labels(const ImportedTable& table)
{
  std::vector<std::string> all;
  for (const auto& item : table.runs->items)
    all.push_back(Talmesh::selectionPairToString(item));
  return all;
}

std::vector<double> values(const ImportedTable& table, const std::string& label)
{
  const LinePlotTable& runs = *table.runs;
  for (std::size_t i = 0; i < runs.items.size(); ++i)
    if (Talmesh::selectionPairToString(runs.items[i]) == label)
      return {runs.values[i],
              runs.values[i] + runs.numberOfTrajectories * runs.pointsPerTrajectory};
  ADD_FAILURE() << "no item " << label;
  return {};
}

void expectValues(const ImportedTable& table, const std::string& label,
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

void expectShape(const ImportedTable& table, std::size_t runs, std::size_t points)
{
  ASSERT_TRUE(table.runs);
  EXPECT_FALSE(table.table);
  EXPECT_EQ(table.runs->numberOfTrajectories, runs);
  EXPECT_EQ(table.runs->pointsPerTrajectory, points);
}

} // namespace

TEST(RunTableImport, ReadsATableOfPlainHeaders)
{
  const ImportedTable table = imported("run,time,k1,X,Y\n"
                                       "0,0,0.5,1,2\n"
                                       "0,1,0.5,3,4\n"
                                       "1,0,0.7,5,6\n"
                                       "1,1,0.7,7,8\n");
  expectShape(table, 2, 2);
  EXPECT_EQ(labels(table), (std::vector<std::string>{"Molecule: X", "Molecule: Y", ": time",
                                                     ": Run Index", "Parameter: k1"}));
  expectValues(table, "Molecule: X", {1, 3, 5, 7});
  expectValues(table, ": time", {0, 1, 0, 1});
  expectValues(table, ": Run Index", {0, 0, 1, 1});
  expectValues(table, "Parameter: k1", {0.5, 0.5, 0.7, 0.7});
  ASSERT_EQ(table.runs->parameterRanges.size(), 1u);
  EXPECT_EQ(table.runs->parameterRanges[0], std::make_pair(0.5, 0.7));
  EXPECT_TRUE(table.notes.empty());
}

TEST(RunTableImport, StartsARunWhereTimeFallsBackWithoutARunColumn)
{
  const ImportedTable table = imported("t;X\n0;1\n1;2\n2;3\n0;4\n1;5\n1;6\n");
  expectShape(table, 2, 3);
  expectValues(table, ": Run Index", {0, 0, 0, 1, 1, 1});
  expectValues(table, "Molecule: X", {1, 2, 3, 4, 5, 6});
}

TEST(RunTableImport, TakesASingleRun)
{
  expectShape(imported("time\tX\n0\t1\n1\t2\n2\t3\n"), 1, 3);
}

TEST(RunTableImport, TakesTypedHeadersAndTheirOrderAsWritten)
{
  const ImportedTable table = imported("\": Time [s]\",\"Parameter: k1\",\"Complex: A, B\","
                                       "\": Run Index\",\"Pattern: p\"\n"
                                       "0,1,10,3,7\n"
                                       "5,2,11,3,7\n"
                                       "0,1,12,4,7\n"
                                       "5,1,13,4,7\n");
  expectShape(table, 2, 2);
  EXPECT_EQ(labels(table), (std::vector<std::string>{": Time [s]", "Parameter: k1", "Complex: A, B",
                                                     ": Run Index", "Pattern: p"}));
  expectValues(table, ": Run Index", {3, 3, 4, 4});
  expectValues(table, "Parameter: k1", {1, 2, 1, 1});
  EXPECT_EQ(table.runs->parameterRanges[0], std::make_pair(1.0, 2.0));
}

TEST(RunTableImport, FindsRunsByTimeUnderTypedHeadersAndAddsNothing)
{
  const ImportedTable table = imported("Molecule: X,: Time [s]\n1,0\n2,1\n3,0\n4,1\n");
  expectShape(table, 2, 2);
  EXPECT_EQ(labels(table), (std::vector<std::string>{"Molecule: X", ": Time [s]"}));
}

TEST(RunTableImport, GivesPlainColumnsBesideTypedOnesAKind)
{
  const ImportedTable table = imported(": Time [s],Complex: X,k,extra\n"
                                       "0,1,5,1\n1,2,5,2\n0,1,6,1\n1,2,6,2\n");
  EXPECT_EQ(labels(table), (std::vector<std::string>{": Time [s]", "Complex: X", "Parameter: k",
                                                     "Molecule: extra"}));
  EXPECT_TRUE(table.notes.empty());
}

TEST(RunTableImport, ReturnsWhatTheWriterWrote)
{
  vtkNew<vtkTable> written;
  const std::vector<std::pair<std::string, std::vector<double>>> columns = {
      {"Molecule: TetR \"wild\" type", {1.5, missing, 2e-20, 3e10}},
      {": Time [s]", {0, 0.25, 0, 0.25}},
      {": Run Index", {0, 0, 1, 1}},
      {"Parameter: α, β", {0.125, 0.125, 4, 4}}};
  for (const auto& [name, cells] : columns)
  {
    vtkNew<vtkDoubleArray> array;
    array->SetName(name.c_str());
    for (const double cell : cells)
      array->InsertNextValue(cell);
    written->AddColumn(array);
  }
  vtkNew<vtkDelimitedTextWriter> writer;
  writer->SetInputData(written);
  writer->WriteToOutputStringOn();
  writer->Write();
  const std::unique_ptr<char[]> text(writer->RegisterAndGetOutputString());

  const ImportedTable table = imported(text.get());
  expectShape(table, 2, 2);
  std::vector<std::string> names;
  for (const auto& [name, cells] : columns)
  {
    names.push_back(name);
    expectValues(table, name, cells);
  }
  EXPECT_EQ(labels(table), names);
}

TEST(RunTableImport, ReadsDecimalCommasBetweenSemicolonsAndTabs)
{
  expectValues(imported("t;X\n0;1,5\n0,5;2\n"), "Molecule: X", {1.5, 2});
  expectValues(imported("t\tX\n0\t-1,5e1\n0,5\t2\n"), ": t", {0, 0.5});
}

TEST(RunTableImport, RefusesDecimalCommasBesideDecimalPoints)
{
  EXPECT_EQ(errorOf("t;X\n0;1,5\n1;1.234\n"),
            "line 3: \"1.234\" is ambiguous: the table has both decimal points and decimal commas");
}

TEST(RunTableImport, ReadsByteOrderMarksCarriageReturnsAndQuotes)
{
  const ImportedTable table =
      imported("\xEF\xBB\xBF\"time\",\"A \"\"x\"\", b\"\r\n\"0\",1\r\n\"1\",2\r\n\r\n");
  expectShape(table, 1, 2);
  expectValues(table, "Molecule: A \"x\", b", {1, 2});
}

TEST(RunTableImport, TakesALineEndInsideAQuotedName)
{
  EXPECT_EQ(labels(imported("time,\"A\nb\"\n0,1\n1,2\n"))[0], "Molecule: A\nb");
}

TEST(RunTableImport, TakesEmptyCellsForNaN)
{
  const ImportedTable table = imported("time,X,Y\n0,,1\n1,2,NA\n,3,2\n");
  expectValues(table, "Molecule: X", {missing, 2, 3});
  expectValues(table, "Molecule: Y", {1, missing, 2});
  expectValues(table, ": time", {0, 1, missing});
}

TEST(RunTableImport, KeepsNamesInUtf8AndReadsLatin1)
{
  EXPECT_EQ(labels(imported("time,β-Käse\n0,1\n1,2\n"))[0], "Molecule: β-Käse");
  EXPECT_EQ(labels(imported("time,K\xE4se\n0,1\n1,2\n"))[0], "Molecule: Käse");
}

TEST(RunTableImport, MakesParametersOfColumnsThatAreConstantWithinEachRunAndDifferBetweenRuns)
{
  const ImportedTable table = imported("time,k,partly,item\n"
                                       "0,4,,1\n1,4,,1\n0,4,2,1\n1,4,2,3\n0,5,3,1\n1,5,3,1\n");
  EXPECT_EQ(labels(table), (std::vector<std::string>{"Molecule: item", ": time", ": Run Index",
                                                     "Parameter: k", "Parameter: partly"}));
  EXPECT_EQ(table.runs->parameterRanges[0], std::make_pair(4.0, 5.0));
  EXPECT_EQ(table.runs->parameterRanges[1], std::make_pair(2.0, 3.0));
  EXPECT_TRUE(table.notes.empty());
}

TEST(RunTableImport, KeepsColumnsThatAreTheSameInAllRunsAsItemsBehindTheOthers)
{
  const ImportedTable table = imported("time,same,missing,partly,item\n"
                                       "0,4,,,1\n1,4,,,1\n0,4,,2,1\n1,4,,2,3\n");
  EXPECT_EQ(labels(table),
            (std::vector<std::string>{"Molecule: item", "Molecule: same", "Molecule: missing",
                                      "Molecule: partly", ": time", ": Run Index"}));
  expectValues(table, "Molecule: same", {4, 4, 4, 4});
  expectValues(table, "Molecule: partly", {missing, missing, 2, 2});
  EXPECT_TRUE(table.runs->parameterRanges.empty());
  EXPECT_TRUE(table.notes.empty());
}

TEST(RunTableImport, KeepsEveryColumnOfASingleRunAsAnItem)
{
  const ImportedTable table = imported("k,time,X\n7,0,1\n7,1,2\n7,2,4\n");
  expectShape(table, 1, 3);
  EXPECT_EQ(labels(table),
            (std::vector<std::string>{"Molecule: X", "Molecule: k", ": time", ": Run Index"}));
  expectValues(table, "Molecule: k", {7, 7, 7});
}

TEST(RunTableImport, NotesDeclaredParametersThatPlotsLeaveOut)
{
  const ImportedTable table = imported(": Time [s],Parameter: c,Parameter: k,Parameter: empty\n"
                                       "0,7,1,\n1,7,1,\n0,7,2,\n1,7,2,\n");
  EXPECT_EQ(labels(table), (std::vector<std::string>{": Time [s]", "Parameter: c", "Parameter: k",
                                                     "Parameter: empty"}));
  EXPECT_EQ(table.notes, (std::vector<std::string>{
                             "The parameter \"c\" is the same in all runs and is left out.",
                             "The parameter \"empty\" is the same in all runs and is left out."}));
}

TEST(RunTableImport, FindsNoParametersInRunsOfOnePoint)
{
  const ImportedTable table = imported("run,k,score\n0,1,2\n1,3,4\n2,5,6\n");
  expectShape(table, 3, 1);
  EXPECT_EQ(labels(table),
            (std::vector<std::string>{"Molecule: k", "Molecule: score", ": Run Index"}));
}

TEST(RunTableImport, GathersTheScatteredRowsOfARun)
{
  const ImportedTable table = imported("time,run,X\n0,a,1\n0,b,2\n1,a,3\n1,b,4\n2,b,6\n2,a,5\n");
  expectShape(table, 2, 3);
  expectValues(table, "Molecule: X", {1, 3, 5, 2, 4, 6});
  expectValues(table, ": time", {0, 1, 2, 0, 1, 2});
  expectValues(table, ": Run Index", {0, 0, 0, 1, 1, 1});
}

TEST(RunTableImport, RefusesARunThatStartsAgain)
{
  EXPECT_EQ(errorOf("time,run,X\n0,1,1\n1,1,2\n0,2,3\n1,2,4\n0,1,5\n1,1,6\n0,2,7\n1,2,8\n"),
            "run \"1\" starts again in line 6: two runs have the same name");
}

TEST(RunTableImport, PutsNumberedRunsIntoOrder)
{
  const ImportedTable table = imported("run,time,X\n12,0,1\n12,1,2\n7,0,3\n7,1,4\n");
  expectValues(table, ": Run Index", {7, 7, 12, 12});
  expectValues(table, "Molecule: X", {3, 4, 1, 2});
}

TEST(RunTableImport, NumbersRunsWhoseNamesAreNoWholeNumbers)
{
  expectValues(imported("run,time,X\nb,0,1\nb,1,2\na,0,3\na,1,4\n"), ": Run Index", {0, 0, 1, 1});
  expectValues(imported("run,time,X\n0.5,0,1\n0.7,0,2\n"), ": Run Index", {0, 1});
  expectValues(imported("run,time,X\n1,0,1\n01,0,2\n"), ": Run Index", {0, 1});
  expectValues(imported("run,time,X\n1e30,0,1\n2,0,2\n"), ": Run Index", {0, 1});
}

TEST(RunTableImport, NamesTheRunOfAnotherLength)
{
  EXPECT_EQ(errorOf("run,time,X\na,0,1\na,1,2\nb,0,3\nc,0,1\nc,1,2\n"),
            "run \"b\" has 1 point, other runs have 2");
  EXPECT_EQ(errorOf("run,time,X\na,0,1\nb,0,3\nb,1,1\nc,0,1\nc,1,2\n"),
            "run \"a\" has 1 point, other runs have 2");
}

TEST(RunTableImport, NamesTheRunOfAnotherLengthFoundByTime)
{
  EXPECT_EQ(errorOf("time,X\n0,1\n1,2\n0,1\n1,2\n2,3\n0,1\n1,2\n"),
            "run 2 (from line 4, where time falls back) has 3 points, other runs have 2");
  EXPECT_EQ(errorOf("time,X\n0,1\n0,1\n1,2\n0,1\n1,2\n0,1\n1,2\n"),
            "run 1 has 3 points, other runs have 2");
}

TEST(RunTableImport, NumbersTheLineWhereAShortRunStarts)
{
  EXPECT_EQ(errorOf("time,X\n0,1\n1,2\n\n0,1\n1,2\n0,1\n"),
            "run 3 (from line 7, where time falls back) has 1 point, other runs have 2");
}

TEST(RunTableImport, MakesAPlainTableOfColumnsWithoutTimeAndRun)
{
  const ImportedTable table = imported("x;y\n1;2,5\n3;\n");
  ASSERT_TRUE(table.table);
  EXPECT_FALSE(table.runs);
  ASSERT_EQ(table.table->GetNumberOfColumns(), 2);
  EXPECT_EQ(table.table->GetNumberOfRows(), 2);
  auto* y = vtkDoubleArray::SafeDownCast(table.table->GetColumnByName("y"));
  ASSERT_TRUE(y);
  EXPECT_EQ(y->GetValue(0), 2.5);
  EXPECT_TRUE(std::isnan(y->GetValue(1)));
}

TEST(RunTableImport, LeavesColumnsOfTextOutAndSaysSo)
{
  const ImportedTable table = imported("time,X,drug\n0,1,none given\n1,2,\n2,4,aspirin\n");
  EXPECT_EQ(labels(table), (std::vector<std::string>{"Molecule: X", ": time", ": Run Index"}));
  EXPECT_EQ(table.notes,
            (std::vector<std::string>{"The column \"drug\" holds text and is left out."}));
}

TEST(RunTableImport, RefusesTextAmongNumbers)
{
  EXPECT_EQ(errorOf("time,X\n0,1\n1,2a\n"), "line 3: \"2a\" in the column \"X\" is not a number");
  EXPECT_EQ(errorOf("time,X\n12:30,1\n12:31,2\n"),
            "line 2: \"12:30\" in the column \"time\" is not a number");
}

TEST(RunTableImport, RefusesRowsOfAnotherLength)
{
  EXPECT_EQ(errorOf("time,X\n0,1\n1\n"), "line 3 has 1 field, the first line has 2");
  EXPECT_EQ(errorOf("time,X\n0,1,2\n"), "line 2 has 3 fields, the first line has 2");
}

TEST(RunTableImport, IgnoresEmptyFieldsBeyondTheHeaders)
{
  const ImportedTable table = imported("time,X,,\n0,1,,\n1,2\n2,3, ,\n");
  expectValues(table, "Molecule: X", {1, 2, 3});
}

TEST(RunTableImport, RefusesARowWithoutItsRun)
{
  EXPECT_EQ(errorOf("run,time,X\n0,0,1\n,1,2\n"),
            "line 3: the run has no name in the column \"run\"");
}

TEST(RunTableImport, RefusesWhatIsNoTable)
{
  EXPECT_EQ(errorOf(""), "the file is empty");
  EXPECT_EQ(errorOf("\n\n"), "the file is empty");
  EXPECT_EQ(errorOf("\xEF\xBB\xBF"), "the file is empty");
  EXPECT_EQ(errorOf("time,X\n"), "the table has no rows below its headers");
  EXPECT_EQ(errorOf("Dear reader\nthis is prose\n"), "not a table: no column holds numbers");
  EXPECT_EQ(errorOf("0,1\n1,2\n"), "the first line holds numbers, not the names of the columns");
  EXPECT_EQ(errorOf(std::string("a,b\n1,\0\n", 8)), "not a table: the file holds binary data");
  EXPECT_EQ(errorOf("\xFF\xFEt\x01"), "the text is UTF-16; save it as UTF-8");
  EXPECT_EQ(errorOf("time,X\n0,\"1\n"), "line 2: a quoted field is not closed");
  EXPECT_EQ(errorOf("time,\"X\n0,1\n"), "line 1: a quoted name is not closed");
}

TEST(RunTableImport, RefusesAbsurdlyManyColumns)
{
  EXPECT_EQ(errorOf("a" + std::string(20000, ',') + "b\n"),
            "the table has 20001 columns; at most 20000 can be read");
}

TEST(RunTableImport, KeepsMessagesInOneShortLine)
{
  const std::string error = errorOf("time,X\n0,1\n1,\"a\nb\x01" + std::string(100, 'x') + "\"\n");
  EXPECT_EQ(error,
            "line 3: \"a b " + std::string(36, 'x') + "...\" in the column \"X\" is not a number");
}

TEST(RunTableImport, ReportsItsProgressAndCanBeCancelled)
{
  std::string text = "time,X\n";
  for (int row = 0; row < 10000; ++row)
    text += std::to_string(row) + ",1\n";
  std::vector<double> reports;
  const ImportedTable whole = importRunTable(text,
                                             [&](double done)
                                             {
                                               reports.push_back(done);
                                               return true;
                                             });
  EXPECT_TRUE(whole.runs);
  ASSERT_GE(reports.size(), 4u);
  for (std::size_t i = 0; i < reports.size(); ++i)
  {
    EXPECT_GT(reports[i], i > 0 ? reports[i - 1] : 0.0);
    EXPECT_LE(reports[i], 1.0);
  }

  int calls = 0;
  const ImportedTable cancelled = importRunTable(text, [&](double) { return ++calls < 2; });
  EXPECT_TRUE(cancelled.cancelled);
  EXPECT_FALSE(cancelled.runs);
  EXPECT_EQ(cancelled.error, "");
  EXPECT_EQ(calls, 2);
}

TEST(RunTableImport, SurvivesDamagedTables)
{
  const std::string whole =
      "run,\"time [s]\",k1,X\r\n0,0,\"0,5\",1\n0,1,0.5,3\n1,0,,5\n1;1;0,7;inf\n";
  const std::string spice = "\",;\t\r\n.e-+0NaN \xEF\xBB\xBF\xFF:";
  std::mt19937 generator(7);
  for (int i = 0; i < 20000; ++i)
  {
    std::string text = whole;
    for (int edits = static_cast<int>(generator() % 8); edits >= 0; --edits)
    {
      const std::size_t at = generator() % (text.size() + 1);
      const char c = spice[generator() % spice.size()];
      if (generator() % 3 == 0 && at < text.size())
        text.erase(at, 1 + generator() % 5);
      else
        text.insert(at, 1, c);
    }
    const ImportedTable table = importRunTable(text);
    const int outcomes =
        (table.runs ? 1 : 0) + (table.table ? 1 : 0) + (table.error.empty() ? 0 : 1);
    ASSERT_EQ(outcomes, 1) << text;
    ASSERT_EQ(table.error.find('\n'), std::string::npos) << text;
    if (table.runs)
    {
      ASSERT_EQ(table.runs->items.size(), table.runs->values.size());
      ASSERT_GT(table.runs->numberOfTrajectories * table.runs->pointsPerTrajectory, 0u);
    }
  }
}
