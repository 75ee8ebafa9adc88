#include "app/window/LoadingBar.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QToolButton>

namespace Talmesh::app
{

LoadingBar::LoadingBar(QWidget* parent)
    : QWidget(parent)
    , bar(new QProgressBar)
{
  auto* button = new QToolButton;
  button->setText(tr("Cancel"));
  button->setObjectName(QStringLiteral("cancelLoading"));
  bar->setRange(0, 100);
  bar->setFixedWidth(16 * fontMetrics().averageCharWidth());
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(bar);
  layout->addWidget(button);
  connect(button, &QToolButton::clicked, this, &LoadingBar::cancelled);
  hide();
}

void LoadingBar::begin()
{
  bar->setValue(0);
  show();
}

void LoadingBar::setPercent(int percent)
{
  bar->setValue(percent);
}

void LoadingBar::end()
{
  hide();
}

} // namespace Talmesh::app
