#include "app/LastResort.h"

#include "support/CapturedOutput.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <new>
#include <stdexcept>

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

TEST(LastResort, SaysThatThereIsNotEnoughMemory)
{
  const CapturedOutput errors(std::cerr);
  EXPECT_EQ(endingClearly([]() -> int { throw std::bad_alloc(); }), EXIT_FAILURE);
  EXPECT_EQ(errors.text(), "talmesh-plot: there is not enough memory\n");
}
