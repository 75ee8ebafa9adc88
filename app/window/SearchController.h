#ifndef SearchController_h
#define SearchController_h

#include <QObject>
#include <QString>

namespace Talmesh::app
{

class Document;
class TaskBar;
class TaskRunner;

/// Has conditions that many runs are long looked through for tested in the background.
class SearchController : public QObject
{
  Q_OBJECT

public:
  /// @param document, bar outlive the controller's work; the bar shows how far it is
  SearchController(Document& document, TaskBar& bar, QObject* parent = nullptr);
  /// Gives up what is looked for and waits for it.
  ~SearchController() override;

  bool isSearching() const;

signals:
  /// What is going on, in one line.
  void said(const QString& message);
  /// What has become of it, in one line.
  void stopped(const QString& message);
  /// Nothing is looked for any more.
  void ended();
  /// Why no runs could be looked for, in one line.
  void failed(const QString& message);

private:
  void fail(const QString& message);

  Document& document;
  TaskRunner* runner;
  bool failing = false;
};

} // namespace Talmesh::app

#endif
