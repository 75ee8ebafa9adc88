#ifndef StudyLoader_h
#define StudyLoader_h

#include "app/session/StudyFile.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

class QThread;

namespace Talmesh::app
{

/// Opens studies in a thread of its own, so that the window stays alive. Only the study started
/// last is reported; starting another cancels the one before. Belongs to the GUI thread.
class StudyLoader : public QObject
{
  Q_OBJECT

public:
  /// Opens a study; runs in another thread and must look at the progress it is given.
  using Job = std::function<OpenedStudy(const ImportProgress&)>;

  explicit StudyLoader(QObject* parent = nullptr);
  /// Cancels what is running and waits for it.
  ~StudyLoader() override;

  void start(Job job);
  /// Gives up the running job; `finished` is then not emitted.
  void cancel();
  bool isLoading() const { return current != nullptr; }

signals:
  /// In percent.
  void progressed(int percent);
  void finished(const Talmesh::app::OpenedStudy& opened);

private:
  struct Task;

  void report(const std::shared_ptr<Task>& task, int percent);
  void collect(const std::shared_ptr<Task>& task);

  std::shared_ptr<Task> current;
  std::vector<std::shared_ptr<Task>> running;
};

} // namespace Talmesh::app

#endif
