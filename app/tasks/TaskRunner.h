#ifndef TaskRunner_h
#define TaskRunner_h

#include "app/import/Result.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class QThread;

namespace Talmesh::app
{

/// Told the part of a task that is done, from 0 to 1, every now and then; false when the task is to
/// be given up.
using TaskProgress = std::function<bool(double)>;

/// What to say of a task for want of memory.
std::string missingTaskMemory();

/// Runs long work in threads of its own, so that the window stays alive.
///
/// One task counts at a time: starting another gives up the one before, whose result nobody gets.
/// A task must look at the progress that it is given and touch nothing that other threads touch
/// meanwhile; widgets, containers and the VTK objects that charts show belong to the GUI thread.
/// Its result is delivered there, from the event loop, never from within `start`. What a task
/// throws becomes an error. The runner itself belongs to the GUI thread.
class TaskRunner : public QObject
{
  Q_OBJECT

public:
  /// Runs in another thread.
  template <typename Value>
  using Task = std::function<Result<Value>(const TaskProgress&)>;
  /// Gets the result in the GUI thread.
  template <typename Value>
  using Delivery = std::function<void(Result<Value>&)>;

  explicit TaskRunner(QObject* parent = nullptr);
  /// Gives up what is running and waits for it; nothing is delivered any more.
  ~TaskRunner() override;

  /// Starts a task in place of the one that runs, if any.
  /// @param receiver whom the result is for; when it is gone, nobody gets it
  /// @param deliver called once with the result, unless the task is given up or another one is
  ///   started before, by whomever; also when the task says itself that it was cancelled
  template <typename Value>
  void start(const QObject* receiver, Task<Value> task, Delivery<Value> deliver)
  {
    auto result = std::make_shared<Result<Value>>(Result<Value>::cancelled());
    run([result, task = std::move(task)](const TaskProgress& progress)
        { *result = task(progress); },
        [result, to = QPointer<const QObject>(receiver),
         deliver = std::move(deliver)](const std::string& error)
        {
          if (!error.empty())
            *result = Result<Value>::failed(error);
          if (to)
            deliver(*result);
        });
  }

  /// Gives up the running task; its result is not delivered.
  void cancel();
  /// Waits until what runs has come to its end, as for work that must not be left halfway when its
  /// owner ends. Nothing is delivered before the event loop is back.
  void waitForEnd();
  bool isRunning() const { return current != nullptr; }

signals:
  void started();
  /// Of the running task, when it changes.
  void progressed(int percent);
  /// Nothing runs any more: delivered, which follows, or given up. Not emitted when another task
  /// takes the place of one.
  void ended();

private:
  struct Running;
  using Work = std::function<void(const TaskProgress&)>;
  /// Gets what the work threw, in one line; empty for nothing.
  using Finish = std::function<void(const std::string&)>;

  void run(Work work, Finish finish);
  void giveUp();
  TaskProgress progressOf(const std::shared_ptr<Running>& task);
  void report(const std::shared_ptr<Running>& task, int percent);
  void collect(const std::shared_ptr<Running>& task);

  std::shared_ptr<Running> current;
  std::vector<std::shared_ptr<Running>> threads;
};

} // namespace Talmesh::app

#endif
