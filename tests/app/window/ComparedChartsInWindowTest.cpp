#include "app/comparison/ComparisonModel.h"
#include "app/document/SelectionController.h"

#include <vtkAxis.h>
#include <vtkPlot.h>
#include <vtkTable.h>

#include <QComboBox>
#include <QFont>
#include <QSpinBox>

#include <memory>
#include <sstream>
#include <vector>

#include "window/ComparisonInWindow.h"
#include "window/PlotMouse.h"

using namespace Talmesh::app;

namespace
{

constexpr int runs = 23;
constexpr int selectedRunCount = 8;

/// The last of six parameters rises with the level X of a run, but for the two runs at the border
/// of the selection; the others take the same values in other orders.
std::string sixParameters()
{
  constexpr int factors[] = {5, 7, 9, 10, 11};
  std::ostringstream text;
  text << "run,time,p0,p1,p2,p3,p4,p5,X\n";
  for (int run = 0; run < runs; ++run)
    for (int point = 0; point < 5; ++point)
    {
      text << run << ',' << point;
      for (const int factor : factors)
        text << ',' << run * factor % runs;
      const int swapped = run == 7 ? 8 : run == 8 ? 7 : run;
      text << ',' << swapped << ',' << 10 + run + 0.01 * point << '\n';
    }
  return text.str();
}

class ComparedChartsInWindow : public ComparisonInWindow
{
protected:
  ComparedChartsInWindow() { open({}, sixParameters()); }

  void selectLowRuns()
  {
    std::set<int> low;
    for (int run = 0; run < selectedRunCount; ++run)
      low.insert(run);
    select(low);
  }

  /// Drags a rectangle over the third point of the runs that are lowest.
  void dragOverLowRuns()
  {
    vtkChartXY* chart = container().getChartXY();
    const double bottom = chart->GetAxis(vtkAxis::LEFT)->GetMinimum();
    VtkPlotWidget& plot = *window.plotWidget();
    drag(plot, Qt::RightButton, pixelOf(chart, plot, 1.6, 9.5 + selectedRunCount),
         pixelOf(chart, plot, 2.4, bottom));
    QCoreApplication::processEvents();
  }

  vtkChart* parameterChart(int place)
  {
    return container().getChartMatrix()->GetChart(vtkVector2i(place % 4, place / 4));
  }

  /// The parameters of the first charts, in their order.
  std::vector<std::string> charts(int count)
  {
    std::vector<std::string> names;
    for (int place = 0; place < count; ++place)
      names.push_back(parameterChart(place)->GetAxis(vtkAxis::BOTTOM)->GetTitle());
    return names;
  }

  void type(const char* name, const char* number)
  {
    auto* box = window.findChild<QAbstractSpinBox*>(QLatin1String(name));
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(number));
    QTest::keyClick(box, Qt::Key_Return);
  }

  QModelIndex indexOf(const char* parameter, int column)
  {
    for (int row = 0; row < table().rowCount(); ++row)
      if (table().index(row, ComparisonModel::Name).data() == QLatin1String(parameter))
        return table().index(row, column);
    return {};
  }
  std::string cell(const char* parameter, int column)
  {
    return indexOf(parameter, column).data().toString().toStdString();
  }
  double sortedBy(const char* parameter, int column)
  {
    return indexOf(parameter, column).data(ComparisonModel::SortRole).toDouble();
  }
  bool isBold(const char* parameter)
  {
    return indexOf(parameter, 0).data(Qt::FontRole).value<QFont>().bold();
  }
};

using Names = std::vector<std::string>;

} // namespace

TEST_F(ComparedChartsInWindow, FollowADraggedRectangle)
{
  ASSERT_EQ(charts(1), Names{"p0"});
  EXPECT_EQ(parameterChart(0)->GetNumberOfPlots(), 1);
  dragOverLowRuns();
  EXPECT_EQ(std::unique_ptr<ParameterSelection>(container().getSelection())->runs.size(),
            static_cast<std::size_t>(selectedRunCount));
  EXPECT_EQ(table().rowCount(), 6);
  // Up to 8 there are all of 0 ... 6, 8 and, of the fifteen others, only 7: the distance is 14/15.
  EXPECT_EQ(cell("p5", ComparisonModel::Statistic).substr(0, 5), "0.933");
  EXPECT_EQ(cell("p5", ComparisonModel::Selected), "8");
  EXPECT_EQ(cell("p5", ComparisonModel::Others), "15");
  EXPECT_EQ(charts(1), Names{"p5"});
  for (int place = 0; place < 4; ++place)
  {
    const std::string name = parameterChart(place)->GetAxis(vtkAxis::BOTTOM)->GetTitle();
    const std::string adjusted = cell(name.c_str(), ComparisonModel::AdjustedPValue);
    const bool isRelation = adjusted.find_first_of("<>") == 0;
    EXPECT_EQ(parameterChart(place)->GetTitle(),
              "adjusted p " + (isRelation ? adjusted : "= " + adjusted));
    ASSERT_EQ(parameterChart(place)->GetNumberOfPlots(), 3);
    EXPECT_EQ(parameterChart(place)->GetPlot(1)->GetInput()->GetNumberOfRows(), selectedRunCount);
    EXPECT_EQ(parameterChart(place)->GetPlot(2)->GetInput()->GetNumberOfRows(),
              runs - selectedRunCount);
  }
  EXPECT_TRUE(saysHowLongItTook()) << window.statusBar()->currentMessage().toStdString();
}

