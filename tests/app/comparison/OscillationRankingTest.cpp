#include "app/comparison/ComparisonDock.h"
#include "app/comparison/ComparisonModel.h"
#include "app/document/SelectionController.h"
#include "app/examples/ExampleStudy.h"
#include "app/window/MainWindow.h"
#include "external/ParameterSelection.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>

#include <gtest/gtest.h>

#include <QTableView>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <memory>
#include <numeric>

#include "window/PlotMouse.h"

// What the circuit's mathematics says of the runs that oscillate.
//
// The ring has one steady state, p = alpha / (1 + p^n) + alpha0, and oscillates where it is
// unstable: where (beta + 1)^2 / beta < 3 X^2 / (4 + 2 X), with the slope of the repression
// X = -alpha n p^(n-1) / (1 + p^n)^2 between -2 and -4/3, and for every beta where X <= -2.
//
// - Leakage. It adds to p and so moves the steady state up to where repression is saturated: X goes
//   to 0 as alpha0 grows beyond the p that the circuit would have without it, about
//   alpha^(1/(n+1)), some 2 to 10. The study's range goes from far below that to far above.
// - Hill coefficient. Without leakage and for large alpha, X is about -n, so n must exceed 4/3 even
//   at the best beta, and 2 for every beta: the range 1.5 to 3 crosses that bound.
// - Promoter strength. It sets p only through the root alpha^(1/(n+1)), so all of its range is
//   large enough, and it merely shifts how much leakage is too much.
// - Ratio of lifetimes. It matters only in the strip -2 < X < -4/3, where it must be near 1.
//
// Hence leakage first, Hill coefficient second, and the other two behind. The criterion does not
// say which of those comes before the other: over the study's ranges they move the bound equally.

using namespace Talmesh::app;

namespace
{

constexpr int patience = 60000;
constexpr std::array<const char*, 4> names = {"alpha", "alpha0", "beta", "n"};
constexpr std::size_t levels = 16;

RepressilatorParameters pointOfGrid(std::size_t index)
{
  std::array<double, 4> values{};
  for (std::size_t k = 0; k < values.size(); ++k)
  {
    const ParameterRange& range = exampleParameterRanges()[k];
    const double u = (static_cast<double>(index % levels) + 0.5) / levels;
    values[k] = range.logarithmic ? range.lower * std::pow(range.upper / range.lower, u)
                                  : range.lower + (range.upper - range.lower) * u;
    index /= levels;
  }
  return {values[0], values[1], values[2], values[3]};
}

/// For each parameter the largest distance between its distribution where the steady state is
/// unstable and where it is stable, by the criterion alone, over the ranges of the study.
std::map<std::string, double> predictedDistances()
{
  std::array<std::array<double, levels>, 4> unstable{};
  std::array<std::array<double, levels>, 4> stable{};
  for (std::size_t index = 0; index < levels * levels * levels * levels; ++index)
  {
    auto& counts = repressilatorIsStable(pointOfGrid(index)) ? stable : unstable;
    std::size_t rest = index;
    for (std::size_t k = 0; k < 4; ++k, rest /= levels)
      ++counts[k][rest % levels];
  }
  std::map<std::string, double> distances;
  for (std::size_t k = 0; k < 4; ++k)
  {
    const double unstableAll = std::accumulate(unstable[k].begin(), unstable[k].end(), 0.0);
    const double stableAll = std::accumulate(stable[k].begin(), stable[k].end(), 0.0);
    double difference = 0.0;
    for (std::size_t level = 0; level < levels; ++level)
    {
      difference += unstable[k][level] / unstableAll - stable[k][level] / stableAll;
      distances[names[k]] = std::max(distances[names[k]], std::abs(difference));
    }
  }
  return distances;
}

/// The lowest steady state of all parameters of the study: it rises with alpha and alpha0 and,
/// above 1, falls with n.
double lowestSteadyState()
{
  const auto& ranges = exampleParameterRanges();
  return repressilatorSteadyState(
      {ranges[0].lower, ranges[1].lower, ranges[2].lower, ranges[3].upper});
}

class OscillationRanking : public ::testing::Test
{
protected:
  OscillationRanking()
  {
    window.resize(1100, 900);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.openExample();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  }

  PlotContainer& container() { return *window.plotWidget()->plotContainer(); }

