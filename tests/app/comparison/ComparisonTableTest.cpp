#include "app/comparison/ComparisonText.h"

#include <QLabel>

#include <cmath>

#include "comparison/TableOfAComparison.h"

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
