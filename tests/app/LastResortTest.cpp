#include "app/LastResort.h"

#include "support/CapturedOutput.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <new>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <unistd.h>

using namespace Talmesh::app;

TEST(LastResort, GivesTheStatusOfAProgramThatEndsByItself)
{
  const CapturedOutput errors(std::cerr);
  EXPECT_EQ(endingClearly([] { return 7; }), 7);
  EXPECT_EQ(errors.text(), "");
}

TEST(LastResort, EndsInOneLineAfterAnException)
{
  const CapturedOutput errors(std::cerr);
  EXPECT_EQ(endingClearly([]() -> int { throw std::runtime_error("broken"); }), EXIT_FAILURE);
  EXPECT_EQ(errors.text(), "talmesh-plot: cannot go on: broken\n");
}

TEST(LastResort, SaysOnceWhyAProgramEndsHoweverMuchFailsOnTheWayOut)
{
  const CapturedOutput errors(std::cerr);
  const auto part = []() -> int { throw std::bad_alloc(); };
  EXPECT_EQ(endingClearly(
                [&]() -> int
                {
                  EXPECT_EQ(endingClearly(part), EXIT_FAILURE);
                  EXPECT_EQ(endingClearly(part), EXIT_FAILURE);
                  throw std::runtime_error("broken");
                }),
            EXIT_FAILURE);
  EXPECT_EQ(errors.text(), "talmesh-plot: there is not enough memory\n");
}

TEST(LastResort, SaysThatThereIsNotEnoughMemory)
{
  const CapturedOutput errors(std::cerr);
  EXPECT_EQ(endingClearly([]() -> int { throw std::bad_alloc(); }), EXIT_FAILURE);
  EXPECT_EQ(errors.text(), "talmesh-plot: there is not enough memory\n");
}

namespace
{

/// Writes to standard error when asked to, and then slowly, while another thread runs out of
/// memory.
class SlowLine : public std::stringbuf
{
protected:
  int sync() override
  {
    const std::string line = str();
    if (line.empty() || line.back() != '\n')
      return 0;
    str(std::string());
    std::thread([] { throw std::bad_alloc(); }).detach();
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    return ::write(STDERR_FILENO, line.data(), line.size()) < 0 ? -1 : 0;
  }
};

} // namespace

TEST(LastResort, SaysWhyOnceWhenAnotherThreadFailsMeanwhile)
{
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        installLastResort();
        SlowLine slow;
        std::cerr.rdbuf(&slow);
        ::_exit(fail("over"));
      },
      ::testing::ExitedWithCode(EXIT_FAILURE), "(^|\n)talmesh-plot: over\n$");
}
