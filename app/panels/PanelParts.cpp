#include "app/panels/PanelParts.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPixmap>
#include <QToolButton>
#include <QVBoxLayout>

namespace Talmesh::app
{

QIcon swatch(const QColor& colour, int size)
{
  QPixmap picture(size, size);
  picture.fill(colour);
  QIcon icon(picture);
  icon.addPixmap(picture, QIcon::Selected);
  return icon;
}

QWidget* makeButtonColumn(const QList<QAction*>& steps)
{
  auto* buttons = new QWidget;
  auto* column = new QVBoxLayout(buttons);
  column->setContentsMargins(0, 0, column->spacing(), 0);
  for (QAction* step : steps)
  {
    auto* button = new QToolButton;
    button->setDefaultAction(step);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // A menu alone has nothing else to begin.
    if (step->menu())
      button->setPopupMode(QToolButton::InstantPopup);
    column->addWidget(button);
  }
  column->addStretch();
  return buttons;
}

QLabel* makeExplanation(const QString& text)
{
  auto* label = new QLabel(text);
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignCenter);
  label->setMargin(label->fontMetrics().averageCharWidth());
  return label;
}

} // namespace Talmesh::app
