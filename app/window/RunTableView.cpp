#include "app/window/RunTableView.h"

#include <QHeaderView>
#include <QTimer>

namespace Talmesh::app
{

namespace
{

/// A key that is held down repeats in less time.
constexpr int pauseOfKeys = 200; ///< milliseconds
constexpr int charactersOfAName = 24;

} // namespace

RunTableView::RunTableView(QWidget* parent)
    : QTableView(parent)
    , pause(new QTimer(this))
{
  setObjectName(QStringLiteral("runTable"));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setTextElideMode(Qt::ElideMiddle);
  setWordWrap(false);
  horizontalHeader()->setTextElideMode(Qt::ElideMiddle);
  verticalHeader()->hide();
  // One height for all rows: they are not to be measured one by one.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + fontMetrics().leading() + 4);
  horizontalHeader()->setMaximumSectionSize(charactersOfAName * fontMetrics().averageCharWidth());
  pause->setSingleShot(true);
  pause->setInterval(pauseOfKeys);
  connect(pause, &QTimer::timeout, this, &RunTableView::rowsChosen);
}

void RunTableView::mousePressEvent(QMouseEvent* event)
{
  emit pressBegins();
  QTableView::mousePressEvent(event);
}

void RunTableView::mouseReleaseEvent(QMouseEvent* event)
{
  QTableView::mouseReleaseEvent(event);
  emit rowsChosen();
}

void RunTableView::keyPressEvent(QKeyEvent* event)
{
  QTableView::keyPressEvent(event);
  pause->start();
}

} // namespace Talmesh::app
