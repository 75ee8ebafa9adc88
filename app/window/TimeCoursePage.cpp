#include "app/window/TimeCoursePage.h"

#include "app/document/TimeCourses.h"
#include "app/runs/NearestRuns.h"
#include "app/window/CourseItems.h"
#include "app/window/RunNumberBox.h"
#include "external/LinePlotData.h"
#include "plot/PlotContainer.h"
#include "widgets/LinePlotWidget.h"
#include "widgets/PlotSelector.h"
#include "widgets/VtkPlotWidget.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace Talmesh::app
{

namespace
{

/// In the order in which they are offered.
enum ShownRuns
{
  OneRun,
  WithNearest,
  SelectedRuns
};

constexpr std::array<const char*, 3> modeKeys = {"one", "nearest", "selected"};

constexpr std::size_t mostNearest = 5;
/// As many as can be told apart.
constexpr std::size_t mostShown = 12;

} // namespace

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
  opened.reset();
  lastChosen.clear();
  if (isVisible())
    bringUpToDate();
}

void TimeCoursePage::refresh()
{
  stale = true;
  features.clear();
  if (isVisible())
    bringUpToDate();
}

std::string TimeCoursePage::mode() const
{
  return modeKeys[static_cast<std::size_t>(shownRuns ? shownRuns->currentIndex() : firstMode)];
}

void TimeCoursePage::setMode(const std::string& key)
{
  const auto found = std::find(modeKeys.begin(), modeKeys.end(), key);
  if (found == modeKeys.end() || key == mode())
    return;
  firstMode = static_cast<int>(found - modeKeys.begin());
  if (!shownRuns)
    return;
  const QSignalBlocker silent(shownRuns);
  shownRuns->setCurrentIndex(firstMode);
  stale = true;
}

bool TimeCoursePage::isUsable() const
{
  return runs && timeOfCourses(*runs) >= 0 && runs->numberOfTrajectories > 0;
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
  else if (stale && isUsable())
    showRuns();
  stale = false;
  if (!opened || !isUsable())
    return;
  const QSignalBlocker silentMode(shownRuns);
  const QSignalBlocker silentRun(run);
  if (shownRuns->currentIndex() == SelectedRuns)
  {
    shownRuns->setCurrentIndex(OneRun);
    emit modeChosen();
  }
  run->setValue(static_cast<int>(*opened));
  opened.reset();
  showRuns();
}

void TimeCoursePage::build()
{
  run = new RunNumberBox;
  run->setObjectName(QStringLiteral("run"));
  run->setToolTip(tr("The run whose time courses are shown"));
  chart = new LinePlotWidget;
  shownRuns = new QComboBox;
  shownRuns->setObjectName(QStringLiteral("shownRuns"));
  shownRuns->addItems({tr("this run"), tr("this run and its %1 nearest").arg(mostNearest),
                       tr("the selected runs")});
  shownRuns->setToolTip(
      tr("Which runs are shown. The nearest are those whose smallest, largest, mean "
         "and final values differ least from those of this run, in standard "
         "deviations."));
  shownRuns->setCurrentIndex(firstMode);
  note = new QLabel;
  note->setObjectName(QStringLiteral("shownRunsNote"));
  // After the container has drawn the items, which is no redraw with steps of its own.
  connect(chart->selector(), &PlotSelector::notifySelectionChanged, this,
          [this, plot = chart->findChild<VtkPlotWidget*>()]
          {
            colourCourses(*plot->plotContainer(), shownPlaces, kept);
            plot->updatePlot();
          });
  auto* label = new QLabel(tr("R&un"));
  label->setBuddy(run);
  auto* choice = new QHBoxLayout;
  choice->addWidget(label);
  choice->addWidget(run);
  choice->addWidget(shownRuns);
  choice->addWidget(note);
  choice->addStretch();
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(choice);
  layout->addWidget(chart, 1);
  connect(run, QOverload<int>::of(&RunNumberBox::valueChanged), this, &TimeCoursePage::showRuns);
  connect(shownRuns, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &TimeCoursePage::showRuns);
  connect(shownRuns, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &TimeCoursePage::modeChosen);
}

