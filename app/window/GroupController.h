#ifndef GroupController_h
#define GroupController_h

#include "app/import/Result.h"

#include <QObject>
#include <QString>

#include <memory>
#include <string>

namespace Talmesh
{
class RunClustering;
}

namespace Talmesh::app
{

class ClusterDock;
class Document;
class TaskBar;
class TaskRunner;

/// Hands what the user does in the panel of groups to the document, and shows the document's groups
/// in the panel. Groups are found in the background, for the study that is then shown: another one
/// ends the search.
class GroupController : public QObject
{
  Q_OBJECT

public:
  /// @param dock, document, bar outlive the controller's work; the bar shows how far it is
  GroupController(ClusterDock& dock, Document& document, TaskBar& bar, QObject* parent = nullptr);
  /// Gives up the search and waits for it.
  ~GroupController() override;

  bool isGrouping() const;

signals:
  /// What is going on, in one line.
  void said(const QString& message);
  /// What was going on has been given up, in one line.
  void stopped(const QString& message);
  /// The search is over.
  void ended();
  /// Why there are no groups, in one line.
  void failed(const QString& message);

private:
  std::shared_ptr<RunClustering> prepare();
  void group();
  void groupByTexts(const std::string& label);
  void showGroups();
  void cancel();
  void take(const Result<std::shared_ptr<RunClustering>>& found);
  void showStudy();
  void normalise(bool on);
  void showNormalised();

  ClusterDock& dock;
  Document& document;
  TaskRunner* runner;
};

} // namespace Talmesh::app

#endif
