#ifndef FileMenu_h
#define FileMenu_h

#include <QMenu>

namespace Talmesh::app
{

class Document;
class RecentMenu;

/// The menu that opens files, saves sessions and exports. Sessions can be saved when the document
/// can.
class FileMenu : public QMenu
{
  Q_OBJECT

public:
  /// @param document outlives the menu
  /// @param recent the files opened last; becomes a part of the menu
  /// @param window the parent of the menu and of all questions, which quits by being closed
  FileMenu(Document& document, RecentMenu& recent, QWidget* window);

signals:
  void fileChosen(const QString& path);
  /// One file, or several that belong together.
  void filesChosen(const QStringList& paths);
  /// The same, to be read as the user says.
  void filesToReadChosen(const QStringList& paths);
  void exampleWanted();
  void saveWanted();
  void saveAsWanted();
  void exportWanted();

private:
  template <typename Receiver, typename Slot>
  QAction* add(const QString& text, const QKeySequence& keys, Receiver* receiver, Slot slot);
  void addOpening(RecentMenu& recent);
  void addSessions(Document& document);
  void askForTables(const QString& title, void (FileMenu::*chosen)(const QStringList&));
  void ask(const QString& title, const QString& filter);
};

} // namespace Talmesh::app

#endif
