#include "app/comparison/ComparisonModel.h"
#include "app/document/SelectionController.h"

#include <vtkChart.h>

#include <QSpinBox>
#include <QToolButton>

#include <sstream>

#include "window/ComparisonInWindow.h"

using namespace Talmesh::app;

namespace
{

constexpr int sets = 8;

/// Sets of runs with the same k and m. X of a run is mostly k.
std::string replicates(int runsOfASet)
{
  std::ostringstream text;
  text << "run,time,k,m,X\n";
  for (int run = 0; run < sets * runsOfASet; ++run)
    for (int point = 0; point < 3; ++point)
    {
      const int set = run / runsOfASet;
      text << run << ',' << point << ',' << set << ',' << set * 3 % sets << ','
           << set + 0.1 * (run % runsOfASet) + 0.001 * point << '\n';
    }
  return text.str();
}

class ComparedSetsInWindow : public ComparisonInWindow
{
protected:
  std::string cell(int row, int column)
  {
    return table().index(row, column).data().toString().toStdString();
  }
  std::string summary()
  {
    return window.findChild<QLabel*>(QStringLiteral("comparisonSummary"))->text().toStdString();
  }
  bool becomesIdle()
  {
    return QTest::qWaitFor([this] { return !window.isBusy(); }, patience);
  }
  void selectWhere(const char* words)
  {
    window.selectionController()->selectWhere(words, RunCombination::Replace);
    QCoreApplication::processEvents();
  }
};

} // namespace

TEST_F(ComparedSetsInWindow, PermuteWholeSetsInTheBackground)
{
  open({}, replicates(10));
  selectWhere("max(X) > 3.95");
  ASSERT_EQ(table().rowCount(), 2);
  EXPECT_EQ(cell(0, ComparisonModel::Name), "k");
  EXPECT_EQ(cell(0, ComparisonModel::Selected), "40");
  EXPECT_NE(summary().find("8 sets of 10 runs"), std::string::npos) << summary();
  ASSERT_TRUE(becomesIdle());
  EXPECT_NE(summary().find("9,999 permutations, seed 1."), std::string::npos) << summary();
  const std::string p = cell(0, ComparisonModel::PValue);
  EXPECT_NE(p.find(" (9,999)"), std::string::npos) << p;
  // The upper half of eight sets, or the lower one: 2 / choose(8, 4) = 0.029, with a standard
  // deviation of 0.0017.
  EXPECT_NEAR(std::stod(p), 2.0 / 70.0, 0.008);
  EXPECT_EQ(parameterChartTitle(), "adjusted p = " + cell(0, ComparisonModel::AdjustedPValue));
}

TEST_F(ComparedSetsInWindow, AreTestedForTheNewestSelectionOnly)
{
  open({}, replicates(10));
  selectWhere("max(X) > 3.95");
  selectWhere("max(X) > 1.95");
  ASSERT_TRUE(becomesIdle());
  EXPECT_EQ(cell(0, ComparisonModel::Selected), "60");
  // The upper six of eight sets: as far apart are two arrangements of choose(8, 2) = 28.
  EXPECT_NEAR(std::stod(cell(0, ComparisonModel::PValue)), 2.0 / 28.0, 0.012);
  window.selectionController()->clear();
  QCoreApplication::processEvents();
  EXPECT_TRUE(explanation().isVisible());
  EXPECT_FALSE(window.isBusy());
}

