#include "app/comparison/ComparisonTable.h"

#include "app/comparison/ComparisonModel.h"
#include "app/comparison/ComparisonText.h"

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

ComparedParameter parameter(const char* name, double distance, double p, double adjusted,
                            bool significant)
{
  ComparedParameter row{name, {}, TestObstacle::none, significant};
  row.result.selected = 8;
  row.result.others = 12;
  row.result.distance = distance;
  row.result.p = p;
  row.result.adjusted = adjusted;
  row.result.method = Talmesh::stats::TestMethod::exactDistribution;
  row.result.direction = Talmesh::stats::Direction::larger;
  row.result.superiority = 0.75;
  row.result.medianDifference = -2.5;
  return row;
}

/// Without a test, in any place of the comparison.
ComparedParameter untested(const char* name, TestObstacle obstacle)
{
  const double none = std::nan("");
  ComparedParameter row = parameter(name, none, none, none, false);
  row.obstacle = obstacle;
  return row;
}

Comparison comparisonWith(std::vector<ComparedParameter> parameters)
{
  Comparison comparison;
  comparison.state = Comparison::State::compared;
  comparison.parameters = std::move(parameters);
  comparison.units.units = 20;
  return comparison;
}

Comparison withoutParameters(Comparison::State state)
{
  Comparison comparison;
  comparison.state = state;
  return comparison;
}

Comparison sampleComparison()
{
  // p.adjust(c(0.2, 1e-10, 0.03), "BH")  # R: 0.200 3e-10 0.045
  return comparisonWith({parameter("k1", 0.25, 0.2, 0.2, false),
                         parameter("K10", 1.0, 1e-10, 3e-10, true),
                         parameter("k, \"2\"", 0.5, 0.03, 0.045, true)});
}

class TableOfAComparison : public ::testing::Test
{
protected:
  TableOfAComparison()
  {
    table.resize(700, 200);
    table.setComparison(sampleComparison(), 1);
    table.show();
  }

  QTableView& view() { return *table.findChild<QTableView*>(QStringLiteral("comparisonTable")); }
  QLabel& explanation()
  {
    return *table.findChild<QLabel*>(QStringLiteral("comparisonExplanation"));
  }

  QString cell(int row, int column) { return view().model()->index(row, column).data().toString(); }

  bool isBold(int row)
  {
    return view().model()->index(row, 0).data(Qt::FontRole).value<QFont>().bold();
  }

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
  EXPECT_EQ(cell(0, ComparisonModel::DirectionOfDifference), "larger in selected");
  EXPECT_EQ(cell(0, ComparisonModel::Superiority), "0.750");
  EXPECT_EQ(cell(0, ComparisonModel::MedianDifference), "-2.500");
  EXPECT_TRUE(isBold(0));
  EXPECT_FALSE(isBold(2));
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
  comparison.parameters[1].result.p = std::nan("");
  table.setComparison(comparison, 1);
  view().sortByColumn(ComparisonModel::PValue, Qt::AscendingOrder);
  EXPECT_EQ(names(), (QStringList{"k, \"2\"", "k1", "K10"}));
  EXPECT_EQ(cell(2, ComparisonModel::PValue), QString::fromUtf8("\xe2\x80\x93"));
  view().sortByColumn(ComparisonModel::PValue, Qt::DescendingOrder);
  EXPECT_EQ(names(), (QStringList{"k1", "k, \"2\"", "K10"}));
}

TEST_F(TableOfAComparison, PutsWhatIsNotTestedLast)
{
  Comparison comparison = sampleComparison();
  comparison.parameters.insert(comparison.parameters.begin(),
                               untested("switch", TestObstacle::constant));
  table.setComparison(comparison, 1);
  for (const int column :
       {ComparisonModel::Statistic, ComparisonModel::PValue, ComparisonModel::AdjustedPValue})
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder})
    {
      view().sortByColumn(column, order);
      EXPECT_EQ(names().back(), "switch") << column << ' ' << order;
    }
}

TEST_F(TableOfAComparison, HasTheReasonInPlaceOfP)
{
  const std::pair<TestObstacle, const char*> reasons[] = {
      {TestObstacle::constant, "same value"},
      {TestObstacle::changingValues, "Values change within a run"},
      {TestObstacle::chosenByParameter, "Chosen by this parameter"},
      {TestObstacle::tooFewUnits, "too few parameter sets"},
      {TestObstacle::pending, "under way"}};
  for (const auto& [obstacle, words] : reasons)
  {
    table.setComparison(comparisonWith({untested("switch", obstacle)}), 1);
    EXPECT_EQ(cell(0, ComparisonModel::PValue), obstacleLabel(obstacle));
    EXPECT_EQ(cell(0, ComparisonModel::AdjustedPValue), QString::fromUtf8("\xe2\x80\x93"));
    for (const int column : {ComparisonModel::PValue, ComparisonModel::AdjustedPValue})
    {
      const QVariant tip = view().model()->index(0, column).data(Qt::ToolTipRole);
      EXPECT_TRUE(tip.toString().contains(QLatin1String(words))) << words;
    }
    EXPECT_EQ(cell(0, ComparisonModel::Name), "switch");
    EXPECT_EQ(cell(0, ComparisonModel::Selected), "8");
    EXPECT_EQ(cell(0, ComparisonModel::Others), "12");
  }
  EXPECT_TRUE(table.commaText().contains("\nswitch,8,12,,,,,,not tested: under way,larger"));
}

