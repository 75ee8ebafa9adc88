#include "app/window/FileMenu.h"

#include "app/document/Document.h"
#include "app/formats/FileFormats.h"
#include "app/window/FileDialogs.h"
#include "app/window/RecentMenu.h"

namespace Talmesh::app
{

template <typename Receiver, typename Slot>
QAction* FileMenu::add(const QString& text, const QKeySequence& keys, Receiver* receiver, Slot slot)
{
  QAction* action = addAction(text, receiver, slot);
  action->setShortcut(keys);
  return action;
}

FileMenu::FileMenu(Document& document, RecentMenu& recent, QWidget* window)
    : QMenu(tr("&File"), window)
{
  addOpening(recent);
  addSeparator();
  addSessions(document);
  addSeparator();
  QAction* exporting =
      add(tr("&Export..."), QKeySequence(tr("Ctrl+E")), this, &FileMenu::exportWanted);
  exporting->setObjectName(QStringLiteral("exportPlot"));
  const auto follow = [exporting, &document] { exporting->setEnabled(!document.size().isEmpty()); };
  connect(&document, &Document::studyChanged, exporting, follow);
  follow();
  addSeparator();
  add(tr("&Quit"), QKeySequence(tr("Ctrl+Q")), window, &QWidget::close);
}

void FileMenu::addOpening(RecentMenu& recent)
{
  add(tr("&Open..."), QKeySequence::Open, this,
      [this] { askForTables(tr("Open runs"), &FileMenu::filesChosen); });
  QAction* openAs = add(tr("O&pen as..."), QKeySequence(tr("Ctrl+Alt+P")), this,
                        [this] { askForTables(tr("Open as..."), &FileMenu::filesToReadChosen); });
  openAs->setObjectName(QStringLiteral("openAs"));
  addMenu(&recent);
  connect(&recent, &RecentMenu::fileChosen, this, &FileMenu::fileChosen);
  add(tr("Open the e&xample study"), QKeySequence(tr("Ctrl+Shift+O")), this,
      &FileMenu::exampleWanted);
}

void FileMenu::addSessions(Document& document)
{
  add(tr("Open sessio&n..."), QKeySequence(tr("Ctrl+Alt+O")), this,
      [this] { ask(tr("Open session"), tr("Sessions (*.talmesh)")); });
  QAction* save = add(tr("&Save session..."), QKeySequence::Save, this, &FileMenu::saveWanted);
  save->setObjectName(QStringLiteral("saveSession"));
  QAction* saveAs =
      add(tr("Save session &as..."), QKeySequence(tr("Ctrl+Alt+S")), this, &FileMenu::saveAsWanted);
  saveAs->setObjectName(QStringLiteral("saveSessionAs"));
  for (QAction* action : {save, saveAs})
  {
    const auto follow = [action, &document] { action->setEnabled(document.canBeSaved()); };
    connect(&document, &Document::studyChanged, action, follow);
    follow();
  }
}

void FileMenu::askForTables(const QString& title, void (FileMenu::*chosen)(const QStringList&))
{
  askToOpenSeveral(
      parentWidget(), title,
      tr("Tables and sessions (%1 *.talmesh)").arg(readableEndings().join(QLatin1Char(' '))) +
          QStringLiteral(";;") + tr("All files (*)"),
      [this, chosen](const QStringList& paths) { emit(this->*chosen)(paths); });
}

void FileMenu::ask(const QString& title, const QString& filter)
{
  askToOpen(parentWidget(), title, filter, [this](const QString& path) { emit fileChosen(path); });
}

} // namespace Talmesh::app
