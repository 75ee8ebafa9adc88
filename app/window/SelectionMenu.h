#ifndef SelectionMenu_h
#define SelectionMenu_h

#include <QMenu>

#include <functional>
#include <string>

namespace Talmesh::app
{

class SelectionController;

/// The menu that changes what is selected, and reads it from files and writes it to them.
class SelectionMenu : public QMenu
{
  Q_OBJECT

public:
  /// @param selection outlives the menu
  /// @param window the parent of the menu and of all questions
  /// @param interrupts what the key that selects nothing ends instead, and whether there was
  /// anything: a rectangle that is being drawn
  SelectionMenu(SelectionController& selection, std::function<bool()> interrupts, QWidget* window);

  /// Whether the keys that select mean the plot: on another page they belong to what it lists.
  void setSelecting(bool on);

signals:
  /// What is selected is now in a file of its own.
  void kept();
  /// Why a file could not be written or read as it should, in one line.
  void failed(const QString& message);

private:
  void addHistory();
  void addFiles();
  void save();
  void load();
  void note(const std::string& error);

  SelectionController& selection;
  QAction* all;
  QAction* nothing;
  QAction* others;
};

} // namespace Talmesh::app

#endif
