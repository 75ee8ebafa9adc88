#include "app/comparison/ComparisonTable.h"

#include "app/comparison/ComparisonModel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Talmesh::app;

namespace
{

ComparedParameter parameter(const char* name, double statistic, double p, double adjusted,
                            bool significant)
{
  return {name, statistic, p, adjusted, 8, 12, significant};
}

/// Without results, in any place of the comparison.
ComparedParameter untested(const char* name, TestObstacle obstacle)
{
  const double none = std::nan("");
  return {name, none, none, none, 8, 12, false, obstacle};
}

Comparison sampleComparison()
{
  // p.adjust(c(0.2, 1e-10, 0.03), "BH")  # R: 0.200 3e-10 0.045
  return {Comparison::State::compared,
          {parameter("k1", 0.25, 0.2, 0.2, false), parameter("K10", 1.0, 1e-10, 3e-10, true),
           parameter("k, \"2\"", 0.5, 0.03, 0.045, true)}};
}

class TableOfAComparison : public ::testing::Test
{
protected:
  TableOfAComparison()
  {
    table.resize(700, 200);
    table.setComparison(sampleComparison());
    table.show();
  }

  QTableView& view() { return *table.findChild<QTableView*>(QStringLiteral("comparisonTable")); }
  QLabel& explanation()
  {
    return *table.findChild<QLabel*>(QStringLiteral("comparisonExplanation"));
  }

  QString cell(int row, int column) { return view().model()->index(row, column).data().toString(); }

  QStringList names()
  {
    QStringList shown;
    for (int row = 0; row < view().model()->rowCount(); ++row)
      shown.append(cell(row, ComparisonModel::Name));
    return shown;
  }

  ComparisonTable table;
};

} // namespace

TEST_F(TableOfAComparison, BeginsWithTheLargestDifference)
{
  EXPECT_EQ(names(), (QStringList{"K10", "k, \"2\"", "k1"}));
  EXPECT_EQ(cell(0, ComparisonModel::Statistic), "1.000");
  EXPECT_EQ(cell(0, ComparisonModel::PValue), "1.00e-10");
  EXPECT_EQ(cell(0, ComparisonModel::AdjustedPValue), "3.00e-10");
  EXPECT_EQ(cell(0, ComparisonModel::Selected), "8");
  EXPECT_EQ(cell(0, ComparisonModel::Others), "12");
  EXPECT_EQ(cell(0, ComparisonModel::Significant), "yes");
  EXPECT_EQ(cell(2, ComparisonModel::Significant), "no");
  EXPECT_EQ(cell(2, ComparisonModel::PValue), "0.200");
}

TEST_F(TableOfAComparison, IsSortedByNumbersNotByTheirText)
{
  // As text "1.00e-10" comes between "0.030" and "2..."
  view().sortByColumn(ComparisonModel::PValue, Qt::AscendingOrder);
  EXPECT_EQ(names(), (QStringList{"K10", "k, \"2\"", "k1"}));
  view().sortByColumn(ComparisonModel::PValue, Qt::DescendingOrder);
  EXPECT_EQ(names(), (QStringList{"k1", "k, \"2\"", "K10"}));
  view().sortByColumn(ComparisonModel::Name, Qt::AscendingOrder);
  EXPECT_EQ(names(), (QStringList{"k, \"2\"", "k1", "K10"}));
}

TEST_F(TableOfAComparison, PutsWhatIsNoNumberLast)
{
  Comparison comparison = sampleComparison();
  comparison.parameters[1].pValue = std::nan("");
  table.setComparison(comparison);
  view().sortByColumn(ComparisonModel::PValue, Qt::AscendingOrder);
  EXPECT_EQ(names(), (QStringList{"k, \"2\"", "k1", "K10"}));
  EXPECT_EQ(cell(2, ComparisonModel::PValue), "nan");
  view().sortByColumn(ComparisonModel::PValue, Qt::DescendingOrder);
  EXPECT_EQ(names(), (QStringList{"k1", "k, \"2\"", "K10"}));
}

