#include "app/TimeCoursePage.h"

#include "external/LinePlotData.h"
#include "plot/PlotContainer.h"
#include "widgets/LinePlotWidget.h"
#include "widgets/PlotSelector.h"

#include <QFormLayout>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <set>

namespace Talmesh::app
{

namespace
{

/// The item that the courses run over; -1 without one.
int timeItem(const LinePlotTable& runs)
{
  int chosen = -1;
  for (std::size_t i = 0; i < runs.items.size(); ++i)
    if (runs.items[i].first == TimeOrValue && runs.items[i].second != "Run Index" && chosen < 0)
      chosen = static_cast<int>(i);
  return chosen;
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
  const int time = timeItem(runs);
  if (time < 0 || run >= runs.numberOfTrajectories)
    return;
  RunCourses courses(runs, time, run);
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
    fill();
}

void TimeCoursePage::showEvent(QShowEvent* event)
{
  QWidget::showEvent(event);
  if (!chart)
    build();
  if (outdated)
    fill();
}

void TimeCoursePage::build()
{
  run = new QSpinBox;
  run->setObjectName(QStringLiteral("run"));
  run->setToolTip(tr("The run whose time courses are shown"));
  chart = new LinePlotWidget;
  auto* choice = new QFormLayout;
  choice->addRow(tr("R&un"), run);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(choice);
  layout->addWidget(chart, 1);
  connect(run, QOverload<int>::of(&QSpinBox::valueChanged), this, &TimeCoursePage::showRun);
}

void TimeCoursePage::fill()
{
  outdated = false;
  const bool shown = runs && timeItem(*runs) >= 0 && runs->numberOfTrajectories > 0;
  {
    const QSignalBlocker silent(run);
    run->setRange(0, shown ? static_cast<int>(runs->numberOfTrajectories) - 1 : 0);
    run->setValue(0);
  }
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
  RunCourses courses(*runs, timeItem(*runs), static_cast<std::size_t>(run->value()));
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
