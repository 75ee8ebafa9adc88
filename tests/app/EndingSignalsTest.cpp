#include "app/EndingSignals.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <unistd.h>

using namespace Talmesh::app;

namespace
{

/// The descriptor that the system gives out next.
int nextDescriptor()
{
  const int next = dup(STDERR_FILENO);
  close(next);
  return next;
}

} // namespace

TEST(EndingSignals, LeaveTheErrorOfWhatTheyInterrupt)
{
  const int reader = nextDescriptor();
  const EndingSignals ending([] {});
  const int writer = reader + 1;
  // A full pipe takes no more, which is an error of the handler's own.
  while (write(writer, "", 1) == 1)
  {
  }
  ASSERT_EQ(errno, EAGAIN);
  errno = ENOENT;
  std::raise(SIGHUP);
  EXPECT_EQ(errno, ENOENT);
}

TEST(EndingSignals, AreTakenBackFromLibrariesThatStartBeforeTheProgram)
{
  const auto handler = [](int) {};
  for (const int number : {SIGTERM, SIGINT, SIGHUP})
  {
    takeSignalsBack();
    const auto before = std::signal(number, handler);
    takeSignalsBack();
    EXPECT_EQ(std::signal(number, before), before) << number;
  }
}
