#include "app/window/ViewMenu.h"

#include "app/styles/ViewerStyles.h"
#include "app/window/PlotDock.h"

#include <QCheckBox>
#include <QDockWidget>

namespace Talmesh::app
{

ViewMenu::ViewMenu(PlotDock& dock, QWidget* parent)
    : QMenu(tr("&View"), parent)
{
  addSwitch(dock.linesSwitch(), tr("Lines or points"), tr("Ctrl+L"));
  addSwitch(dock.legendSwitch(), tr("Legend"), tr("Ctrl+G"));
  addSwitch(dock.logXSwitch(), tr("Logarithmic x axis"), tr("Ctrl+Shift+X"));
  addSwitch(dock.logYSwitch(), tr("Logarithmic y axis"), tr("Ctrl+Shift+Y"));
  addSeparator();
  addStyles();
  addSeparator();
}

void ViewMenu::addSwitch(QCheckBox* box, const QString& text, const QString& keys)
{
  addAction(text, box, &QCheckBox::click)->setShortcut(QKeySequence(keys));
}

void ViewMenu::addStyles()
{
  for (const ViewerStyle& style : viewerStyles())
  {
    if (!style.offered)
      continue;
    QAction* action = addAction(titleOf(style));
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(static_cast<int>(style.style))));
    connect(action, &QAction::triggered, this,
            [this, value = style.style] { emit styleChosen(value); });
  }
}

void ViewMenu::addPanel(QDockWidget& panel, Qt::Key key)
{
  QAction* toggle = addAction(panel.windowTitle());
  toggle->setShortcut(QKeySequence(key));
  toggle->setCheckable(true);
  connect(&panel, &QDockWidget::visibilityChanged, toggle, &QAction::setChecked);
  connect(toggle, &QAction::triggered, &panel,
          [&panel](bool on)
          {
            panel.setVisible(on);
            if (on)
              panel.raise();
          });
}

} // namespace Talmesh::app
