#include "app/TimeCoursePage.h"

#include "app/RunNumberBox.h"
#include "external/LinePlotData.h"
#include "plot/PlotContainer.h"
#include "plot/TypedColumns.h"
#include "widgets/LinePlotWidget.h"
#include "widgets/PlotSelector.h"

#include <QFormLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <set>

namespace Talmesh::app
{

namespace
{

constexpr const char* runIndexName = "Run Index";

bool isRunIndex(const TypedConcentrationName& item)
{
  return item.first == TimeOrValue && item.second == runIndexName;
}

/// The item that the courses run over, as in other charts of the runs but never the number of the
/// run; -1 without one.
int timeOfCourses(const LinePlotTable& runs)
{
  std::vector<TypedConcentrationName> items = runs.items;
  for (TypedConcentrationName& item : items)
    if (isRunIndex(item))
      item.first = UndefinedType;
  const int time = plot::timeItem(items);
  return time >= 0 && runs.values[static_cast<std::size_t>(time)] ? time : -1;
}

/// The numbers that the runs have in the table, or those of their places when they cannot tell the
/// runs apart.
std::vector<int> shownRunNumbers(const LinePlotTable& runs)
{
  std::vector<int> places(runs.numberOfTrajectories);
  std::iota(places.begin(), places.end(), 0);
  const auto found = std::find_if(runs.items.begin(), runs.items.end(), isRunIndex);
  const auto item = static_cast<std::size_t>(found - runs.items.begin());
  if (found == runs.items.end() || !runs.values[item])
    return places;
  std::vector<int> numbers;
  for (std::size_t run = 0; run < runs.numberOfTrajectories; ++run)
  {
    const double number = runs.values[item][run * runs.pointsPerTrajectory];
    if (!(std::abs(number) <= std::numeric_limits<int>::max()) || std::floor(number) != number)
      return places;
    numbers.push_back(static_cast<int>(number));
  }
  const std::set<int> different(numbers.begin(), numbers.end());
  return different.size() == numbers.size() ? numbers : places;
}

bool isCourse(const TypedConcentrationName& item)
{
  return item.first != TimeOrValue && item.first != Parameter;
}

std::vector<double> pointsOf(const LinePlotTable& runs, std::size_t item, std::size_t run)
{
  const double* first = runs.values[item] + run * runs.pointsPerTrajectory;
  return {first, first + runs.pointsPerTrajectory};
}

/// The courses of one run, with the vectors that a record only points to.
class RunCourses
{
public:
  RunCourses(const LinePlotTable& runs, int time, std::size_t run)
      : times(pointsOf(runs, static_cast<std::size_t>(time), run))
  {
    // The record points into the list, which therefore must not grow any more.
    values.reserve(runs.items.size());
    for (std::size_t i = 0; i < runs.items.size(); ++i)
      if (isCourse(runs.items[i]) && runs.values[i])
      {
        values.push_back(pointsOf(runs, i, run));
        record.series[runs.items[i]] = &values.back();
      }
    record.xName = runs.items[static_cast<std::size_t>(time)].second;
    record.xValues = &times;
  }

  RunCourses(const RunCourses&) = delete;
  RunCourses& operator=(const RunCourses&) = delete;

  LinePlotData record;

private:
  std::vector<double> times;
  std::vector<std::vector<double>> values;
};

using ItemNames = std::set<std::pair<QString, QString>>;

std::pair<QString, QString> nameOf(const QTreeWidgetItem& item)
{
  return {item.parent() ? item.parent()->text(0) : QString(), item.text(0)};
}

ItemNames selectedNames(const PlotSelector& selector)
{
  ItemNames names;
  for (const QTreeWidgetItem* item : selector.selectedItems())
    names.insert(nameOf(*item));
  return names;
}

template <typename Visit>
void forEachItem(const PlotSelector& selector, Visit visit)
{
  for (int i = 0; i < selector.topLevelItemCount(); ++i)
    for (int child = 0; child < selector.topLevelItem(i)->childCount(); ++child)
      visit(selector.topLevelItem(i)->child(child));
}

void select(PlotSelector& selector, const ItemNames& names)
{
  {
    // One report for all items, below.
    const QSignalBlocker silent(selector);
    forEachItem(selector, [&names](QTreeWidgetItem* item)
                { item->setSelected(names.count(nameOf(*item)) > 0); });
  }
  selector.processNewSelection();
}

} // namespace

void drawTimeCourses(const LinePlotTable& runs, std::size_t run, std::size_t items,
                     PlotContainer& container)
{
  const int time = timeOfCourses(runs);
  if (time < 0 || run >= runs.numberOfTrajectories)
    return;
  RunCourses courses(runs, time, run);
  container.setBreakLinesAtGaps(true);
  container.setLinePlotData(&courses.record);
  std::vector<TypedConcentrationName> shown;
  for (const auto& series : courses.record.series)
    if (shown.size() < items)
      shown.push_back(series.first);
  container.setLinePlotItems(&shown);
}

TimeCoursePage::TimeCoursePage(QWidget* parent)
    : QWidget(parent)
{
  setObjectName(QStringLiteral("timeCourses"));
}

TimeCoursePage::~TimeCoursePage() = default;

void TimeCoursePage::setStudy(const Study& study)
{
  runs = study.runs;
  outdated = true;
  if (isVisible())
    bringUpToDate();
}

void TimeCoursePage::refresh()
{
  stale = true;
  if (isVisible())
    bringUpToDate();
}

void TimeCoursePage::showEvent(QShowEvent* event)
{
  QWidget::showEvent(event);
  if (!chart)
    build();
  bringUpToDate();
}

void TimeCoursePage::bringUpToDate()
{
  if (outdated)
    fill();
  else if (stale && run->isEnabled())
    showRun();
  stale = false;
}

void TimeCoursePage::build()
{
  run = new RunNumberBox;
  run->setObjectName(QStringLiteral("run"));
  run->setToolTip(tr("The run whose time courses are shown"));
  chart = new LinePlotWidget;
  auto* choice = new QFormLayout;
  choice->addRow(tr("R&un"), run);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(choice);
  layout->addWidget(chart, 1);
  connect(run, QOverload<int>::of(&RunNumberBox::valueChanged), this, &TimeCoursePage::showRun);
}

void TimeCoursePage::fill()
{
  outdated = false;
  const bool shown = runs && timeOfCourses(*runs) >= 0 && runs->numberOfTrajectories > 0;
  run->setNumbers(shown ? shownRunNumbers(*runs) : std::vector<int>());
  run->setEnabled(shown);
  if (!shown)
  {
    chart->removeData();
    return;
  }
  showRun();
  auto& selector = *chart->findChild<PlotSelector*>();
  if (selector.selectedItems().empty())
    chooseFirstItem(selector);
}

void TimeCoursePage::showRun()
{
  auto& selector = *chart->findChild<PlotSelector*>();
  const ItemNames chosen = selectedNames(selector);
  RunCourses courses(*runs, timeOfCourses(*runs), static_cast<std::size_t>(run->value()));
  chart->setData(&courses.record);
  selector.expandAll();
  select(selector, chosen);
}

/// An empty chart would look like a failure.
void TimeCoursePage::chooseFirstItem(PlotSelector& selector) const
{
  ItemNames first;
  forEachItem(selector,
              [&first](const QTreeWidgetItem* item)
              {
                if (first.empty())
                  first.insert(nameOf(*item));
              });
  select(selector, first);
}

} // namespace Talmesh::app
