#include "app/document/ColourKey.h"
#include "app/document/ColouredRuns.h"
#include "app/document/KeptSelections.h"

#include <vtkChartParallelCoordinates.h>
#include <vtkLookupTable.h>
#include <vtkPlotParallelCoordinates.h>
#include <vtkPlotPoints.h>
#include <vtkScatterPlotMatrix.h>

#include <QComboBox>
#include <QTabWidget>
#include <QUndoStack>

#include "window/WorkInWindow.h"

using namespace Talmesh::app;

namespace
{

/// Six runs, 10 to 60, of which some are kept as "rising", 20 among them also as "second".
class KeptColoursInWindow : public WorkInWindow
{
protected:
  KeptColoursInWindow()
  {
    KeptSelections& kept = window.document().kept();
    kept.keep("rising", {true, true, true, false, false, false}, "");
    kept.keep("second", {false, true, false, false, false, false}, "");
    kept.recolour(0, 0x00A000);
    kept.recolour(1, 0xC00000);
    QCoreApplication::processEvents();
  }

  QAction& tickInDock() { return *window.findChild<QAction*>("showKept"); }

  void showKept(bool on)
  {
    if (tickInDock().isChecked() != on)
      tickInDock().trigger();
    QCoreApplication::processEvents();
  }

  QStringList labels()
  {
    QStringList found;
    for (vtkIdType i = 0; i < chart().GetNumberOfPlots(); ++i)
      if (chart().GetPlot(i)->GetLegendVisibility())
        found.append(QString::fromStdString(chart().GetPlot(i)->GetLabel()));
    return found;
  }

  /// The colours that a plot of runs gives to each of them, as 0xRRGGBB.
  template <typename Plot>
  static std::vector<unsigned> coloursOf(Plot* plot)
  {
    std::vector<unsigned> colours;
    vtkDoubleArray* groups = Talmesh::plot::doubleColumn(
        plot->GetInput(), Talmesh::plot::columnIndex(plot->GetInput(), groupColumnName()));
    if (!plot->GetScalarVisibility() || !groups)
      return colours;
    for (vtkIdType run = 0; run < groups->GetNumberOfValues(); ++run)
    {
      const unsigned char* colour = plot->GetLookupTable()->MapValue(groups->GetValue(run));
      colours.push_back(colour[0] << 16U | colour[1] << 8U | colour[2]);
    }
    return colours;
  }

  std::vector<unsigned> coloursOfLines()
  {
    auto* lines = vtkChartParallelCoordinates::SafeDownCast(container().getItem());
    return coloursOf(vtkPlotParallelCoordinates::SafeDownCast(lines->GetPlot(0)));
  }

  vtkScatterPlotMatrix& matrix()
  {
    return *vtkScatterPlotMatrix::SafeDownCast(container().getItem());
  }
  std::vector<unsigned> coloursIn(vtkChart* cell)
  {
    return coloursOf(vtkPlotPoints::SafeDownCast(cell->GetPlot(0)));
  }

  /// What the key says in the chart now shown.
  QStringList key()
  {
    vtkAbstractContextItem* item = container().getItem();
    QStringList names;
    for (unsigned int i = 0; i < item->GetNumberOfItems(); ++i)
      if (auto* found = dynamic_cast<ColourKey*>(item->GetItem(i)))
        for (const auto& entry : found->entries())
          names.append(QString::fromStdString(entry.first) + ' ' + entry.second.name());
    return names;
  }

