#include "app/window/ClusterDock.h"

#include "app/import/ColumnRoles.h"
#include "app/panels/PanelParts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>
#include <utility>

namespace Talmesh::app
{

ClusterDock::ClusterDock(QWidget* parent)
    : QDockWidget(tr("Groups of runs"), parent)
    , reasonLabel(new QLabel)
    , count(new QSpinBox)
    , modes(new QComboBox)
    , start(new QPushButton(tr("G&roup the runs")))
    , list(new QListWidget)
{
  setObjectName(QStringLiteral("clusterDock"));
  reasonLabel->setObjectName(QStringLiteral("clusterReason"));
  reasonLabel->setWordWrap(true);
  count->setObjectName(QStringLiteral("clusterCount"));
  count->setToolTip(tr("Into how many groups the runs are sorted"));
  modes->setObjectName(QStringLiteral("clusterMode"));
  modes->setToolTip(tr("What makes two runs alike; of courses level and amplitude never count. "
                       "Columns of texts make a group of each text"));
  start->setObjectName(QStringLiteral("clusterStart"));
  start->setToolTip(tr("Sort the runs into groups by the first y column, or by a column of texts"));
  list->setObjectName(QStringLiteral("clusterList"));
  list->setToolTip(tr("Click a group to select its runs"));
  list->setMinimumHeight(3 * list->fontMetrics().lineSpacing());
  list->setMaximumHeight((mostGroups + 3) * list->fontMetrics().lineSpacing());
  makeForm();
  connect(count, QOverload<int>::of(&QSpinBox::valueChanged), this, &ClusterDock::groupingChanged);
  connect(modes, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          [this]
          {
            enableCount();
            emit groupingChanged();
          });
  connect(start, &QPushButton::clicked, this, &ClusterDock::groupingRequested);
  const auto choose = [this](QListWidgetItem* item) { emit groupChosen(list->row(item)); };
  connect(list, &QListWidget::itemClicked, this, choose);
  connect(list, &QListWidget::itemActivated, this, choose);
  reset(0, {}, {});
}

void ClusterDock::makeForm()
{
  auto* panel = new QWidget;
  auto* layout = new QFormLayout(panel);
  layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
  layout->addRow(reasonLabel);
  layout->addRow(tr("&Number of groups"), count);
  layout->addRow(tr("Alike &by"), modes);
  layout->addRow(start);
  layout->addRow(list);
  setWidget(panel);
  colours = addSwitch(QStringLiteral("groupColours"), tr("&Colours of the groups"),
                      tr("Draw each run in the colour of its group, in the XY plot, the "
                         "scatter-plot matrix and parallel coordinates"));
  means = addSwitch(QStringLiteral("groupMeans"), tr("&Mean of each group"),
                    tr("Draw the mean course of each group in the XY plot"));
  bands = addSwitch(QStringLiteral("runBands"), tr("&Quartile bands"),
                    tr("Draw range, quartiles and median of all runs in the XY plot, and of the "
                       "runs only the selected ones unless they have the colours of groups"));
  for (const QCheckBox* box : {colours, means, bands})
    connect(box, &QCheckBox::toggled, this, &ClusterDock::lookChanged);
  normalise = addSwitch(QStringLiteral("normaliseRuns"), tr("Normalise each run to its m&aximum"),
                        tr("Scale each run of the chosen y columns so that its largest value is 1; "
                           "unticked, the values are loaded again. Times, numbers of runs and "
                           "parameters are left out"));
  connect(normalise, &QCheckBox::toggled, this, &ClusterDock::normalisingRequested);
}

QCheckBox* ClusterDock::addSwitch(const QString& name, const QString& text, const QString& toolTip)
{
  auto* box = new QCheckBox(text);
  box->setObjectName(name);
  box->setToolTip(toolTip);
  static_cast<QFormLayout*>(widget()->layout())->addRow(box);
  return box;
}

void ClusterDock::fillModes(bool haveCourses, const std::vector<std::string>& categories)
{
  const QSignalBlocker silent(modes);
  modes->clear();
  if (haveCourses)
  {
    modes->addItem(tr("Course over time"), byCourse);
    modes->addItem(tr("Phases of the spectrum"), byPhases);
    modes->addItem(tr("Magnitudes of the spectrum"), byMagnitudes);
  }
  for (const std::string& label : categories)
    modes->addItem(
        tr("Text in %1", "the name of a column").arg(QString::fromStdString(shownName(label))),
        QString::fromStdString(label));
}

/// Texts say themselves how many groups they are.
void ClusterDock::enableCount()
{
  count->setEnabled(modes->isEnabled() && category().empty());
}

void ClusterDock::reset(int most, const std::vector<std::string>& categories, const QString& reason)
{
  const bool usable = reason.isEmpty();
  reasonLabel->setText(reason);
  reasonLabel->setVisible(!usable);
  {
    const QSignalBlocker silent(count);
    count->setRange(1, std::max(1, most));
  }
  fillModes(most > 0 || categories.empty(), categories);
  list->clear();
  for (QCheckBox* box : {colours, means, bands, normalise})
  {
    const QSignalBlocker silent(box);
    box->setChecked(false);
  }
  for (QWidget* control : std::initializer_list<QWidget*>{modes, start, list})
    control->setEnabled(usable);
  for (QWidget* control : std::initializer_list<QWidget*>{bands, normalise})
    control->setEnabled(usable && most > 0);
  enableCount();
  enableGroupSwitches();
}

void ClusterDock::setGroups(const RunGroups& groups)
{
  list->clear();
  const int size = list->fontMetrics().ascent();
  for (std::size_t group = 0; group < groups.names.size(); ++group)
    new QListWidgetItem(swatch(groupColour(static_cast<int>(group)), size),
                        QString::fromStdString(groups.names[group]), list);
  enableGroupSwitches();
}

void ClusterDock::enableGroupSwitches()
{
  colours->setEnabled(list->count() > 0);
  means->setEnabled(list->count() > 0 && bands->isEnabled());
}

void ClusterDock::setNormalised(bool on)
{
  const QSignalBlocker silent(normalise);
  normalise->setChecked(on);
}

void ClusterDock::setGrouping(int groupCount, int mode, const std::string& category)
{
  const QSignalBlocker silentCount(count);
  const QSignalBlocker silentModes(modes);
  count->setValue(groupCount);
  const int chosen =
      category.empty() ? modes->findData(mode) : modes->findData(QString::fromStdString(category));
  modes->setCurrentIndex(std::max(chosen, 0));
  enableCount();
}

void ClusterDock::setLook(const RunLook& look)
{
  const std::pair<QCheckBox*, bool> switches[] = {
      {colours, look.groupColours}, {means, look.groupMeans}, {bands, look.quartileBands}};
  for (const auto& [box, on] : switches)
  {
    const QSignalBlocker silent(box);
    box->setChecked(on);
  }
}

int ClusterDock::groupCount() const
{
  return count->value();
}

int ClusterDock::mode() const
{
  return modes->currentData().toInt();
}

std::string ClusterDock::category() const
{
  const QVariant chosen = modes->currentData();
  return chosen.userType() == QMetaType::QString ? chosen.toString().toStdString() : std::string();
}

RunLook ClusterDock::look() const
{
  RunLook look;
  look.groupColours = colours->isChecked();
  look.groupMeans = means->isChecked();
  look.quartileBands = bands->isChecked();
  return look;
}

} // namespace Talmesh::app
