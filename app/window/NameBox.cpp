#include "app/window/NameBox.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace Talmesh::app
{

namespace
{

/// The widths of the panel follow the font, so that they are right on every screen.
constexpr int charactersOfAName = 18;

/// A view makes its items at least as wide as it is, and wider for those that ask for it.
class NarrowItems : public QStyledItemDelegate
{
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
  {
    return {1, QStyledItemDelegate::sizeHint(option, index).height()};
  }
};

} // namespace

NameBox::NameBox(QWidget* parent)
    : QComboBox(parent)
{
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(charactersOfAName);
  view()->setTextElideMode(Qt::ElideMiddle);
}

void NameBox::setNames(const QStringList& names)
{
  const QSignalBlocker silent(this);
  clear();
  addItems(names);
  for (int i = 0; i < names.size(); ++i)
    setItemData(i, names[i], Qt::ToolTipRole);
}

QString NameBox::shownName() const
{
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QRect room =
      style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  return fontMetrics().elidedText(currentText(), Qt::ElideMiddle, room.width() - 2);
}

void NameBox::paintEvent(QPaintEvent*)
{
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  option.currentText = shownName();
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

bool NameBox::event(QEvent* event)
{
  if (event->type() != QEvent::ToolTip || shownName() == currentText())
    return QComboBox::event(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), currentText(), this);
  return true;
}

void elideNames(QAbstractItemView& list)
{
  list.setItemDelegate(new NarrowItems(&list));
  list.setTextElideMode(Qt::ElideMiddle);
}

} // namespace Talmesh::app
