#ifndef ComparisonController_h
#define ComparisonController_h

#include <QObject>
#include <QString>

namespace Talmesh::app
{

class ComparisonDock;
class Document;
class TaskBar;
class TaskRunner;

/// Hands what the user does in the panel of comparisons to the document, and shows the document's
/// comparison in the panel. Tests that take long are done in the background, for the runs that are
/// then selected: another selection ends them.
class ComparisonController : public QObject
{
  Q_OBJECT

public:
  /// @param dock, document, bar outlive the controller's work; the bar shows how far it is
  ComparisonController(ComparisonDock& dock, Document& document, TaskBar& bar,
                       QObject* parent = nullptr);
  /// Gives up the tests and waits for them.
  ~ComparisonController() override;

  bool isComparing() const;
  /// Shows the document's comparison as it is now.
  void refresh();

signals:
  /// Why there are no tests, in one line.
  void failed(const QString& message);

private:
  ComparisonDock& dock;
  Document& document;
  TaskRunner* runner;
};

} // namespace Talmesh::app

#endif
