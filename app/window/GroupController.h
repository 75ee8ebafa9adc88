#ifndef GroupController_h
#define GroupController_h

#include <QObject>

namespace Talmesh::app
{

class ClusterDock;
class Document;

/// Hands what the user does in the panel of groups to the document, and shows the document's groups
/// in the panel.
class GroupController : public QObject
{
  Q_OBJECT

public:
  /// @param dock, document outlive the controller's work
  GroupController(ClusterDock& dock, Document& document, QObject* parent = nullptr);

private:
  void group();
  void showStudy();
  void normalise(bool on);
  void showNormalised();

  ClusterDock& dock;
  Document& document;
};

} // namespace Talmesh::app

#endif
