#include "app/comparison/ComparisonDock.h"

#include "app/comparison/ComparisonSettings.h"
#include "app/comparison/ComparisonTable.h"
#include "app/comparison/SideBoxes.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>

namespace Talmesh::app
{

ComparisonDock::ComparisonDock(QWidget* parent)
    : QDockWidget(tr("Comparison"), parent)
    , settings(new ComparisonSettings)
    , results(new ComparisonTable)
{
  setObjectName(QStringLiteral("comparisonDock"));
  // In a small window the controls scroll up and down rather than take the plot's room.
  auto* scrolled = new QScrollArea;
  scrolled->setWidget(settings);
  scrolled->setWidgetResizable(true);
  scrolled->setFrameShape(QFrame::NoFrame);
  scrolled->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  scrolled->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scrolled->setMinimumWidth(settings->minimumSizeHint().width() +
                            scrolled->verticalScrollBar()->sizeHint().width());
  auto* panel = new QWidget;
  auto* layout = new QHBoxLayout(panel);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(scrolled);
  layout->addWidget(results, 1);
  setWidget(panel);
  connect(settings, &ComparisonSettings::choiceChanged, this, &ComparisonDock::choiceChanged);
  connect(settings, &ComparisonSettings::styleChosen, this, &ComparisonDock::styleChosen);
  connect(results, &ComparisonTable::said, this, &ComparisonDock::said);
  connect(results, &ComparisonTable::failed, this, &ComparisonDock::failed);
}

void ComparisonDock::refresh(const PlotContainer& container, const Comparison& comparison,
                             std::size_t selections, const std::vector<NamedSide>& kept)
{
  const PlotMetaData& values = *container.getMetaData();
  settings->setKept(kept);
  settings->setPermutes(comparison.state == Comparison::State::compared &&
                        comparison.units.kind != stats::IndependentUnit::run);
  settings->setChoice(comparisonChoiceOf(container), values.getPlotStyle(),
                      !values.parameterColumns.empty());
  results->setComparison(comparison, selections);
}

ComparisonChoice ComparisonDock::choice() const
{
  return settings->choice();
}

} // namespace Talmesh::app