void TimeCoursePage::fill()
{
  outdated = false;
  const bool shown = isUsable();
  features.clear();
  run->setNumbers(shown ? shownRunNumbers(*runs) : std::vector<int>());
  run->setEnabled(shown);
  shownRuns->setEnabled(shown);
  if (!shown)
  {
    note->clear();
    chart->removeData();
    return;
  }
  showRuns();
  auto& selector = *chart->selector();
  if (selector.selectedItems().empty())
    chooseFirstItem(selector);
}

std::vector<std::size_t> TimeCoursePage::wantedRuns()
{
  const auto one = static_cast<std::size_t>(run->value());
  std::vector<std::size_t> wanted;
  if (shownRuns->currentIndex() == SelectedRuns)
  {
    for (std::size_t place = 0; place < std::min(selected.size(), runs->numberOfTrajectories);
         ++place)
      if (selected[place])
        wanted.push_back(place);
    return wanted;
  }
  if (shownRuns->currentIndex() == WithNearest)
  {
    if (features.empty())
      features = featuresOfRuns(*runs, timeOfCourses(*runs));
    wanted = nearestRuns(features, one, mostNearest);
  }
  wanted.insert(wanted.begin(), one);
  return wanted;
}

void TimeCoursePage::sayWhich(std::size_t wanted)
{
  QString text;
  if (shownRuns->currentIndex() == SelectedRuns && wanted == 0)
    text = tr("No run is selected.");
  else if (wanted > mostShown)
    text = tr("The first %1 of %2 selected runs").arg(mostShown).arg(wanted);
  note->setText(text);
}

void TimeCoursePage::showRuns()
{
  std::vector<std::size_t> shown = wantedRuns();
  run->setEnabled(shownRuns->currentIndex() != SelectedRuns);
  sayWhich(shown.size());
  auto& selector = *chart->selector();
  // Which items are shown stays, whichever runs they are of.
  ItemNames chosen;
  for (const auto& [kind, name] : selectedNames(selector))
    chosen.insert({kind, itemOf(name)});
  if (shown.empty())
  {
    lastChosen = chosen;
    chart->removeData();
    return;
  }
  if (chosen.empty())
    chosen = lastChosen;
  shown.resize(std::min(shown.size(), mostShown));
  RunCourses courses(*runs, timeOfCourses(*runs), shown);
  items = courses.items;
  shownPlaces = courses.places;
  chart->setData(&courses.record);
  selector.expandAll();
  select(selector, chosen, [this](const QString& name) { return itemOf(name); });
}

QString TimeCoursePage::itemOf(const QString& name) const
{
  const auto found = items.find(name.toStdString());
  return found == items.end() ? name : QString::fromStdString(found->second);
}

void TimeCoursePage::openRun(std::size_t place)
{
  opened = place;
  if (isVisible())
    bringUpToDate();
}

void TimeCoursePage::setSelectedRuns(const std::vector<bool>& those)
{
  selected = those;
  if (!chart || shownRuns->currentIndex() != SelectedRuns)
    return;
  stale = true;
  if (isVisible())
    bringUpToDate();
}

void TimeCoursePage::setKept(const RunGroups& groups)
{
  if (groups == kept)
    return;
  kept = groups;
  refresh();
}

/// An empty chart would look like a failure.
void TimeCoursePage::chooseFirstItem(PlotSelector& selector) const
{
  ItemNames first;
  forEachItem(selector,
              [&](const QTreeWidgetItem* item)
              {
                if (!first.empty())
                  return;
                const auto [kind, name] = nameOf(*item);
                first.insert({kind, itemOf(name)});
              });
  select(selector, first, [this](const QString& name) { return itemOf(name); });
}

} // namespace Talmesh::app
