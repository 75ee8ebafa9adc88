#include "app/window/TimeCoursePage.h"

#include "app/document/TimeCourses.h"
#include "app/window/RunNumberBox.h"
#include "external/LinePlotData.h"
#include "widgets/LinePlotWidget.h"
#include "widgets/PlotSelector.h"

#include <QFormLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <set>

namespace Talmesh::app
{

namespace
{

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
  auto& selector = *chart->selector();
  if (selector.selectedItems().empty())
    chooseFirstItem(selector);
}

void TimeCoursePage::showRun()
{
  auto& selector = *chart->selector();
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
