#include "app/LastResort.h"

#include <QScopedValueRollback>
#include <QSemaphore>
#include <QThreadPool>

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <future>
#include <iostream>
#include <memory>
#include <new>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace Talmesh::app
{

namespace
{

constexpr char memoryLine[] = "talmesh-plot: there is not enough memory\n";
/// What is left when a driver asked for too much, in bytes. It asks for less at once.
constexpr std::size_t spareMemory = std::size_t{256} << 20U;
constexpr std::size_t handlerStack = std::size_t{64} << 10U;
constexpr int mostSharedThreads = 8;
/// Those of the display's events and of the accessibility bus, which start next.
constexpr int laterThreads = 2;
constexpr int patience = 10000;        ///< milliseconds
constexpr int speakingPatience = 2000; ///< milliseconds
constexpr useconds_t millisecond = 1000;

/// The reason is said; what fails on the way out, or in another thread, adds nothing.
std::atomic<bool> saidWhy{false};
std::atomic_flag speaking = ATOMIC_FLAG_INIT;

/// Of sanitizers and of libraries that VTK is linked with.
std::array<struct sigaction, NSIG> handlersBefore;

/// Waits until no other thread is about to say why, which would be cut short or come twice; for a
/// while only, as it may be this thread that failed in saying it.
/// @return whether it is this thread's turn, until it clears `speaking`
bool waitToSpeak()
{
  for (int waited = 0; waited < speakingPatience; ++waited)
  {
    if (!speaking.test_and_set())
      return true;
    ::usleep(millisecond);
  }
  return false;
}

/// Never lets others speak again.
[[noreturn]] void endWithoutMemory()
{
  waitToSpeak();
  if (saidWhy)
    ::_exit(EXIT_FAILURE);
  // Without standard error there is only the status.
  const ssize_t ignored = ::write(STDERR_FILENO, memoryLine, sizeof memoryLine - 1);
  static_cast<void>(ignored);
  ::_exit(EXIT_FAILURE);
}

/// A null pointer that was used, or an abort, when memory has run out. It may call only what is
/// allowed in signal handlers.
void endIfMemoryIsShort(int signal)
{
  void* probe =
      ::mmap(nullptr, spareMemory, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (probe != MAP_FAILED)
  {
    // The crash has another cause. Its signal comes again and finds the handler of before.
    ::munmap(probe, spareMemory);
    ::sigaction(signal, &handlersBefore[static_cast<std::size_t>(signal)], nullptr);
    return;
  }
  endWithoutMemory();
}

/// Exceptions that no one can catch, as those of a driver's thread.
void endUncaught()
{
  try
  {
    if (const std::exception_ptr uncaught = std::current_exception())
      std::rethrow_exception(uncaught);
  }
  catch (const std::bad_alloc&)
  {
    endWithoutMemory();
  }
  catch (...)
  {
  }
  std::abort();
}

void catchSignal(int signal)
{
  struct sigaction wanted = {};
  wanted.sa_handler = endIfMemoryIsShort;
  wanted.sa_flags = SA_ONSTACK;
  ::sigaction(signal, &wanted, &handlersBefore[static_cast<std::size_t>(signal)]);
}

/// Whether the system gives that many threads at once.
bool canStartThreads(int count)
{
  std::promise<void> all;
  const std::shared_future<void> started = all.get_future().share();
  std::vector<std::thread> threads;
  bool possible = true;
  try
  {
    for (int i = 0; i < count; ++i)
      threads.emplace_back([started] { started.wait(); });
  }
  catch (const std::exception&)
  {
    possible = false;
  }
  all.set_value();
  for (std::thread& thread : threads)
    thread.join();
  return possible;
}

} // namespace

int fail(const std::string& message)
{
  const bool inTurn = waitToSpeak();
  if (!saidWhy)
    std::cerr << "talmesh-plot: " << message << std::endl;
  saidWhy = true;
  if (inTurn)
    speaking.clear();
  return EXIT_FAILURE;
}

int endingClearly(const std::function<int()>& program)
{
  static int depth = 0;
  if (depth == 0)
    saidWhy = false;
  const QScopedValueRollback<int> deeper(depth, depth + 1);
  try
  {
    return program();
  }
  catch (const std::bad_alloc&)
  {
    return fail("there is not enough memory");
  }
  catch (const std::exception& failure)
  {
    return fail(std::string("cannot go on: ") + failure.what());
  }
}

void installLastResort()
{
  // What used up the stack leaves none for a handler.
  static std::array<char, handlerStack> stack;
  const stack_t spare = {stack.data(), 0, stack.size()};
  ::sigaltstack(&spare, nullptr);
  for (const int signal : {SIGSEGV, SIGBUS, SIGABRT})
    catchSignal(signal);
  std::set_terminate(endUncaught);
}

bool startSharedThreads()
{
  QThreadPool& pool = *QThreadPool::globalInstance();
  const int count = std::min(pool.maxThreadCount(), mostSharedThreads);
  if (!canStartThreads(count + laterThreads))
    return false;
  pool.setMaxThreadCount(count);
  pool.setExpiryTimeout(-1);
  const auto running = std::make_shared<QSemaphore>();
  const auto enough = std::make_shared<QSemaphore>();
  for (int i = 0; i < count; ++i)
    pool.start(
        [running, enough]
        {
          running->release();
          // A thread that is free would take the task of another.
          enough->acquire();
        });
  const bool all = running->tryAcquire(count, patience);
  enough->release(count);
  return all;
}

bool ClearlyEndingApplication::notify(QObject* receiver, QEvent* event)
{
  bool handled = false;
  const int status = endingClearly(
      [&]
      {
        handled = QApplication::notify(receiver, event);
        return EXIT_SUCCESS;
      });
  if (status != EXIT_SUCCESS)
  {
    failed = true;
    exit(status);
  }
  return handled;
}

} // namespace Talmesh::app
