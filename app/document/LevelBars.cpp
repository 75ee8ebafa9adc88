#include "app/document/LevelBars.h"

#include "app/import/TranslatedText.h"
#include "plot/PlotContainer.h"
#include "plot/PlotFeed.h"
#include "plot/TableColumns.h"

#include <vtkAxis.h>
#include <vtkChartMatrix.h>
#include <vtkChartXY.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPlot.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <QString>

#include <algorithm>
#include <cmath>

namespace Talmesh::app
{

namespace
{

/// Beside the outer bars, in bars.
constexpr double margin = 0.6;
/// Characters that have room below a chart, and those that tell texts apart.
constexpr std::size_t mostCharacters = 32;
constexpr std::size_t fewestCharacters = 3;

std::string shortened(const std::string& level, std::size_t levels)
{
  const auto most = static_cast<int>(std::max(mostCharacters / levels, fewestCharacters));
  const QString text = QString::fromStdString(level);
  return (text.size() <= most ? text : text.left(most - 1) + QChar(0x2026)).toStdString();
}

/// The end of an axis of shares, whose half is a number to read as well.
double roundedUp(double share)
{
  for (const double end : {0.1, 0.2, 0.4, 0.6, 0.8})
    if (share > 0.0 && share <= end)
      return end;
  return 1.0;
}

std::vector<double> sharesOf(const std::vector<double>& numbers, const std::vector<bool>& members,
                             std::size_t levels)
{
  std::vector<double> shares(levels, 0.0);
  double runs = 0.0;
  for (std::size_t run = 0; run < numbers.size(); ++run)
  {
    const double level = numbers[run];
    if (!members[run] || !(level >= 0.0) || level >= static_cast<double>(levels))
      continue;
    shares[static_cast<std::size_t>(level)] += 1.0;
    runs += 1.0;
  }
  for (double& share : shares)
    share = runs > 0.0 ? share / runs : 0.0;
  return shares;
}

void addBars(vtkChartXY* chart, const LevelShares::Group& group)
{
  std::vector<double> places(group.shares.size());
  for (std::size_t level = 0; level < places.size(); ++level)
    places[level] = static_cast<double>(level);
  auto table = vtkSmartPointer<vtkTable>::New();
  table->AddColumn(plot::makeColumn("level", places));
  table->AddColumn(plot::makeColumn("share", group.shares));
  vtkPlot* bars = chart->AddPlot(vtkChart::BAR);
  bars->SetColor(group.color[0], group.color[1], group.color[2], 255);
  plot::feedPlot(bars, table, 0, 1);
  plot::makeUnselectable(bars);
}

void fix(vtkAxis* axis, double lowest, double highest)
{
  axis->SetLogScale(false);
  axis->SetUnscaledRange(lowest, highest);
  axis->SetBehavior(vtkAxis::FIXED);
}

void nameLevels(vtkAxis* axis, const std::vector<std::string>& levels)
{
  const vtkNew<vtkDoubleArray> places;
  const vtkNew<vtkStringArray> names;
  for (std::size_t level = 0; level < levels.size(); ++level)
  {
    places->InsertNextValue(static_cast<double>(level));
    names->InsertNextValue(shortened(levels[level], levels.size()).c_str());
  }
  axis->SetCustomTickPositions(places, names);
  axis->SetLabelsVisible(true);
}

void drawIn(vtkChartXY* chart, const LevelShares& shares)
{
  chart->ClearPlots();
  double highest = 0.0;
  for (const LevelShares::Group& group : shares.groups)
  {
    addBars(chart, group);
    highest = std::max(highest, *std::max_element(group.shares.begin(), group.shares.end()));
  }
  vtkAxis* bottom = chart->GetAxis(vtkAxis::BOTTOM);
  fix(bottom, -margin, static_cast<double>(shares.levels.size()) - 1.0 + margin);
  nameLevels(bottom, shares.levels);
  fix(chart->GetAxis(vtkAxis::LEFT), 0.0, roundedUp(highest));
  chart->GetAxis(vtkAxis::LEFT)->SetTitle(translated("LevelBars", "Share"));
}

} // namespace

bool operator==(const LevelShares& one, const LevelShares& other)
{
  return one.parameter == other.parameter && one.levels == other.levels &&
         std::equal(one.groups.begin(), one.groups.end(), other.groups.begin(), other.groups.end(),
                    [](const LevelShares::Group& left, const LevelShares::Group& right)
                    { return left.color == right.color && left.shares == right.shares; });
}

std::vector<LevelShares> levelShares(const ComparedStudy& study,
                                     const std::vector<DrawnRunGroup>& groups)
{
  std::vector<LevelShares> all;
  for (std::size_t k = 0; k < study.columns.size(); ++k)
  {
    const auto& changing = study.changing;
    if (!study.isCategory(k) || std::find(changing.begin(), changing.end(), k) != changing.end())
      continue;
    LevelShares shares{study.names[k], study.levels[k], {}};
    // All runs would only repeat what the two parts of them say.
    for (std::size_t group = groups.size() > 1 ? 1 : 0; group < groups.size(); ++group)
      shares.groups.push_back({groups[group].color, sharesOf(study.columns[k], groups[group].runs,
                                                             study.levels[k].size())});
    all.push_back(std::move(shares));
  }
  return all;
}

void drawLevelBars(PlotContainer& container, const std::vector<LevelShares>& shares)
{
  auto* page = vtkChartMatrix::SafeDownCast(container.getItem());
  if (!page || shares.empty())
    return;
  const vtkVector2i size = page->GetSize();
  for (int column = 0; column < size.GetX(); ++column)
    for (int row = 0; row < size.GetY(); ++row)
    {
      auto* chart = vtkChartXY::SafeDownCast(page->GetChart({column, row}));
      if (!chart || chart == container.getChartXY())
        continue;
      const std::string title = chart->GetAxis(vtkAxis::BOTTOM)->GetTitle();
      for (const LevelShares& category : shares)
        if (category.parameter == title)
          drawIn(chart, category);
    }
}

} // namespace Talmesh::app
