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

void PlotDock::setColumns(const QStringList& names)
{
  QStringList shown;
  for (const QString& name : names)
    shown.append(QString::fromStdString(shownName(name.toStdString())));
  x->setNames(shown);
  z->setNames(shown);
  const QSignalBlocker silent(y);
  y->clear();
  for (int column = 0; column < shown.size(); ++column)
  {
    auto* item = new QListWidgetItem(shown[column], y);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Unchecked);
    item->setToolTip(names[column]);
  }
}

QStringList PlotDock::columns() const
{
  QStringList names;
  for (int row = 0; row < y->count(); ++row)
    names.append(y->item(row)->toolTip());
  return names;
}

void PlotDock::tickColumns(const std::vector<int>& columns)
{
  const QSignalBlocker silent(y);
  for (int row = 0; row < y->count(); ++row)
    y->item(row)->setCheckState(Qt::Unchecked);
  for (const int column : columns)
    if (QListWidgetItem* item = y->item(column))
      item->setCheckState(Qt::Checked);
  lastTicked = columns;
}

std::vector<int> PlotDock::tickedColumns() const
{
  std::vector<int> order = lastTicked;
  for (int row = 0; row < y->count(); ++row)
    order.push_back(row);
  std::vector<int> ticked;
  for (const int row : order)
  {
    const QListWidgetItem* item = y->item(row);
    const bool known = std::find(ticked.begin(), ticked.end(), row) != ticked.end();
    if (item && item->checkState() == Qt::Checked && !known)
      ticked.push_back(row);
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
  x->setCurrentIndex(choice.x);
  z->setCurrentIndex(choice.z);
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

PlotChoice PlotDock::choice() const
{
  PlotChoice choice;
  choice.style = style->currentIndex() < 0 ? unofferedStyle
                                           : static_cast<plotStyles>(style->currentData().toInt());
  choice.x = x->currentIndex();
  choice.z = z->currentIndex();
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
