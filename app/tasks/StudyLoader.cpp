#include "app/tasks/StudyLoader.h"

#include "app/import/TranslatedText.h"

#include <QMetaObject>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <exception>
#include <new>

namespace Talmesh::app
{

struct StudyLoader::Task
{
  std::atomic<bool> cancelled{false};
  /// Written by the thread, read after it has ended.
  OpenedStudy opened;
  std::unique_ptr<QThread> thread;
};

StudyLoader::StudyLoader(QObject* parent)
    : QObject(parent)
{
}

StudyLoader::~StudyLoader()
{
  for (const auto& task : running)
    task->cancelled = true;
  for (const auto& task : running)
    task->thread->wait();
}

void StudyLoader::start(Job job)
{
  cancel();
  auto task = std::make_shared<Task>();
  Task* const shared = task.get();
  const auto progress =
      [this, shared, weak = std::weak_ptr<Task>(task), last = -1](double done) mutable
  {
    const int percent = static_cast<int>(100.0 * done);
    if (percent != last)
      QMetaObject::invokeMethod(
          this, [this, weak, percent] { report(weak.lock(), percent); }, Qt::QueuedConnection);
    last = percent;
    return !shared->cancelled;
  };
  const auto work = [shared, job = std::move(job), progress]
  {
    try
    {
      shared->opened = job(progress);
    }
    catch (const std::bad_alloc&)
    {
      shared->opened = OpenedStudy();
      shared->opened.error = translated("StudyLoader", "there is not enough memory for this");
    }
    catch (const std::exception& failure)
    {
      shared->opened = OpenedStudy();
      shared->opened.error =
          withValues(translated("StudyLoader", "this cannot be opened: %1"), {failure.what()});
    }
  };
  task->thread.reset(QThread::create(work));
  connect(task->thread.get(), &QThread::finished, this,
          [this, weak = std::weak_ptr<Task>(task)] { collect(weak.lock()); });
  running.push_back(task);
  current = task;
  task->thread->start();
  if (task->thread->isRunning() || task->thread->isFinished())
    return;
  // The system gives no thread, which Qt only prints.
  task->opened.error = translated("StudyLoader", "there is not enough memory for this");
  QMetaObject::invokeMethod(
      this, [this, weak = std::weak_ptr<Task>(task)] { collect(weak.lock()); },
      Qt::QueuedConnection);
}

void StudyLoader::cancel()
{
  if (current)
    current->cancelled = true;
  current.reset();
}

void StudyLoader::report(const std::shared_ptr<Task>& task, int percent)
{
  if (task && task == current)
    emit progressed(percent);
}

void StudyLoader::collect(const std::shared_ptr<Task>& task)
{
  if (!task)
    return;
  task->thread->wait();
  running.erase(std::remove(running.begin(), running.end(), task), running.end());
  if (task != current)
    return;
  current.reset();
  emit finished(task->opened);
}

} // namespace Talmesh::app
