#include "app/window/PlotDock.h"

#include "app/import/ColumnRoles.h"
#include "app/styles/ViewerStyles.h"
#include "app/window/NameBox.h"

#include <QCheckBox>
#include <QFontMetrics>
#include <QFormLayout>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace Talmesh::app
{

namespace
{
NameBox* makeNameBox(const QString& name)
{
  auto* box = new NameBox;
  box->setObjectName(name);
  return box;
}

} // namespace

PlotDock::PlotDock(QWidget* parent)
    : QDockWidget(tr("Plot"), parent)
    , style(makeNameBox(QStringLiteral("style")))
    , x(makeNameBox(QStringLiteral("x")))
    , y(new QListWidget)
    , z(makeNameBox(QStringLiteral("z")))
{
  setObjectName(QStringLiteral("plotDock"));
  for (const ViewerStyle& known : viewerStyles())
    if (known.offered)
      style->addItem(titleOf(known), static_cast<int>(known.style));
  y->setObjectName(QStringLiteral("y"));
  elideNames(*y);
  y->setMinimumHeight(6 * y->fontMetrics().lineSpacing());

  auto* panel = new QWidget;
  auto* layout = new QFormLayout(panel);
  layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
  layout->addRow(tr("Sty&le"), style);
  layout->addRow(tr("&X"), x);
  layout->addRow(tr("&Y"), y);
  layout->addRow(tr("&Z"), z);
  setWidget(panel);
  lines = addSwitch(tr("L&ines"), tr("One line per run instead of points"));
  legend = addSwitch(tr("Le&gend"), tr("Show what each colour means"));
  logX = addSwitch(tr("Logarithmic x axis"), tr("Needs positive values"));
  logY = addSwitch(tr("Logarithmic y axis"), tr("Needs positive values"));
  lines->setObjectName(QStringLiteral("lines"));
  legend->setObjectName(QStringLiteral("legend"));
  logX->setObjectName(QStringLiteral("logX"));
  logY->setObjectName(QStringLiteral("logY"));

  for (QComboBox* box : {style, x, z})
    connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PlotDock::emitChoice);
  connect(y, &QListWidget::itemChanged, this, &PlotDock::emitChoice);
  enableControls();
}

QCheckBox* PlotDock::addSwitch(const QString& text, const QString& toolTip)
{
  auto* box = new QCheckBox(text);
  box->setToolTip(toolTip);
  static_cast<QFormLayout*>(widget()->layout())->addRow(box);
  connect(box, &QCheckBox::toggled, this, &PlotDock::emitChoice);
  return box;
}

void PlotDock::addRow(const QString& name, const QString& toolTip, int column)
{
  auto* item = new QListWidgetItem(name, y);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  item->setCheckState(Qt::Unchecked);
  item->setToolTip(toolTip);
  shownColumns.push_back(column);
}

void PlotDock::setColumns(const QStringList& names,
                          const std::vector<std::pair<int, QString>>& features)
{
  const QSignalBlocker silent(y);
  y->clear();
  shownColumns.clear();
  tableColumns = names.size();
  QStringList shown;
  for (const QString& name : names)
  {
    shown.append(QString::fromStdString(shownName(name.toStdString())));
    addRow(shown.back(), name, static_cast<int>(shownColumns.size()));
  }
  for (const auto& [column, name] : features)
  {
    shown.append(name);
    addRow(name, tr("%1: one value for a run").arg(name), column);
  }
  x->setNames(shown);
  z->setNames(shown);
}

/// -1 for a column that is not offered.
int PlotDock::rowOf(int column) const
{
  const auto found = std::find(shownColumns.begin(), shownColumns.end(), column);
  return found == shownColumns.end() ? -1 : static_cast<int>(found - shownColumns.begin());
}

QStringList PlotDock::columns() const
{
  QStringList names;
  for (int row = 0; row < tableColumns; ++row)
    names.append(y->item(row)->toolTip());
  return names;
}

void PlotDock::tickColumns(const std::vector<int>& columns)
{
  const QSignalBlocker silent(y);
  for (int row = 0; row < y->count(); ++row)
    y->item(row)->setCheckState(Qt::Unchecked);
  for (const int column : columns)
    if (QListWidgetItem* item = y->item(rowOf(column)))
      item->setCheckState(Qt::Checked);
  lastTicked = columns;
}

std::vector<int> PlotDock::tickedColumns() const
{
  std::vector<int> order = lastTicked;
  order.insert(order.end(), shownColumns.begin(), shownColumns.end());
  std::vector<int> ticked;
  for (const int column : order)
  {
    const QListWidgetItem* item = y->item(rowOf(column));
    const bool known = std::find(ticked.begin(), ticked.end(), column) != ticked.end();
    if (item && item->checkState() == Qt::Checked && !known)
      ticked.push_back(column);
  }
  return ticked;
}

void PlotDock::setChoice(const PlotChoice& choice)
{
  const QSignalBlocker silentStyle(style);
  const QSignalBlocker silentX(x);
  const QSignalBlocker silentZ(z);
  const QSignalBlocker silentLines(lines);
  const QSignalBlocker silentLogX(logX);
  style->setCurrentIndex(style->findData(static_cast<int>(choice.style)));
  unofferedStyle = choice.style;
  x->setCurrentIndex(rowOf(choice.x));
  z->setCurrentIndex(rowOf(choice.z));
  movedAxes = choice.axes;
  tickColumns(choice.y);
  lines->setChecked(choice.lines);
  logX->setChecked(choice.logX);
  wishedLegend = choice.legend;
  wishedLogY = choice.logY;
  enableControls();
}

/// Disabled switches show what the style does and not what the user wants.
void PlotDock::readWishes()
{
  if (legend->isEnabled())
    wishedLegend = legend->isChecked();
  if (logY->isEnabled())
    wishedLogY = logY->isChecked();
}

/// -1 for none.
int PlotDock::columnIn(const NameBox& box) const
{
  const int row = box.currentIndex();
  return row < 0 ? -1 : shownColumns[static_cast<std::size_t>(row)];
}

PlotChoice PlotDock::choice() const
{
  PlotChoice choice;
  choice.style = style->currentIndex() < 0 ? unofferedStyle
                                           : static_cast<plotStyles>(style->currentData().toInt());
  choice.x = columnIn(*x);
  choice.z = columnIn(*z);
  choice.axes = movedAxes;
  choice.y = tickedColumns();
  choice.lines = lines->isChecked();
  choice.legend = wishedLegend;
  choice.logX = logX->isChecked();
  choice.logY = wishedLogY;
  return choice;
}

void PlotDock::emitChoice()
{
  readWishes();
  lastTicked = choice().y;
  enableControls();
  emit choiceChanged();
}

void PlotDock::enableControls()
{
  const auto offer = [](QCheckBox* box, bool offered, bool wished)
  {
    const QSignalBlocker silent(box);
    box->setEnabled(offered);
    box->setChecked(offered && wished);
  };
  const PlotControls& acting = viewerStyle(choice().style).controls;
  lines->setEnabled(acting.lines);
  offer(legend, acting.legend, wishedLegend);
  logX->setEnabled(acting.logX);
  offer(logY, acting.logY, wishedLogY);
  z->setEnabled(acting.z);
  x->setEnabled(acting.x);
}

} // namespace Talmesh::app
