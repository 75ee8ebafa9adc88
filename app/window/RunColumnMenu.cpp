#include "app/window/RunColumnMenu.h"

#include <QCoreApplication>
#include <QSignalBlocker>

#include <algorithm>
#include <optional>

namespace Talmesh::app
{

namespace
{

/// More items at first would be a table that nobody reads.
constexpr std::size_t mostFirstItems = 10;

constexpr int ofParameters = -1;
const char* const itemProperty = "item";
const char* const featureProperty = "feature";

struct OfferedNumber
{
  /// None for parameters.
  std::optional<RunFeature> feature;
  const char* name;
};

constexpr OfferedNumber offered[] = {
    {std::nullopt, QT_TRANSLATE_NOOP("RunColumnMenu", "Parameters")},
    {RunFeature::Min, QT_TRANSLATE_NOOP("RunColumnMenu", "Smallest value")},
    {RunFeature::Max, QT_TRANSLATE_NOOP("RunColumnMenu", "Largest value")},
    {RunFeature::Mean, QT_TRANSLATE_NOOP("RunColumnMenu", "Mean")},
    {RunFeature::First, QT_TRANSLATE_NOOP("RunColumnMenu", "First value")},
    {RunFeature::Final, QT_TRANSLATE_NOOP("RunColumnMenu", "Final value")},
    {RunFeature::Peaks, QT_TRANSLATE_NOOP("RunColumnMenu", "Number of peaks")},
    {RunFeature::Period, QT_TRANSLATE_NOOP("RunColumnMenu", "Period")}};

} // namespace

RunColumnMenu::RunColumnMenu(QWidget* parent)
    : QMenu(tr("Columns"), parent)
{
  setObjectName(QStringLiteral("runTableColumns"));
}

QAction* RunColumnMenu::addSwitch(const QString& text, bool on)
{
  QAction* action = addAction(text);
  action->setCheckable(true);
  action->setChecked(on);
  connect(action, &QAction::toggled, this, &RunColumnMenu::chosenChanged);
  return action;
}

void RunColumnMenu::list(const TableRuns& runs)
{
  clear();
  const std::vector<RunColumn> first = allColumnsOfRuns(runs);
  for (const OfferedNumber& entry : offered)
  {
    const bool isFirst =
        std::any_of(first.begin(), first.end(),
                    [&entry](const RunColumn& column) { return column.feature == entry.feature; });
    addSwitch(QCoreApplication::translate("RunColumnMenu", entry.name), isFirst)
        ->setProperty(featureProperty,
                      entry.feature ? static_cast<int>(*entry.feature) : ofParameters);
  }
  addSeparator();
  const std::vector<int> items = runs.items();
  for (std::size_t i = 0; i < items.size(); ++i)
    addSwitch(QString::fromStdString(runs.nameOf(items[i]))
                  .replace(QLatin1Char('&'), QLatin1String("&&")),
              i < mostFirstItems)
        ->setProperty(itemProperty, items[i]);
}

ShownRunColumns RunColumnMenu::ticked() const
{
  ShownRunColumns shown;
  shown.parameters = false;
  for (const QAction* action : actions())
  {
    const QVariant feature = action->property(featureProperty);
    if (!action->isChecked())
      continue;
    if (!feature.isValid())
      shown.items.push_back(action->property(itemProperty).toInt());
    else if (feature.toInt() == ofParameters)
      shown.parameters = true;
    else
      shown.features.emplace_back(functionOf(static_cast<RunFeature>(feature.toInt())));
  }
  return shown;
}

void RunColumnMenu::tick(const ShownRunColumns& shown)
{
  const auto isIn = [](const auto& list, const auto& wanted)
  { return std::find(list.begin(), list.end(), wanted) != list.end(); };
  for (QAction* action : actions())
  {
    const QSignalBlocker silent(action);
    const QVariant feature = action->property(featureProperty);
    if (!feature.isValid())
      action->setChecked(isIn(shown.items, action->property(itemProperty).toInt()));
    else if (feature.toInt() == ofParameters)
      action->setChecked(shown.parameters);
    else
      action->setChecked(
          isIn(shown.features, functionOf(static_cast<RunFeature>(feature.toInt()))));
  }
}

std::vector<RunColumn> RunColumnMenu::chosen(const TableRuns& runs) const
{
  std::vector<int> parameters;
  std::vector<int> items;
  std::vector<RunFeature> shown;
  for (const QAction* action : actions())
  {
    if (!action->isChecked())
      continue;
    const QVariant feature = action->property(featureProperty);
    if (!feature.isValid())
      items.push_back(action->property(itemProperty).toInt());
    else if (feature.toInt() == ofParameters)
      parameters = runs.parameters();
    else
      shown.push_back(static_cast<RunFeature>(feature.toInt()));
  }
  return columnsOfRuns(runs, parameters, items, shown);
}

} // namespace Talmesh::app