  /// Looks closely at a time and at small amounts of protein, as the mouse wheel does.
  void zoomTo(double time)
  {
    const auto fix = [](vtkAxis* axis, double low, double high)
    {
      axis->SetBehavior(vtkAxis::FIXED);
      axis->SetRange(low, high);
    };
    vtkChartXY* chart = container().getChartXY();
    fix(chart->GetAxis(vtkAxis::BOTTOM), time - 4.0 * exampleStudy::timeStep,
        time + 4.0 * exampleStudy::timeStep);
    fix(chart->GetAxis(vtkAxis::LEFT), 0.0, 4.0);
    chart->RecalculateBounds();
    window.plotWidget()->updatePlot(true);
  }

  /// Drags a rectangle over one time and the amounts below `most`.
  void selectBelow(double most, double time)
  {
    zoomTo(time);
    const double half = 0.4 * exampleStudy::timeStep;
    VtkPlotWidget& plot = *window.plotWidget();
    const QPoint from = pixelOf(container().getChartXY(), plot, time - half, most);
    const QPoint to = pixelOf(container().getChartXY(), plot, time + half, 0.0);
    drag(plot, Qt::RightButton, from, to);
  }

  std::set<int> selectedRuns()
  {
    return std::unique_ptr<ParameterSelection>(container().getSelection())->runs;
  }

  QAbstractItemModel& table()
  {
    return *window.findChild<QTableView*>(QStringLiteral("comparisonTable"))->model();
  }

  std::vector<std::string> ranking()
  {
    std::vector<std::string> ranked;
    for (int row = 0; row < table().rowCount(); ++row)
      ranked.push_back(table().index(row, ComparisonModel::Name).data().toString().toStdString());
    return ranked;
  }

  /// For each parameter the distance that the table has.
  std::map<std::string, double> measuredDistances()
  {
    std::map<std::string, double> distances;
    const std::vector<std::string> ranked = ranking();
    for (int row = 0; row < table().rowCount(); ++row)
      distances[ranked[static_cast<std::size_t>(row)]] =
          table().index(row, ComparisonModel::Statistic).data(ComparisonModel::SortRole).toDouble();
    return distances;
  }

  MainWindow window;
};

} // namespace

TEST(OscillationPrediction, PutsLeakageFirstAndTheHillCoefficientSecond)
{
  const std::map<std::string, double> distances = predictedDistances();
  EXPECT_GT(distances.at("alpha0"), 1.5 * distances.at("n"));
  EXPECT_GT(distances.at("n"), 1.5 * distances.at("alpha"));
  EXPECT_GT(distances.at("n"), 1.5 * distances.at("beta"));
  EXPECT_NEAR(distances.at("alpha"), distances.at("beta"), 0.05);
}

TEST_F(OscillationRanking, FollowsFromTheStabilityOfTheSteadyState)
{
  // A run at rest has at least the lowest steady state, so late runs well below it oscillate.
  const double most = 0.9 * lowestSteadyState();
  const std::vector<RepressilatorParameters> parameters = exampleParameters();
  const std::map<std::string, double> predicted = predictedDistances();
  // Before the last quarter slow runs are still on their way to rest.
  for (const std::size_t point : {150, 160, 170, 180, 190})
  {
    SCOPED_TRACE(point);
    selectBelow(most, static_cast<double>(point) * exampleStudy::timeStep);
    const std::set<int> runs = selectedRuns();
    // Each run is below it for a part of its period only.
    EXPECT_GT(runs.size(), exampleStudy::runs / 10);
    EXPECT_LT(runs.size(), exampleStudy::runs / 4);
    const auto oscillating = std::count_if(
        runs.begin(), runs.end(),
        [&](int run) { return !repressilatorIsStable(parameters[static_cast<std::size_t>(run)]); });
    // Near the bound the way to rest takes longer than the study.
    EXPECT_GE(oscillating, static_cast<long>(runs.size()) - 1);

    const std::vector<std::string> ranked = ranking();
    ASSERT_EQ(ranked.size(), names.size());
    EXPECT_EQ(ranked[0], "alpha0");
    EXPECT_EQ(ranked[1], "n");
    const std::map<std::string, double> measured = measuredDistances();
    for (const char* more : names)
      for (const char* less : names)
      {
        const bool clearlyMore = predicted.at(more) > 1.5 * predicted.at(less);
        EXPECT_TRUE(!clearlyMore || measured.at(more) > measured.at(less)) << more << ' ' << less;
      }
  }
}