TEST_F(TableOfAComparison, TellsTheMethodAndAllDigitsInTheToolTip)
{
  const QString tip =
      view().model()->index(1, ComparisonModel::PValue).data(Qt::ToolTipRole).toString();
  EXPECT_TRUE(tip.startsWith("0.0299999999999999")) << tip.toStdString();
  EXPECT_TRUE(tip.contains("Kolmogorov-Smirnov test, exact")) << tip.toStdString();
}

TEST_F(TableOfAComparison, SumsUpWhatIsIndependent)
{
  auto* summary = table.findChild<QLabel*>(QStringLiteral("comparisonSummary"));
  EXPECT_TRUE(summary->isVisible());
  EXPECT_TRUE(summary->text().contains("20 runs"));
  table.setComparison(sampleComparison(), 7);
  EXPECT_TRUE(summary->text().contains("so far: 7")) << summary->text().toStdString();
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
  comparison.parameters[1].result.distance = 0.1;
  table.setComparison(comparison, 1);
  ASSERT_EQ(names(), (QStringList{"k, \"2\"", "k1", "K10"}));
  const auto isMarked = [this](int row)
  { return view().selectionModel()->isRowSelected(row, QModelIndex()); };
  EXPECT_FALSE(isMarked(0));
  EXPECT_TRUE(isMarked(1));
  EXPECT_TRUE(isMarked(2));
  EXPECT_EQ(view().currentIndex(), view().model()->index(1, ComparisonModel::PValue));
  comparison.parameters.erase(comparison.parameters.begin());
  table.setComparison(comparison, 1);
  ASSERT_EQ(names(), (QStringList{"k, \"2\"", "K10"}));
  EXPECT_FALSE(isMarked(0));
  EXPECT_TRUE(isMarked(1));
  EXPECT_FALSE(view().currentIndex().isValid()) << "its parameter has gone";
}

TEST_F(TableOfAComparison, KeepsItsOrderWhenTheComparisonChanges)
{
  view().sortByColumn(ComparisonModel::Name, Qt::AscendingOrder);
  table.setComparison(sampleComparison(), 1);
  EXPECT_EQ(names(), (QStringList{"k, \"2\"", "k1", "K10"}));
}

namespace
{

constexpr const char* tabbedHeader = "parameter\tselected\tothers\tD\tD_low\tD_high\tp\t"
                                     "p_adjusted\tmethod\tdirection\tsuperiority\t"
                                     "median_difference\n";
constexpr const char* tabbedSecond = "k, \"2\"\t8\t12\t0.5\t\t\t0.029999999999999999\t"
                                     "0.044999999999999998\tKolmogorov-Smirnov (exact)\t"
                                     "larger in selected\t0.75\t-2.5\n";

} // namespace

TEST_F(TableOfAComparison, IsCopiedWithTabsAndItsHeader)
{
  QSignalSpy said(&table, &ComparisonTable::said);
  view().setFocus();
  QApplication::setActiveWindow(&table);
  QTest::keyClick(&view(), Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
  ASSERT_EQ(lines.size(), 5);
  EXPECT_EQ(lines[0] + "\n", tabbedHeader);
  EXPECT_TRUE(lines[1].startsWith("K10\t8\t12\t1\t")) << lines[1].toStdString();
  EXPECT_EQ(lines[2] + "\n", tabbedSecond);
  EXPECT_TRUE(lines[3].startsWith("k1\t8\t12\t0.25\t")) << lines[3].toStdString();
  EXPECT_EQ(said.count(), 1);
}

TEST_F(TableOfAComparison, CopiesOnlyTheSelectedRows)
{
  view().selectRow(1);
  EXPECT_EQ(table.tabbedText().toStdString(), std::string(tabbedHeader) + tabbedSecond);
}

TEST_F(TableOfAComparison, KeepsACellOnOneLineWhenCopied)
{
  Comparison comparison = sampleComparison();
  comparison.parameters.resize(1);
  comparison.parameters[0].name = "a\tb\nc";
  table.setComparison(comparison, 1);
  EXPECT_TRUE(table.tabbedText().contains("\na b c\t8\t12\t0.25\t"));
}

TEST_F(TableOfAComparison, IsSavedWithCommasAndQuotes)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("comparison.csv"));
  view().selectRow(1);
  EXPECT_EQ(table.save(path), "");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QList<QByteArray> lines = file.readAll().split('\n');
  ASSERT_EQ(lines.size(), 5) << "the whole table";
  EXPECT_TRUE(lines[0].startsWith("parameter,selected,others,D,"));
  EXPECT_TRUE(lines[1].startsWith("K10,8,12,1,")) << "in the order shown";
  EXPECT_TRUE(lines[2].startsWith("\"k, \"\"2\"\"\",8,12,0.5,"));
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
  table.setComparison(withoutParameters(Comparison::State::nothingSelected), 1);
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
      {Comparison::State::noOthers, "All runs are selected"}};
  for (const auto& [state, words] : reasons)
  {
    table.setComparison(withoutParameters(state), 1);
    EXPECT_TRUE(explanation().isVisible()) << words;
    EXPECT_TRUE(explanation().text().contains(QLatin1String(words))) << words;
    EXPECT_FALSE(view().isVisible());
  }
  table.setComparison(sampleComparison(), 1);
  EXPECT_TRUE(view().isVisible());
}
