#include "app/comparison/ComparisonDock.h"
#include "app/document/SelectionController.h"
#include "app/session/StyleNames.h"
#include "app/window/FileDialogs.h"
#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "app/window/SessionController.h"
#include "widgets/VtkPlotWidget.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTabWidget>

namespace Talmesh::app
{

namespace
{

QString nativeText(const QAction* action)
{
  return action->shortcut().toString(QKeySequence::NativeText);
}

} // namespace

QAction* MainWindow::addAction(QMenu* menu, const QString& text, const QKeySequence& keys,
                               void (MainWindow::*slot)())
{
  QAction* action = menu->addAction(text);
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, slot);
  return action;
}

void MainWindow::makeMenus()
{
  makeFileMenu();
  makeSelectionMenu();
  makeViewMenu();
  makeHelpMenu();
}

void MainWindow::makeFileMenu()
{
  QMenu* file = menuBar()->addMenu(tr("&File"));
  addAction(file, tr("&Open..."), QKeySequence::Open, &MainWindow::chooseFile);
  recentMenu = file->addMenu(tr("Open &recent"));
  recentMenu->setObjectName(QStringLiteral("recentMenu"));
  connect(recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
  addAction(file, tr("Open the e&xample study"), QKeySequence(tr("Ctrl+Shift+O")),
            &MainWindow::openExampleInstead);
  file->addSeparator();
  addSessionActions(file);
  addAction(file, tr("&Export..."), QKeySequence(tr("Ctrl+E")), &MainWindow::chooseExport);
  file->addSeparator();
  QAction* quit = file->addAction(tr("&Quit"));
  quit->setShortcut(QKeySequence(tr("Ctrl+Q")));
  connect(quit, &QAction::triggered, this, &QWidget::close);
}

void MainWindow::makeSelectionMenu()
{
  QMenu* menu = menuBar()->addMenu(tr("&Selection"));
  const auto addStep = [menu](QAction* action, const QKeySequence& keys)
  {
    action->setShortcut(keys);
    menu->addAction(action);
  };
  addStep(selection->undoGroup().createUndoAction(this), QKeySequence::Undo);
  addStep(selection->undoGroup().createRedoAction(this), QKeySequence::Redo);
  menu->addSeparator();
  const auto add = [this, menu](const QString& text, const QKeySequence& keys,
                                void (SelectionController::*slot)())
  {
    QAction* action = menu->addAction(text);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, selection, slot);
    // On the other page the keys belong to the list of items.
    connect(tabs, &QTabWidget::currentChanged, action,
            [this, action] { action->setEnabled(tabs->currentWidget() == plot); });
  };
  add(tr("Select &all"), QKeySequence::SelectAll, &SelectionController::selectAll);
  add(tr("Select &nothing"), QKeySequence(Qt::Key_Escape), &SelectionController::clear);
  menu->addSeparator();
  addAction(menu, tr("&Load selected runs..."), QKeySequence(tr("Ctrl+Shift+L")),
            &MainWindow::loadSelection);
  addAction(menu, tr("&Save selected runs..."), QKeySequence(tr("Ctrl+Shift+S")),
            &MainWindow::saveSelection);
}

void MainWindow::makeViewMenu()
{
  QMenu* view = menuBar()->addMenu(tr("&View"));
  const auto addSwitch = [this, view](const char* name, const QString& text, const QString& keys)
  {
    QAction* action = view->addAction(text);
    action->setShortcut(QKeySequence(keys));
    connect(action, &QAction::triggered, dock->findChild<QCheckBox*>(QLatin1String(name)),
            &QCheckBox::click);
  };
  addSwitch("lines", tr("Lines or points"), tr("Ctrl+L"));
  addSwitch("legend", tr("Legend"), tr("Ctrl+G"));
  addSwitch("logX", tr("Logarithmic x axis"), tr("Ctrl+Shift+X"));
  addSwitch("logY", tr("Logarithmic y axis"), tr("Ctrl+Shift+Y"));
  view->addSeparator();
  for (const StyleName& style : styleNames())
  {
    if (style.style == reservedStyle1 || style.style == reservedStyle2)
      continue;
    QAction* action = view->addAction(titleOf(style));
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(static_cast<int>(style.style))));
    connect(action, &QAction::triggered, this, [this, value = style.style] { chooseStyle(value); });
  }
  view->addSeparator();
  QAction* panel = dock->toggleViewAction();
  panel->setShortcut(QKeySequence(Qt::Key_F9));
  view->addAction(panel);
  QAction* comparisonPanel = comparison->toggleViewAction();
  comparisonPanel->setShortcut(QKeySequence(Qt::Key_F8));
  view->addAction(comparisonPanel);
}

void MainWindow::makeHelpMenu()
{
  QMenu* help = menuBar()->addMenu(tr("&Help"));
  addAction(help, tr("&Keyboard shortcuts"), QKeySequence::HelpContents,
            &MainWindow::showShortcuts);
  addAction(help, tr("&About"), {}, &MainWindow::showAbout);
}

void MainWindow::chooseFile()
{
  askToOpen(this, tr("Open runs"),
            tr("Tables and sessions (*.csv *.tsv *.txt *.talmesh);;All files (*)"),
            [this](const QString& path) { openInstead(path); });
}

void MainWindow::saveSelection()
{
  askToSave(this, tr("Save selected runs"), tr("Runs (*.json)"), QStringLiteral("json"),
            [this](const QString& path) { noteSelectionFile(selection->save(path)); });
}

void MainWindow::loadSelection()
{
  askToOpen(this, tr("Load selected runs"), tr("Runs (*.json)"),
            [this](const QString& path) { noteSelectionFile(selection->load(path)); });
}

/// The selection has been written to a file or read from one.
void MainWindow::noteSelectionFile(const std::string& error)
{
  if (!error.empty())
    showError(QString::fromStdString(error));
  else if (!study.chart)
    sessions->selectionSaved();
}

void MainWindow::fillRecentMenu()
{
  recentMenu->clear();
  const QStringList paths = recent.paths();
  for (const QString& path : paths)
  {
    QString text = path;
    // A single one marks a letter.
    text.replace(QLatin1Char('&'), QStringLiteral("&&"));
    connect(recentMenu->addAction(text), &QAction::triggered, this,
            [this, path] { openInstead(path); });
  }
  if (paths.isEmpty())
  {
    recentMenu->addAction(tr("None yet"))->setEnabled(false);
    return;
  }
  recentMenu->addSeparator();
  QAction* clear = recentMenu->addAction(tr("&Clear list"));
  clear->setObjectName(QStringLiteral("clearRecent"));
  connect(clear, &QAction::triggered, this, [this] { recent.clear(); });
}

void MainWindow::showShortcuts()
{
  QString lines;
  for (const QAction* menu : menuBar()->actions())
    for (const QAction* action : menu->menu()->actions())
      if (!action->shortcut().isEmpty())
        lines += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>")
                     .arg(nativeText(action).toHtmlEscaped(),
                          action->text().remove(QLatin1Char('&')).toHtmlEscaped());
  auto* box =
      new QMessageBox(QMessageBox::NoIcon, tr("Keyboard shortcuts"),
                      QStringLiteral("<table>%1</table>").arg(lines), QMessageBox::Ok, this);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

void MainWindow::showAbout()
{
  auto* box = new QMessageBox(
      QMessageBox::NoIcon, tr("About Talmesh Plot"),
      tr("Talmesh Plot %1\nPlots of simulated runs.").arg(QApplication::applicationVersion()),
      QMessageBox::Ok, this);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

} // namespace Talmesh::app
