#include "app/tasks/TaskRunner.h"

#include "app/import/TranslatedText.h"

#include <QMetaObject>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <exception>
#include <new>

namespace Talmesh::app
{

namespace
{

/// @return what the work threw, in one line; empty for nothing
std::string whatFails(const std::function<void()>& work)
{
  try
  {
    work();
    return {};
  }
  catch (const std::bad_alloc&)
  {
    return missingTaskMemory();
  }
  catch (const std::exception& failure)
  {
    return withValues(translated("TaskRunner", "this cannot be done: %1"), {failure.what()});
  }
}

} // namespace

std::string missingTaskMemory()
{
  return translated("TaskRunner", "there is not enough memory for this");
}

struct TaskRunner::Running
{
  std::atomic<bool> cancelled{false};
  /// Written by the thread, read after it has ended.
  std::string error;
  Finish finish;
  std::unique_ptr<QThread> thread;
};

TaskRunner::TaskRunner(QObject* parent)
    : QObject(parent)
{
}

TaskRunner::~TaskRunner()
{
  for (const auto& task : threads)
    task->cancelled = true;
  for (const auto& task : threads)
    task->thread->wait();
}

void TaskRunner::run(Work work, Finish finish)
{
  giveUp();
  auto task = std::make_shared<Running>();
  task->finish = std::move(finish);
  task->thread.reset(
      QThread::create([shared = task.get(), work = std::move(work), progress = progressOf(task)]
                      { shared->error = whatFails([&] { work(progress); }); }));
  const auto collected = [this, weak = std::weak_ptr<Running>(task)] { collect(weak.lock()); };
  connect(task->thread.get(), &QThread::finished, this, collected);
  threads.push_back(task);
  current = task;
  emit started();
  task->thread->start();
  if (task->thread->isRunning() || task->thread->isFinished())
    return;
  // The system gives no thread, which Qt only prints.
  task->error = missingTaskMemory();
  QMetaObject::invokeMethod(this, collected, Qt::QueuedConnection);
}

TaskProgress TaskRunner::progressOf(const std::shared_ptr<Running>& task)
{
  return [this, shared = task.get(), weak = std::weak_ptr<Running>(task),
          last = -1](double done) mutable
  {
    const int percent = static_cast<int>(100.0 * done);
    if (percent != last)
      QMetaObject::invokeMethod(
          this, [this, weak, percent] { report(weak.lock(), percent); }, Qt::QueuedConnection);
    last = percent;
    return !shared->cancelled;
  };
}

void TaskRunner::giveUp()
{
  if (current)
    current->cancelled = true;
  current.reset();
}

void TaskRunner::cancel()
{
  const bool any = isRunning();
  giveUp();
  if (any)
    emit ended();
}

void TaskRunner::waitForEnd()
{
  for (const auto& task : threads)
    task->thread->wait();
}

void TaskRunner::report(const std::shared_ptr<Running>& task, int percent)
{
  if (task && task == current)
    emit progressed(percent);
}

void TaskRunner::collect(const std::shared_ptr<Running>& task)
{
  if (!task)
    return;
  task->thread->wait();
  threads.erase(std::remove(threads.begin(), threads.end(), task), threads.end());
  if (task != current)
    return;
  current.reset();
  emit ended();
  task->finish(task->error);
}

} // namespace Talmesh::app
