#ifndef StudiesMenu_h
#define StudiesMenu_h

#include "app/session/StudyFile.h"

#include <QMenu>

#include <vector>

namespace Talmesh::app
{

class Document;

/// The menu of runs and computed studies. It marks the study that the document shows. The actions
/// are named by the ids of their charts.
class StudiesMenu : public QMenu
{
  Q_OBJECT

public:
  /// @param document outlives the menu
  explicit StudiesMenu(Document& document, QWidget* parent = nullptr);

signals:
  void runsWanted();
  void exampleWanted();
  /// The user wants the computed study of this name.
  void studyWanted(const QString& name, const Talmesh::app::StudyJob& job);

private:
  void addData();
  void addComputed();
  void follow();

  Document& document;
  QAction* runs = nullptr;
  std::vector<QAction*> computed;
};

} // namespace Talmesh::app

#endif