TEST_F(TableOfAComparison, PutsWhatIsNotTestedLast)
{
  Comparison comparison = sampleComparison();
  comparison.parameters.insert(comparison.parameters.begin(),
                               untested("switch", TestObstacle::repeatedValues));
  table.setComparison(comparison);
  for (const int column : {ComparisonModel::Statistic, ComparisonModel::PValue,
                           ComparisonModel::AdjustedPValue, ComparisonModel::Significant})
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder})
    {
      view().sortByColumn(column, order);
      EXPECT_EQ(names().back(), "switch") << column << ' ' << order;
    }
}

TEST_F(TableOfAComparison, HasDashesAndTheReasonForWhatIsNotTested)
{
  const std::pair<TestObstacle, const char*> reasons[] = {
      {TestObstacle::repeatedValues, "Values repeat"},
      {TestObstacle::missingValues, "Values are missing"},
      {TestObstacle::changingValues, "Values change within a run"},
      {TestObstacle::otherParameter, "Another parameter"}};
  for (const auto& [obstacle, words] : reasons)
  {
    table.setComparison({Comparison::State::compared, {untested("switch", obstacle)}});
    for (const int column : {ComparisonModel::Statistic, ComparisonModel::PValue,
                             ComparisonModel::AdjustedPValue, ComparisonModel::Significant})
    {
      EXPECT_EQ(cell(0, column), QString::fromUtf8("\xe2\x80\x93"));
      const QVariant tip = view().model()->index(0, column).data(Qt::ToolTipRole);
      EXPECT_TRUE(tip.toString().contains(QLatin1String(words))) << words;
    }
    EXPECT_EQ(cell(0, ComparisonModel::Name), "switch");
    EXPECT_EQ(cell(0, ComparisonModel::Selected), "8");
    EXPECT_EQ(cell(0, ComparisonModel::Others), "12");
    EXPECT_TRUE(table.commaText().endsWith("\nswitch,,,,8,12,not tested\n"));
    EXPECT_TRUE(table.tabbedText().endsWith("\nswitch\t\t\t\t8\t12\tnot tested\n"));
  }
}

TEST_F(TableOfAComparison, KeepsTheMarksOfTheUserWhenTheComparisonChanges)
{
  view().selectRow(0);
  view().selectionModel()->select(view().model()->index(2, 0),
                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
  view().selectionModel()->setCurrentIndex(view().model()->index(2, ComparisonModel::PValue),
                                           QItemSelectionModel::NoUpdate);
  // K10, which was the first, becomes the last; k1 moves up.
  Comparison comparison = sampleComparison();
  comparison.parameters[1].statistic = 0.1;
  table.setComparison(comparison);
  ASSERT_EQ(names(), (QStringList{"k, \"2\"", "k1", "K10"}));
  const auto isMarked = [this](int row)
  { return view().selectionModel()->isRowSelected(row, QModelIndex()); };
  EXPECT_FALSE(isMarked(0));
  EXPECT_TRUE(isMarked(1));
  EXPECT_TRUE(isMarked(2));
  EXPECT_EQ(view().currentIndex(), view().model()->index(1, ComparisonModel::PValue));
  comparison.parameters.erase(comparison.parameters.begin());
  table.setComparison(comparison);
  ASSERT_EQ(names(), (QStringList{"k, \"2\"", "K10"}));
  EXPECT_FALSE(isMarked(0));
  EXPECT_TRUE(isMarked(1));
  EXPECT_FALSE(view().currentIndex().isValid()) << "its parameter has gone";
}

TEST_F(TableOfAComparison, KeepsItsOrderWhenTheComparisonChanges)
{
  view().sortByColumn(ComparisonModel::Name, Qt::AscendingOrder);
  table.setComparison(sampleComparison());
  EXPECT_EQ(names(), (QStringList{"k, \"2\"", "k1", "K10"}));
}

TEST_F(TableOfAComparison, IsCopiedWithTabsAndItsHeader)
{
  QSignalSpy said(&table, &ComparisonTable::said);
  view().setFocus();
  QApplication::setActiveWindow(&table);
  QTest::keyClick(&view(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
            "Parameter\tD\tp\tAdjusted p\tSelected\tNot selected\tSignificant\n"
            "K10\t1\t1e-10\t3e-10\t8\t12\tyes\n"
            "k, \"2\"\t0.5\t0.03\t0.045\t8\t12\tyes\n"
            "k1\t0.25\t0.2\t0.2\t8\t12\tno\n");
  EXPECT_EQ(said.count(), 1);
}

TEST_F(TableOfAComparison, CopiesOnlyTheSelectedRows)
{
  view().selectRow(1);
  EXPECT_EQ(table.tabbedText().toStdString(),
            "Parameter\tD\tp\tAdjusted p\tSelected\tNot selected\tSignificant\n"
            "k, \"2\"\t0.5\t0.03\t0.045\t8\t12\tyes\n");
}

TEST_F(TableOfAComparison, KeepsACellOnOneLineWhenCopied)
{
  Comparison comparison = sampleComparison();
  comparison.parameters.resize(1);
  comparison.parameters[0].name = "a\tb\nc";
  table.setComparison(comparison);
  EXPECT_TRUE(table.tabbedText().contains("\na b c\t0.25\t"));
}

TEST_F(TableOfAComparison, IsSavedWithCommasAndQuotes)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("comparison.csv"));
  view().selectRow(1);
  EXPECT_EQ(table.save(path), "");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll().toStdString(),
            "Parameter,D,p,Adjusted p,Selected,Not selected,Significant\n"
            "K10,1,1e-10,3e-10,8,12,yes\n"
            "\"k, \"\"2\"\"\",0.5,0.03,0.045,8,12,yes\n"
            "k1,0.25,0.2,0.2,8,12,no\n");
}