  const std::vector<unsigned> expected{0x00A000, 0xC00000, 0x00A000, 0xBEBEBE, 0xBEBEBE, 0xBEBEBE};
};

TEST_F(KeptColoursInWindow, AreThoseOfTheRunsWhenTheUserWantsIt)
{
  EXPECT_FALSE(tickInDock().isChecked());
  EXPECT_FALSE(labels().contains("rising"));
  showKept(true);
  EXPECT_EQ(labels(), (QStringList{"Other runs", "rising", "second"}));
  EXPECT_TRUE(chart().GetShowLegend());
  for (vtkIdType i = 0; i < chart().GetNumberOfPlots(); ++i)
  {
    unsigned char colour[3];
    chart().GetPlot(i)->GetColor(colour);
    if (chart().GetPlot(i)->GetLabel() == "second")
    {
      EXPECT_EQ(colour[0] * 256 + colour[1], 0xC000);
    }
  }
  showKept(false);
  EXPECT_FALSE(labels().contains("rising"));
}

TEST_F(KeptColoursInWindow, ComeBeforeThoseOfGroups)
{
  group(2);
  ASSERT_TRUE(labels().filter("Group 1").size() == 1);
  showKept(true);
  EXPECT_TRUE(labels().contains("rising"));
  EXPECT_TRUE(labels().filter("Group").isEmpty());
  showKept(false);
  EXPECT_EQ(labels().filter("Group").size(), 2);
}

TEST_F(KeptColoursInWindow, FollowWhatIsKept)
{
  showKept(true);
  window.document().kept().rename(1, "twentieth");
  QCoreApplication::processEvents();
  EXPECT_TRUE(labels().contains("twentieth"));
  press(QKeySequence::Undo);
  EXPECT_TRUE(labels().contains("second"));
  window.document().kept().remove(1);
  QCoreApplication::processEvents();
  EXPECT_EQ(labels(), (QStringList{"Other runs", "rising"}));
}

TEST_F(KeptColoursInWindow, AreThoseOfLinesAcrossAxes)
{
  chooseStyle(parallelCoordinates);
  EXPECT_TRUE(coloursOfLines().empty());
  EXPECT_TRUE(key().isEmpty());
  showKept(true);
  EXPECT_EQ(window.document().choice().style, parallelCoordinates);
  EXPECT_EQ(coloursOfLines(), expected);
  EXPECT_EQ(key(), (QStringList{"Other runs #bebebe", "rising #00a000", "second #c00000"}));
  select({30});
  EXPECT_EQ(coloursOfLines(), expected);
  EXPECT_EQ(key().size(), 3);
  showKept(false);
  EXPECT_TRUE(coloursOfLines().empty());
  EXPECT_TRUE(key().isEmpty());
}

TEST_F(KeptColoursInWindow, AreThoseOfPointsInTheMatrixWhicheverPairIsLarge)
{
  chooseStyle(scatterPlotMatrix);
  showKept(true);
  EXPECT_EQ(coloursIn(matrix().GetMainChart()), expected);
  EXPECT_EQ(coloursIn(matrix().GetChart({0, 0})), expected);
  EXPECT_EQ(key().size(), 3);
  const vtkVector2i pair = matrix().GetActivePlot();
  const vtkVector2i other = pair == vtkVector2i(0, 0) ? vtkVector2i(1, 0) : vtkVector2i(0, 0);
  matrix().SetActivePlot(other);
  QCoreApplication::processEvents();
  EXPECT_EQ(coloursIn(matrix().GetMainChart()), expected);
}

TEST_F(KeptColoursInWindow, AreThoseOfGroupsToo)
{
  group(2);
  chooseStyle(parallelCoordinates);
  const auto colourOfGroup = [](int of) { return groupColour(of).rgb() & 0xFFFFFFU; };
  ASSERT_EQ(coloursOfLines().size(), 6U);
  const auto close = [](unsigned a, unsigned b)
  { return std::abs(int(a & 0xFFU) - int(b & 0xFFU)) < 2; };
  EXPECT_TRUE(close(coloursOfLines()[0], colourOfGroup(0)));
  EXPECT_TRUE(close(coloursOfLines()[1], colourOfGroup(1)));
}

TEST_F(KeptColoursInWindow, AreInSessions)
{
  showKept(true);
  const QString saved = path("coloured.talmesh");
  ASSERT_TRUE(window.saveSessionTo(saved));
  MainWindow other;
  openIn(other, saved);
  EXPECT_TRUE(other.findChild<QAction*>("showKept")->isChecked());
  EXPECT_TRUE(other.document().groups().state().look.keptColours);
  EXPECT_EQ(other.document().groups().colouring().names.size(), 3U);
}

TEST_F(KeptColoursInWindow, AreThoseOfCoursesOnTheirPage)
{
  select({20, 60});
  window.pages()->setCurrentIndex(1);
  auto* box = find<QComboBox>("shownRuns");
  box->setCurrentIndex(2);
  showKept(true);
  QTest::qWait(20);
  vtkChartXY* courses =
      find<QWidget>("timeCourses")->findChild<VtkPlotWidget*>()->plotContainer()->getChartXY();
  bool second = false;
  for (vtkIdType i = 0; i < courses->GetNumberOfPlots(); ++i)
  {
    unsigned char colour[3];
    courses->GetPlot(i)->GetColor(colour);
    const bool red = colour[0] == 0xC0 && colour[1] == 0 && colour[2] == 0;
    const QString label = QString::fromStdString(courses->GetPlot(i)->GetLabel());
    EXPECT_EQ(red, label.contains("run 20")) << label.toStdString();
    EXPECT_EQ(red, label.endsWith(" (second)")) << label.toStdString();
    second = second || red;
  }
  EXPECT_TRUE(second);
}

TEST_F(KeptColoursInWindow, AreNotThoseOfGroupsOnThePageOfCoursesWhereNothingIsKept)
{
  group(2);
  showKept(true);
  select({20, 60});
  window.pages()->setCurrentIndex(1);
  find<QComboBox>("shownRuns")->setCurrentIndex(2);
  while (!window.document().kept().list().empty())
    window.document().kept().remove(0);
  QTest::qWait(20);
  vtkChartXY* courses =
      find<QWidget>("timeCourses")->findChild<VtkPlotWidget*>()->plotContainer()->getChartXY();
  ASSERT_GT(courses->GetNumberOfPlots(), 0);
  for (vtkIdType i = 0; i < courses->GetNumberOfPlots(); ++i)
    EXPECT_EQ(courses->GetPlot(i)->GetLabel().find("Group"), std::string::npos)
        << courses->GetPlot(i)->GetLabel();
}

TEST_F(KeptColoursInWindow, HaveNoKeyWhereTheyAreOfOtherRuns)
{
  showKept(true);
  for (const plotStyles style : {parallelCoordinates, scatterPlotMatrix})
  {
    chooseStyle(style);
    ASSERT_FALSE(key().isEmpty()) << style;
    colourCharts(container(), groupsOfKept(window.document().kept().list(), 5));
    EXPECT_EQ(key(), QStringList()) << style;
  }
}

TEST_F(KeptColoursInWindow, LeaveTheStyleAsItIsWhenTheyAreNoLongerWanted)
{
  group(2);
  showKept(true);
  chooseStyle(selectionCdfPlot);
  showKept(false);
  EXPECT_EQ(window.document().choice().style, selectionCdfPlot);
  showKept(true);
  EXPECT_EQ(window.document().choice().style, xyPlot) << "which shows them";
}

} // namespace
