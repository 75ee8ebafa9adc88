#include "app/window/SelectionMenu.h"

#include "app/document/SelectionController.h"
#include "app/window/FileDialogs.h"

#include <utility>

namespace Talmesh::app
{

SelectionMenu::SelectionMenu(SelectionController& changed, std::function<bool()> interrupts,
                             QWidget* window)
    : QMenu(tr("&Selection"), window)
    , selection(changed)
{
  addHistory();
  addSeparator();
  all = addAction(tr("Select &all"), &selection, &SelectionController::selectAll);
  all->setShortcut(QKeySequence::SelectAll);
  nothing = addAction(tr("Select &nothing"), &selection,
                      [this, interrupts = std::move(interrupts)]
                      {
                        if (!interrupts())
                          selection.clear();
                      });
  nothing->setShortcut(QKeySequence(Qt::Key_Escape));
  others = addAction(tr("&Invert selection"), &selection, &SelectionController::invert);
  others->setShortcut(QKeySequence(tr("Ctrl+I")));
  addSeparator();
  addFiles();
}

void SelectionMenu::addHistory()
{
  QAction* undo = selection.undoGroup().createUndoAction(this);
  undo->setShortcut(QKeySequence::Undo);
  addAction(undo);
  QAction* redo = selection.undoGroup().createRedoAction(this);
  redo->setShortcut(QKeySequence::Redo);
  addAction(redo);
}

void SelectionMenu::addFiles()
{
  addAction(tr("&Load selected runs..."), this, &SelectionMenu::load)
      ->setShortcut(QKeySequence(tr("Ctrl+Shift+L")));
  addAction(tr("&Save selected runs..."), this, &SelectionMenu::save)
      ->setShortcut(QKeySequence(tr("Ctrl+Shift+S")));
}

void SelectionMenu::setSelecting(bool on)
{
  all->setEnabled(on);
  nothing->setEnabled(on);
  others->setEnabled(on);
}

void SelectionMenu::save()
{
  askToSave(parentWidget(), tr("Save selected runs"), tr("Runs (*.json)"), QStringLiteral("json"),
            [this](const QString& path) { note(selection.save(path)); });
}

void SelectionMenu::load()
{
  askToOpen(parentWidget(), tr("Load selected runs"), tr("Runs (*.json)"),
            [this](const QString& path) { note(selection.load(path)); });
}

void SelectionMenu::note(const std::string& error)
{
  if (error.empty())
    emit kept();
  else
    emit failed(QString::fromStdString(error));
}

} // namespace Talmesh::app
