#include "app/EndingSignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <iterator>
#include <unistd.h>
#include <utility>

namespace Talmesh::app
{

namespace
{

constexpr int endingSignals[] = {SIGTERM, SIGINT, SIGHUP};

struct sigaction handlersAtStart[std::size(endingSignals)];

void readHandlersAtStart(int, char**, char**)
{
  for (std::size_t i = 0; i < std::size(endingSignals); ++i)
    sigaction(endingSignals[i], nullptr, &handlersAtStart[i]);
}

/// The system's loader calls what stands here before libraries begin.
[[gnu::section(".preinit_array"), gnu::used]] void (*const firstCall)(int, char**,
                                                                      char**) = readHandlersAtStart;

/// A signal handler may do little more than write into a pipe.
int writer = -1;

void passOn(int number)
{
  // What is interrupted may be about to look at it.
  const int error = errno;
  const auto byte = static_cast<unsigned char>(number);
  [[maybe_unused]] const ssize_t written = write(writer, &byte, 1);
  errno = error;
}

} // namespace

void takeSignalsBack()
{
  for (std::size_t i = 0; i < std::size(endingSignals); ++i)
    sigaction(endingSignals[i], &handlersAtStart[i], nullptr);
}

EndingSignals::EndingSignals(std::function<void()> lastThing, QObject* parent)
    : QObject(parent)
    , last(std::move(lastThing))
{
  int ends[2];
  if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
    return;
  reader = ends[0];
  writer = ends[1];
  notifier = new QSocketNotifier(reader, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, &EndingSignals::end);
  for (const int number : endingSignals)
  {
    struct sigaction before = {};
    sigaction(number, nullptr, &before);
    if (before.sa_handler == SIG_IGN)
      continue;
    struct sigaction action = {};
    action.sa_handler = passOn;
    // What cannot wait for the event loop comes through the second time.
    action.sa_flags = SA_RESETHAND | SA_RESTART;
    sigaction(number, &action, nullptr);
  }
}

EndingSignals::~EndingSignals()
{
  if (reader < 0)
    return;
  for (const int number : endingSignals)
  {
    struct sigaction now = {};
    sigaction(number, nullptr, &now);
    if (now.sa_handler == passOn)
      std::signal(number, SIG_DFL);
  }
  delete notifier;
  close(reader);
  close(writer);
}

void EndingSignals::end()
{
  unsigned char number = 0;
  if (read(reader, &number, 1) != 1)
    return;
  last();
  std::signal(number, SIG_DFL);
  std::raise(number);
}

} // namespace Talmesh::app
