#include "app/comparison/ComparisonControls.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace Talmesh::app
{

ThresholdBox* makeThreshold(const char* name, const QString& toolTip, ThresholdBox::Steps steps)
{
  auto* box = new ThresholdBox(steps);
  box->setObjectName(QLatin1String(name));
  box->setToolTip(toolTip);
  return box;
}

QCheckBox* makeSwitch(const char* name, const QString& text, const QString& toolTip)
{
  auto* box = new QCheckBox(text);
  box->setObjectName(QLatin1String(name));
  box->setToolTip(toolTip);
  return box;
}

QComboBox* makeChoiceBox(const char* name, const QString& toolTip, const QList<ChoiceName>& entries)
{
  auto* box = new QComboBox;
  box->setObjectName(QLatin1String(name));
  box->setToolTip(toolTip);
  for (const ChoiceName& entry : entries)
  {
    box->addItem(entry.text);
    box->setItemData(box->count() - 1, entry.toolTip, Qt::ToolTipRole);
  }
  return box;
}

void addLabelled(QGridLayout* layout, int row, int column, const QString& text, QWidget* field)
{
  auto* label = new QLabel(text);
  label->setBuddy(field);
  label->setToolTip(field->toolTip());
  auto* cell = new QHBoxLayout;
  cell->addWidget(label);
  cell->addWidget(field, 1);
  layout->addLayout(cell, row, column);
}

void showValue(ThresholdBox* box, double value)
{
  const QSignalBlocker silent(box);
  // Showing a value rewrites the text, which the user may be typing: 0.00 on the way to 0.001.
  if (box->value() != value)
    box->setValue(value);
}

void showEntry(QComboBox* box, int entry)
{
  const QSignalBlocker silent(box);
  box->setCurrentIndex(entry);
}

void showState(QAbstractButton* button, bool on)
{
  const QSignalBlocker silent(button);
  button->setChecked(on);
}

} // namespace Talmesh::app