TEST_F(TableOfAComparison, IsSavedAsItWasWhenTheUserAskedForIt)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("comparison.csv"));
  const QString asked = table.commaText();
  table.setWindowFilePath(QStringLiteral("runs.csv"));
  table.chooseFileAndSave();
  auto* dialog = table.findChild<QFileDialog*>();
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(dialog->selectedFiles().value(0).endsWith("/runs-comparison.csv"));
  table.setComparison({Comparison::State::nothingSelected, {}});
  QSignalSpy said(&table, &ComparisonTable::said);
  emit dialog->fileSelected(path);
  dialog->close();
  EXPECT_EQ(said.count(), 1);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(file.readAll()), asked);
}

TEST_F(TableOfAComparison, ReportsThatItCannotBeSaved)
{
  const QTemporaryDir folder;
  QSignalSpy said(&table, &ComparisonTable::said);
  QSignalSpy failed(&table, &ComparisonTable::failed);
  table.chooseFileAndSave();
  auto* dialog = table.findChild<QFileDialog*>();
  ASSERT_NE(dialog, nullptr);
  const QString path = folder.filePath(QStringLiteral("nowhere/comparison.csv"));
  emit dialog->fileSelected(path);
  dialog->close();
  EXPECT_EQ(said.count(), 0);
  ASSERT_EQ(failed.count(), 1);
  EXPECT_TRUE(failed[0][0].toString().startsWith(path + ": "));
}

TEST_F(TableOfAComparison, LeavesNothingWhereItCannotBeSaved)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("nowhere/comparison.csv"));
  EXPECT_EQ(table.save(path).find(path.toStdString() + ": "), 0U);
  EXPECT_TRUE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}

TEST_F(TableOfAComparison, SaysWhyItIsEmpty)
{
  EXPECT_FALSE(explanation().isVisible());
  const std::pair<Comparison::State, const char*> reasons[] = {
      {Comparison::State::noParameters, "no parameters"},
      {Comparison::State::nothingSelected, "Nothing is selected"},
      {Comparison::State::noRunSelected, "No run is selected at every time"},
      {Comparison::State::noOthers, "All runs are selected"}};
  for (const auto& [state, words] : reasons)
  {
    table.setComparison({state, {}});
    EXPECT_TRUE(explanation().isVisible()) << words;
    EXPECT_TRUE(explanation().text().contains(QLatin1String(words))) << words;
    EXPECT_FALSE(view().isVisible());
  }
  table.setComparison(sampleComparison());
  EXPECT_TRUE(view().isVisible());
}