TEST_F(ComparedSetsInWindow, CanBeCancelled)
{
  open({}, replicates(10));
  bool clicked = false;
  // Comes before the result, which the event loop delivers.
  QMetaObject::invokeMethod(
      &window,
      [&]
      {
        EXPECT_TRUE(window.isBusy());
        EXPECT_EQ(parameterChartTitle(), "\u2026");
        auto* button = window.findChild<QToolButton*>(QStringLiteral("cancelComparing"));
        ASSERT_TRUE(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        clicked = true;
      },
      Qt::QueuedConnection);
  selectWhere("max(X) > 3.95");
  ASSERT_TRUE(clicked);
  ASSERT_TRUE(becomesIdle());
  EXPECT_EQ(cell(0, ComparisonModel::PValue), "cancelled");
  EXPECT_EQ(parameterChartTitle(), "cancelled");
}

TEST_F(ComparedSetsInWindow, AreNotTestedWhereThereAreTooFew)
{
  std::ostringstream text;
  text << "run,time,k,X\n";
  for (int run = 0; run < 6; ++run)
    for (int point = 0; point < 3; ++point)
      text << run << ',' << point << ',' << run / 2 << ',' << run + point << '\n';
  open({}, text.str());
  selectWhere("final(X) > 5");
  ASSERT_TRUE(becomesIdle());
  EXPECT_EQ(cell(0, ComparisonModel::PValue), "too few sets");
  EXPECT_EQ(parameterChartTitle(), "too few sets");
  EXPECT_NE(summary().find("3 sets of 2 runs"), std::string::npos) << summary();
}

TEST_F(ComparedSetsInWindow, AreNotTestedForTheParameterThatChoseThem)
{
  open({}, replicates(1));
  unsigned int drawings = 0;
  QObject owner;
  container().addCompletion(&owner, [&drawings] { ++drawings; });
  selectWhere("k > 3.5");
  EXPECT_EQ(drawings, 1U) << "the first drawing knows the words";
  const auto pOf = [this](const char* name)
  {
    for (int row = 0; row < table().rowCount(); ++row)
      if (cell(row, ComparisonModel::Name) == name)
        return cell(row, ComparisonModel::PValue);
    return std::string("no such row");
  };
  EXPECT_EQ(pOf("k"), "chosen by this parameter");
  EXPECT_NE(pOf("m"), "chosen by this parameter");
  selectWhere("max(X) > 4.95");
  EXPECT_NE(pOf("k"), "chosen by this parameter");
  window.selectionController()->undoStack().undo();
  QCoreApplication::processEvents();
  EXPECT_EQ(pOf("k"), "chosen by this parameter");
  window.selectionController()->selectWhere("m < 2", RunCombination::Add);
  QCoreApplication::processEvents();
  EXPECT_EQ(pOf("k"), "chosen by this parameter");
  EXPECT_EQ(pOf("m"), "chosen by this parameter");
}

TEST_F(ComparedSetsInWindow, ShowTheAdjustedPInNarrowWindows)
{
  std::string text = replicates(10);
  text.replace(text.find(",k,m,"), 5, ",transcription rate of the first gene,m,");
  open({}, text);
  selectWhere("max(X) > 3.95");
  ASSERT_TRUE(becomesIdle());
  auto& view = *window.findChild<QTableView*>(QStringLiteral("comparisonTable"));
  for (const int width : {1190, 1024})
  {
    window.resize(width, 800);
    QTest::qWait(50);
    ASSERT_LE(window.width(), width);
    const int end = view.columnViewportPosition(ComparisonModel::AdjustedPValue) +
                    view.columnWidth(ComparisonModel::AdjustedPValue);
    EXPECT_LE(end, view.viewport()->width()) << width;
    EXPECT_GT(view.columnWidth(ComparisonModel::Name), 30) << width;
  }
}

TEST_F(ComparedSetsInWindow, AreDrawnAnewByTheSeed)
{
  open({}, replicates(10));
  selectWhere("max(X) > 3.95");
  ASSERT_TRUE(becomesIdle());
  auto* seed = window.findChild<QSpinBox*>(QStringLiteral("seed"));
  ASSERT_TRUE(seed->isEnabled());
  seed->selectAll();
  QTest::keyClicks(seed, "42");
  QTest::keyClick(seed, Qt::Key_Return);
  ASSERT_TRUE(becomesIdle());
  EXPECT_NE(summary().find("9,999 permutations, seed 42."), std::string::npos) << summary();
}
