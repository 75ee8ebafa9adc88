#ifndef StatusLine_h
#define StatusLine_h

#include <QString>

class QLabel;
class QStatusBar;

namespace Talmesh::app
{

class TaskBar;

/// What the window's status bar tells: what is going on, how far long work is, and how much is
/// selected and loaded.
class StatusLine
{
public:
  /// @param bar outlives the line
  explicit StatusLine(QStatusBar& bar);

  /// One of its own for each kind of long work.
  TaskBar& opening() { return *openingBar; }
  TaskBar& searching() { return *searchingBar; }
  TaskBar& features() { return *featureBar; }
  TaskBar& grouping() { return *groupingBar; }
  TaskBar& comparing() { return *comparingBar; }
  TaskBar& exporting() { return *exportingBar; }

  /// Shows one line for some seconds.
  void say(const QString& message);
  /// Shows one line until another one comes.
  void tell(const QString& message);
  void clear();

  void setSelection(const QString& text);
  void setSize(const QString& text);
  QString selection() const;
  QString size() const;

private:
  QStatusBar& line;
  TaskBar* openingBar;
  TaskBar* searchingBar;
  TaskBar* featureBar;
  TaskBar* groupingBar;
  TaskBar* comparingBar;
  TaskBar* exportingBar;
  QLabel* selectedLabel;
  QLabel* sizeLabel;
};

} // namespace Talmesh::app

#endif
