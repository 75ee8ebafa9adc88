#include "window/TasksInWindow.h"

#include "support/TightMemory.h"

#include <QMessageBox>
#include <QToolButton>

using namespace Talmesh::app;

TEST_F(TasksInWindow, StaysAliveWhileRunsAreGrouped)
{
  startGrouping();
  EXPECT_TRUE(find<QToolButton>("cancelGrouping")->isVisible());
  EXPECT_EQ(groups(), 0U);
  expectHeartbeats([this] { startGrouping(); });
  EXPECT_EQ(groups(), 12U);
  EXPECT_TRUE(window->document().groups().state().look.groupColours);
  EXPECT_FALSE(find<QToolButton>("cancelGrouping")->isVisible());
}

TEST_F(TasksInWindow, MakesNoGroupsAfterACancel)
{
  startGrouping();
  click("cancelGrouping");
  EXPECT_FALSE(window->isBusy());
  letThreadsEnd();
  EXPECT_EQ(groups(), 0U);
  EXPECT_FALSE(find<QToolButton>("cancelGrouping")->isVisible());
}

TEST_F(TasksInWindow, MakesNoGroupsOfAStudyThatAnotherHasReplaced)
{
  startGrouping();
  openSample();
  EXPECT_FALSE(window->isBusy());
  letThreadsEnd();
  EXPECT_EQ(groups(), 0U);
  EXPECT_EQ(window->document().groups().runs(), 3);
}

TEST_F(TasksInWindow, SaysThatThereIsNoMemoryToGroupTheRuns)
{
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "The sanitizer takes addresses without bound.";
#endif
  open(noise(3000, 3000));
  {
    const TightMemory tight(std::size_t{12} << 20U);
    click("clusterStart");
  }
  EXPECT_FALSE(window->isBusy());
  auto* box = window->findChild<QMessageBox*>();
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text(), "there is not enough memory for this");
}

TEST_F(TasksInWindow, MayBeDestroyedWhileRunsAreGrouped)
{
  for (const int milliseconds : {0, 5, 50})
  {
    // A machine that is busy with others may come back too late.
    bool wasBusy = false;
    for (int times = 0; !wasBusy && times < 20; ++times)
    {
      window = std::make_unique<MainWindow>();
      window->show();
      startGrouping();
      QTest::qWait(milliseconds);
      wasBusy = window->isBusy();
      window->close();
      window.reset();
      QCoreApplication::processEvents();
    }
    EXPECT_TRUE(wasBusy) << milliseconds;
  }
}
