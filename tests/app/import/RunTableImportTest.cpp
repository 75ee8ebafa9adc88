#include "app/import/RunTableImport.h"

#include <vtkDelimitedTextWriter.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "import/ImportedRuns.h"

using namespace Talmesh::app;

namespace
{

constexpr double missing = std::numeric_limits<double>::quiet_NaN();

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
  const ImportedTable table = imported("time,X,Y\n0,,1\n1,2,NA\n4,3,2\n");
  expectValues(table, "Molecule: X", {missing, 2, 3});
  expectValues(table, "Molecule: Y", {1, missing, 2});
  expectValues(table, ": time", {0, 1, 4});
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
  EXPECT_EQ(table.notes,
            (std::vector<std::string>{"The same value stands in all rows of \"same\"."}));
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

TEST(RunTableImport, FindsTheParametersOfRunsOfOnePointByTheirNames)
{
  const ImportedTable table = imported("run,k,score\n0,1,2\n1,3,4\n2,5,6\n");
  expectShape(table, 3, 1);
  EXPECT_EQ(labels(table),
            (std::vector<std::string>{"Molecule: score", ": Run Index", "Parameter: k"}));
}

TEST(RunTableImport, GathersTheScatteredRowsOfARun)
{
  const ImportedTable table = imported("time,run,X\n0,a,1\n0,b,2\n1,a,3\n1,b,4\n2,b,6\n2,a,5\n");
  expectShape(table, 2, 3);
  expectValues(table, "Molecule: X", {1, 3, 5, 2, 4, 6});
  expectValues(table, ": time", {0, 1, 2, 0, 1, 2});
  expectValues(table, ": Run Index", {0, 0, 0, 1, 1, 1});
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
  expectValues(imported("run,time,X\n1.5 mM,0,1\n0.7 mM,0,2\n"), ": Run Index", {0, 1});
  expectValues(imported("run,time,X\n1D2,0,1\n1D1,0,2\n"), ": Run Index", {0, 1});
  expectValues(imported("run,time,X\n1,0,1\n01,0,2\n"), ": Run Index", {0, 1});
  expectValues(imported("run,time,X\n1e30,0,1\n2,0,2\n"), ": Run Index", {0, 1});
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

TEST(RunTableImport, LeavesColumnsOfOneTextOutAndSaysSo)
{
  const ImportedTable table = imported("time,X,drug\n0,1,aspirin\n1,2,aspirin\n2,4,aspirin\n");
  EXPECT_EQ(labels(table), (std::vector<std::string>{"Molecule: X", ": time", ": Run Index"}));
  EXPECT_EQ(table.notes,
            (std::vector<std::string>{"The column \"drug\" holds the same text in all rows, "
                                      "\"aspirin\", and is left out."}));
}

TEST(RunTableImport, IgnoresEmptyFieldsBeyondTheHeaders)
{
  const ImportedTable table = imported("time,X,,\n0,1,,\n1,2\n2,3, ,\n");
  expectValues(table, "Molecule: X", {1, 2, 3});
}

TEST(RunTableImport, ReportsItsProgressAndCanBeCancelled)
{
  std::string text = "time,X\n";
  for (int row = 0; row < 10000; ++row)
    text += std::to_string(row) + ",1\n";
  std::vector<double> reports;
  const Result<ImportedTable> whole = importRunTable(text,
                                                     [&](double done)
                                                     {
                                                       reports.push_back(done);
                                                       return true;
                                                     });
  ASSERT_TRUE(whole.hasValue());
  EXPECT_TRUE(whole.value().runs);
  ASSERT_GE(reports.size(), 4u);
  for (std::size_t i = 0; i < reports.size(); ++i)
  {
    const double before = i > 0 ? reports[i - 1] : 0.0;
    // Once all is read, only whether to go on is asked.
    EXPECT_TRUE(reports[i] > before || before == 1.0) << i;
    EXPECT_LE(reports[i], 1.0);
  }

  int calls = 0;
  const Result<ImportedTable> cancelled = importRunTable(text, [&](double) { return ++calls < 2; });
  EXPECT_TRUE(cancelled.isCancelled());
  EXPECT_FALSE(cancelled.hasValue());
  EXPECT_EQ(cancelled.error(), "");
  EXPECT_EQ(calls, 2);
}
