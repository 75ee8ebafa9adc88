#include "app/window/ImportModel.h"

#include "app/window/ImportSummary.h"
#include "support/German.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

using namespace Talmesh::app;

namespace
{

using Names = std::vector<std::string>;

class ImportModels : public ::testing::Test
{
protected:
  void read(const std::string& text, const ImportRequest& request = {})
  {
    model.setRows(firstRowsOf(text, request).value());
  }

  QString header(int column)
  {
    return model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  }

  ImportRequest request() const
  {
    ImportRequest said;
    model.addTo(said);
    return said;
  }

  ImportModel model;
};

} // namespace

TEST_F(ImportModels, ShowCellsAndLines)
{
  read("# notes\ntime,A\n0,1.50\n1,<BLQ\n");
  EXPECT_EQ(model.rowCount(), 2);
  EXPECT_EQ(model.columnCount(), 2);
  EXPECT_EQ(model.data(model.index(1, 1), Qt::DisplayRole), "<BLQ");
  EXPECT_EQ(model.headerData(1, Qt::Vertical, Qt::DisplayRole).toInt(), 4);
  EXPECT_EQ(model.rowOfLine(4), 1);
  EXPECT_EQ(model.rowOfLine(2), -1);
}

TEST_F(ImportModels, TellWhatIsRecognisedInBrackets)
{
  read("run,time,A,k,drug,note\n0,0,1,2,x,\n");
  ImportReport report;
  report.layout = "stacked";
  report.time = "time";
  report.items = {"A"};
  report.parameters = {"k"};
  report.categories = {"drug"};
  report.ignored = {"note"};
  model.setReport(report);
  const QStringList expected = {"(run)",       "(time)",      "(measured)",
                                "(parameter)", "(condition)", "(ignored)"};
  for (int column = 0; column < expected.size(); ++column)
    EXPECT_TRUE(header(column).contains(expected[column])) << header(column).toStdString();
  model.setRole(3, ColumnRole::Measured);
  EXPECT_TRUE(header(3).startsWith("k\nmeasured")) << header(3).toStdString();
}

TEST_F(ImportModels, SayWhatIsAskedInTheOrderOfColumns)
{
  read("sim,rep,t,what,conc,k,drug,noise\n1,1,0,A,2,3,4,5\n");
  QSignalSpy changed(&model, &ImportModel::rolesChanged);
  model.setRole(1, ColumnRole::Run);
  model.setRole(0, ColumnRole::Run);
  model.setRole(2, ColumnRole::Time);
  model.setRole(3, ColumnRole::Item);
  model.setRole(4, ColumnRole::Value);
  model.setRole(5, ColumnRole::Parameter);
  model.setRole(6, ColumnRole::Condition);
  model.setRole(7, ColumnRole::Ignored);
  EXPECT_EQ(changed.size(), 8);
  EXPECT_EQ(request().run, (Names{"sim", "rep"}));
  EXPECT_EQ(request().time, "t");
  EXPECT_EQ(request().item, "what");
  EXPECT_EQ(request().value, "conc");
  EXPECT_EQ(request().parameters, Names{"k"});
  EXPECT_EQ(request().conditions, Names{"drug"});
  EXPECT_EQ(request().ignored, Names{"noise"});
  model.setRole(7, ColumnRole::Ignored);
  EXPECT_EQ(changed.size(), 8) << "that is what it is";
}

TEST_F(ImportModels, HaveOneTime)
{
  read("t,s\n0,1\n");
  model.setRole(0, ColumnRole::Time);
  model.setRole(1, ColumnRole::Time);
  EXPECT_EQ(request().time, "s");
  EXPECT_EQ(model.askedRole(0), ColumnRole::Automatic);
}

TEST_F(ImportModels, ForgetColumnsThatTheTableHasNotWhenReadOtherwise)
{
  read("a;b,c\n1;2,3\n");
  ImportRequest commas;
  commas.separator = ',';
  model.setRole(0, ColumnRole::Ignored);
  read("a;b,c\n1;2,3\n", commas);
  EXPECT_TRUE(request().ignored.empty());
}

TEST_F(ImportModels, StayWhereTheyAreWhenTheSameIsReadAgain)
{
  read("a,b\n1,2\n");
  QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
  read("a,b\n1,2\n");
  EXPECT_EQ(reset.size(), 0);
  read("a,b\n1,3\n");
  EXPECT_EQ(reset.size(), 1);
}

TEST(ImportSummary, CountsWhatThereIs)
{
  ImportReport report;
  report.runs = 300;
  report.fewestPoints = report.mostPoints = 200;
  report.parameters = {"a", "b", "c"};
  report.items = {"X", "Y"};
  EXPECT_EQ(sizeOf(report), "300 runs of 200 points, 3 parameters, 2 items");
  report.fewestPoints = 7;
  report.runs = 1;
  report.parameters = {"a"};
  report.categories = {"drug"};
  EXPECT_EQ(sizeOf(report), "1 run of 7 to 200 points, 1 parameter, 2 items, 1 condition");
  report = {};
  report.mostPoints = 150;
  report.items = {"X"};
  EXPECT_EQ(sizeOf(report), "150 rows, 1 item");
}

TEST(ImportSummary, FindsTheLineOfANote)
{
  EXPECT_EQ(lineIn("a.csv: line 12: \"x\" in the column \"3\" is not a number"), 12U);
  EXPECT_EQ(lineIn("The lines 1 to 4 stand above the table and are not read."), 1U);
  EXPECT_EQ(lineIn("Line 7, the last one, is cut short and is not read."), 7U);
  EXPECT_EQ(lineIn("commas part 3 fields in 5 of the lines looked at"), 0U);
  const German german;
  EXPECT_EQ(lineIn(QString::fromUtf8("Zeile 12: „x“ ist keine Zahl")), 12U);
  EXPECT_EQ(lineIn("Die Zeilen 1 bis 4 stehen dar\u00fcber"), 1U);
}
