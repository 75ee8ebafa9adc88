#include "plot/ContainerAccess.h"
#include "support/PlotFixture.h"
#include "support/VtkErrors.h"

#include <vtkDoubleArray.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <memory>

namespace
{

class DelimitedFiles : public PlotFixture
{
protected:
  std::string path(const char* name) const { return folder.filePath(name).toStdString(); }

  std::string write(const char* name, const QByteArray& text)
  {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return path(name);
  }

  static std::string read(const std::string& fileName)
  {
    QFile file(QString::fromStdString(fileName));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
  }

  std::string savedText()
  {
    const std::unique_ptr<char[]> text(container.saveData("", true));
    EXPECT_NE(text, nullptr);
    return text ? std::string(text.get()) : std::string();
  }

  vtkDoubleArray* doubles(int column)
  {
    return vtkDoubleArray::SafeDownCast(container.getTable()->GetColumn(column));
  }

  QTemporaryDir folder;
};

TEST_F(DelimitedFiles, GiveNamesFromTheFirstLineAndDoubles)
{
  container.loadData(write("table.csv", "time,Parameter: k1,word\n0,1.5,one\n2,-3e-2,two\n"));
  EXPECT_EQ(container.getLabels(), (QStringList{"time", "Parameter: k1", "word"}));
  ASSERT_EQ(container.getTable()->GetNumberOfRows(), 2);
  ASSERT_NE(doubles(0), nullptr) << "whole numbers are doubles too";
  ASSERT_NE(doubles(1), nullptr);
  EXPECT_EQ(doubles(0)->GetValue(1), 2.0);
  EXPECT_EQ(doubles(1)->GetValue(1), -0.03);
  auto* words = vtkStringArray::SafeDownCast(container.getTable()->GetColumn(2));
  ASSERT_NE(words, nullptr);
  EXPECT_EQ(words->GetValue(1), "two");
}

TEST_F(DelimitedFiles, AreSeparatedByCommasAlone)
{
  container.loadData(write("semicolons.csv", "a;b\n1;2\n"));
  EXPECT_EQ(container.getLabels(), QStringList{"a;b"});
  container.loadData(write("tabs.csv", "a\tb,c\n1\t2,3\n"));
  EXPECT_EQ(container.getLabels(), (QStringList{"a\tb", "c"}));
}

TEST_F(DelimitedFiles, KeepEmptyCellsInTheirColumn)
{
  container.loadData(write("gaps.csv", "a,b,c\n1,,3\n4,,6\n"));
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 3);
  ASSERT_NE(doubles(2), nullptr);
  EXPECT_EQ(doubles(2)->GetValue(0), 3.0);
}

TEST_F(DelimitedFiles, ReplaceTheTableAndNothingElse)
{
  stateOf(container).columnItems = {{Talmesh::Complex, "A"}};
  stateOf(container).derivedTables = {plainTable()};
  settings().parameterColumns = {2};
  settings().title = "kept";
  const vtkSmartPointer<vtkTable> before = container.getTable();
  const std::string fileName = write("table.csv", "x,y\n1,2\n");
  for (const bool blocked : {true, false})
  {
    settings().blockSignals(blocked);
    newDrawings();
    container.loadData(fileName);
    EXPECT_EQ(newDrawings(), 0U);
    EXPECT_EQ(settings().signalsBlocked(), blocked);
  }
  EXPECT_NE(container.getTable(), before.Get());
  EXPECT_EQ(before->GetNumberOfColumns(), 4);
  EXPECT_EQ(container.getColumnItems().size(), 1U);
  EXPECT_EQ(container.getDerivedTables().size(), 1U);
  EXPECT_EQ(settings().parameterColumns, std::vector<int>{2});
  EXPECT_EQ(settings().xColumns, std::vector<int>{0});
  EXPECT_EQ(settings().title, "kept");
  container.redraw();
  scene.render(container);
}

TEST_F(DelimitedFiles, ThatCannotBeReadGiveAnEmptyTable)
{
  const VtkErrors messages;
  for (const std::string& fileName :
       {path("missing.csv"), std::string(), folder.path().toStdString(), write("empty.csv", "")})
  {
    container.setPlotData(plainTable());
    container.loadData(fileName);
    ASSERT_NE(container.getTable(), nullptr) << fileName;
    EXPECT_EQ(container.getTable()->GetNumberOfRows(), 0) << fileName;
    container.redraw();
    scene.render(container);
  }
}

TEST_F(DelimitedFiles, AreWrittenAsTextWhenTheyHaveNoName)
{
  container.setPlotData(tableOf({{"a", {1, 2.5}}, {"Parameter: k1", {-1, 1e-7}}}));
  EXPECT_EQ(savedText(), "\"a\",\"Parameter: k1\"\n1,-1\n2.5,1e-07\n");
}

TEST_F(DelimitedFiles, AreWrittenUnderTheirName)
{
  const std::string fileName = path("saved.csv");
  EXPECT_EQ(container.saveData(fileName, true), nullptr);
  EXPECT_EQ(read(fileName), savedText());
  EXPECT_FALSE(read(fileName).empty());
}