TEST_F(ComparedChartsInWindow, FollowTheThresholdOfTheAdjustedP)
{
  selectLowRuns();
  EXPECT_EQ(charts(1), Names{"p5"});
  EXPECT_TRUE(isBold("p5"));
  EXPECT_FALSE(isBold("p0"));
  EXPECT_EQ(container().getChartMatrix()->GetSize().GetY(), 2);
  type("pThreshold", "1e-9");
  EXPECT_EQ(settings().getPThreshold(), 1e-9);
  EXPECT_FALSE(isBold("p5"));
  type("pThreshold", "1");
  EXPECT_EQ(container().getChartMatrix()->GetSize().GetY(), 4) << "six charts";
  EXPECT_TRUE(isBold("p0"));
}

TEST_F(ComparedChartsInWindow, FollowTheThresholdOfTheDistance)
{
  selectLowRuns();
  type("ksThreshold", "0.95");
  EXPECT_FALSE(isBold("p5"));
  type("ksThreshold", "0.9");
  EXPECT_EQ(charts(1), Names{"p5"});
  EXPECT_TRUE(isBold("p5"));
}

TEST_F(ComparedChartsInWindow, StandInTheOrderOfTheTablesAdjustedP)
{
  selectLowRuns();
  type("pThreshold", "1");
  double before = 0.0;
  for (const std::string& name : charts(6))
  {
    const double adjusted = sortedBy(name.c_str(), ComparisonModel::AdjustedPValue);
    EXPECT_GE(adjusted, before) << name;
    before = adjusted;
  }
}

TEST_F(ComparedChartsInWindow, FollowTheChosenTest)
{
  selectLowRuns();
  auto* box = window.findChild<QComboBox*>(QStringLiteral("comparedBy"));
  const std::string distributions = cell("p5", ComparisonModel::PValue);
  QTest::keyClick(box, Qt::Key_Down);
  const std::string ranks = cell("p5", ComparisonModel::PValue);
  EXPECT_NE(ranks, distributions);
  EXPECT_EQ(parameterChart(0)->GetTitle(),
            "adjusted p = " + cell("p5", ComparisonModel::AdjustedPValue));
  EXPECT_FALSE(box->itemData(1, Qt::ToolTipRole).toString().isEmpty());
  QTest::keyClick(box, Qt::Key_Up);
  EXPECT_EQ(cell("p5", ComparisonModel::PValue), distributions);
}

TEST_F(ComparedChartsInWindow, CheckInHalvesWhatWasFound)
{
  selectLowRuns();
  press("halves", Qt::Key_Space);
  auto* summary = window.findChild<QLabel*>(QStringLiteral("comparisonSummary"));
  EXPECT_TRUE(summary->text().startsWith("Tested is one half")) << summary->text().toStdString();
  EXPECT_EQ(cell("p0", ComparisonModel::PValue), "alike in first half");
  EXPECT_LT(sortedBy("p5", ComparisonModel::PValue), 0.05);
  EXPECT_LT(std::stoi(cell("p5", ComparisonModel::Selected)), selectedRunCount);
}

TEST_F(ComparedChartsInWindow, ReturnToTheirOrderWhenTheSelectionIsCleared)
{
  selectLowRuns();
  ASSERT_EQ(charts(1), Names{"p5"});
  window.selectionController()->clear();
  QCoreApplication::processEvents();
  EXPECT_EQ(charts(4), (Names{"p0", "p1", "p2", "p3"}));
  EXPECT_EQ(parameterChart(0)->GetTitle(), "");
  EXPECT_EQ(parameterChart(0)->GetNumberOfPlots(), 1);
}
