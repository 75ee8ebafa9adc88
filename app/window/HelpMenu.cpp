#include "app/window/HelpMenu.h"

#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>

namespace Talmesh::app
{

HelpMenu::HelpMenu(const QMenuBar& menus, QWidget* parent)
    : QMenu(tr("&Help"), parent)
    , bar(menus)
{
  addAction(tr("&Keyboard shortcuts"), this, &HelpMenu::showShortcuts)
      ->setShortcut(QKeySequence::HelpContents);
  addAction(tr("&About"), this, &HelpMenu::showAbout);
}

void HelpMenu::showShortcuts()
{
  QString lines;
  for (const QAction* menu : bar.actions())
    for (const QAction* action : menu->menu()->actions())
      if (!action->shortcut().isEmpty())
        lines += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>")
                     .arg(action->shortcut().toString(QKeySequence::NativeText).toHtmlEscaped(),
                          action->text().remove(QLatin1Char('&')).toHtmlEscaped());
  auto* box = new QMessageBox(QMessageBox::NoIcon, tr("Keyboard shortcuts"),
                              QStringLiteral("<table>%1</table>").arg(lines), QMessageBox::Ok,
                              parentWidget());
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

void HelpMenu::showAbout()
{
  auto* box = new QMessageBox(
      QMessageBox::NoIcon, tr("About Talmesh Plot"),
      tr("Talmesh Plot %1\nPlots of simulated runs.").arg(QApplication::applicationVersion()),
      QMessageBox::Ok, parentWidget());
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

} // namespace Talmesh::app