TEST_F(DelimitedFiles, AreWrittenInPiecesToo)
{
  std::vector<double> values(10000);
  for (std::size_t i = 0; i < values.size(); ++i)
    values[i] = 0.1 * static_cast<double>(i);
  const vtkSmartPointer<vtkTable> table = tableOf({{"a \"quoted\"\nname", values}, {"b", values}});
  addStringColumn(table, "words");
  container.setPlotData(table);
  std::string text;
  std::vector<double> parts;
  const auto take = [&](const char* bytes, std::size_t size, double done)
  {
    text.append(bytes, size);
    parts.push_back(done);
    return true;
  };
  EXPECT_TRUE(PlotContainer::writeTable(table, take));
  EXPECT_EQ(text, savedText());
  EXPECT_GT(parts.size(), 2U);
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
  EXPECT_EQ(parts.back(), 1.0);
  const vtkSmartPointer<vtkTable> empty = tableOf({{"a", {}}, {"b", {}}});
  text.clear();
  EXPECT_TRUE(PlotContainer::writeTable(empty, take));
  EXPECT_EQ(text, "\"a\",\"b\"\n");
}

TEST_F(DelimitedFiles, AreWrittenNoFurtherThanTheyAreTaken)
{
  const vtkSmartPointer<vtkTable> table = tableOf({{"a", std::vector<double>(10000, 1.0)}});
  for (const int allowed : {0, 1, 2})
  {
    int pieces = 0;
    EXPECT_FALSE(PlotContainer::writeTable(table, [&](const char*, std::size_t, double)
                                           { return pieces++ < allowed; }));
    EXPECT_EQ(pieces, allowed + 1);
  }
}

TEST_F(DelimitedFiles, LeaveTheContainerAsItIsWhenEverythingIsKept)
{
  const vtkTable* before = container.getTable();
  newDrawings();
  savedText();
  container.saveData(path("saved.csv"), true);
  EXPECT_EQ(container.getTable(), before);
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 4);
  EXPECT_EQ(newDrawings(), 0U);
}

TEST_F(DelimitedFiles, AreWrittenForATableWithoutRowsOrColumns)
{
  container.setPlotData(tableOf({{"a", {}}, {"b", {}}}));
  EXPECT_EQ(savedText(), "\"a\",\"b\"\n");
  container.setPlotData(vtkSmartPointer<vtkTable>::New());
  savedText();
}

TEST_F(DelimitedFiles, ThatCannotBeWrittenGiveNull)
{
  const VtkErrors messages;
  EXPECT_EQ(container.saveData(path("missing/folder.csv"), true), nullptr);
  EXPECT_FALSE(QFile::exists(QString::fromStdString(path("missing/folder.csv"))));
}

TEST_F(DelimitedFiles, ComeBackAsTheyWereWritten)
{
  const vtkSmartPointer<vtkTable> table = tableOf({{": Time [s]", {0, 0.5, 1e6}},
                                                   {"Complex: A,B", {1e-300, -2.25, 123456}},
                                                   {"Molecule: \xce\xb1-factor", {1, 2, 3}}});
  addStringColumn(table, "words");
  container.setPlotData(table);
  const std::string fileName = path("round.csv");
  container.saveData(fileName, true);
  const std::string text = savedText();

  container.loadData(fileName);
  ASSERT_EQ(container.getTable()->GetNumberOfColumns(), 4);
  ASSERT_EQ(container.getTable()->GetNumberOfRows(), 3);
  for (int column = 0; column < 4; ++column)
  {
    EXPECT_STREQ(container.getTable()->GetColumnName(column), table->GetColumnName(column));
    for (int row = 0; row < 3; ++row)
      EXPECT_EQ(container.getTable()->GetValue(row, column), table->GetValue(row, column));
  }
  EXPECT_EQ(savedText(), text);
}

TEST_F(DelimitedFiles, BringBackQuotesAndBackslashesOfNamesAndTexts)
{
  const std::vector<std::string> names = {"k \"fast\"", "\"", "\"\"x", "a\\b\\", "c:\\new, \"\\\""};
  NamedValues columns;
  for (const std::string& name : names)
    columns.emplace_back(name, std::vector<double>{1, 2});
  const vtkSmartPointer<vtkTable> table = tableOf(columns);
  vtkNew<vtkStringArray> words;
  words->SetName("words");
  words->InsertNextValue("say \"no\"");
  words->InsertNextValue("\\n");
  table->AddColumn(words);
  container.setPlotData(table);
  const std::string fileName = path("quotes.csv");
  container.saveData(fileName, true);
  EXPECT_EQ(table->GetColumnName(0), names[0]) << "the table itself stays as it is";
  const std::string text = savedText();
  EXPECT_EQ(text.rfind("\"k \"\"fast\"\"\",\"\"\"\",", 0), 0U) << "as all other readers expect it";

  container.loadData(fileName);
  ASSERT_EQ(container.getTable()->GetNumberOfColumns(), 6);
  ASSERT_EQ(container.getTable()->GetNumberOfRows(), 2);
  for (std::size_t i = 0; i < names.size(); ++i)
    EXPECT_EQ(container.getTable()->GetColumnName(static_cast<vtkIdType>(i)), names[i]);
  EXPECT_EQ(container.getTable()->GetValue(0, 5).ToString(), "say \"no\"");
  EXPECT_EQ(container.getTable()->GetValue(1, 5).ToString(), "\\n");
  EXPECT_EQ(doubles(4)->GetValue(1), 2.0);
  EXPECT_EQ(savedText(), text);
}

TEST_F(DelimitedFiles, KeepSixDigits)
{
  container.setPlotData(tableOf({{"a", {1.0 / 3.0, -1234567.0, 9.87654321e-20}}}));
  const vtkSmartPointer<vtkTable> table = container.getTable();
  const std::string fileName = path("digits.csv");
  container.saveData(fileName, true);
  container.loadData(fileName);
  ASSERT_NE(doubles(0), nullptr);
  for (int row = 0; row < 3; ++row)
  {
    const double value = table->GetValue(row, 0).ToDouble();
    EXPECT_NEAR(doubles(0)->GetValue(row), value, 5e-6 * std::abs(value));
  }
}

} // namespace
