#include "plot/ContainerAccess.h"
#include "plot/vtkSelectionUpdateCallback.h"
#include "support/CapturedOutput.h"
#include "support/Reaction.h"

#include <vtkCommand.h>

#include <gtest/gtest.h>

#include "SelectionPageFixture.h"

namespace
{

/// Drawings that run inside the drawing of a selection page.
class SelectionPageNesting : public SelectionPageFixture
{
protected:
  /// Selects rows without the container's knowing.
  void selectUnnoticed(const std::vector<vtkIdType>& rows)
  {
    auto& callback = *stateOf(container).selectionUpdateCallback;
    PlotContainer* const listener = callback.Container;
    callback.Container = nullptr;
    container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection(rows));
    callback.Container = listener;
  }

  /// Reacts once to the next change of the selection.
  void reactToSelection(std::function<void()> react)
  {
    reaction->react = [this, react]
    {
      container.getAnnotationLink()->RemoveObserver(reaction);
      ++reactions;
      react();
    };
    container.getAnnotationLink()->AddObserver(vtkCommand::AnnotationChangedEvent, reaction);
  }

  void expectOnePage(vtkIdType curves)
  {
    ASSERT_EQ(scene.scene()->GetNumberOfItems(), 1U);
    EXPECT_EQ(scene.scene()->GetItem(0), matrix());
    EXPECT_EQ(container.getChartXY()->GetParent(), matrix());
    EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 1);
    EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), curves);
    EXPECT_FALSE(settings().signalsBlocked());
    scene.render(container);
  }

  vtkNew<Reaction> reaction;
  int reactions = 0;
};

constexpr vtkIdType rowBeyondTheTable = 1000;

TEST_F(SelectionPageNesting, LeavesNoOtherChartThatWasAddedWhileTheSelectionWasCut)
{
  draw(3);
  container.setPlotStyle(xyPlot);
  settings().blockSignals(true);
  container.setPlotStyle(selectionCdfPlot);
  selectUnnoticed({0, rowBeyondTheTable});
  reactToSelection([this] { scene.render(container); });
  container.redraw();
  EXPECT_EQ(reactions, 1);
  expectOnePage(1);
}

TEST_F(SelectionPageNesting, FillsThePageOnceWhenTheCutOfTheSelectionDrawsIt)
{
  draw(3);
  selectUnnoticed({0, rowBeyondTheTable});
  vtkChart* inner = nullptr;
  reactToSelection(
      [&]
      {
        container.redraw();
        inner = container.getChartXY();
      });
  container.redraw();
  EXPECT_EQ(reactions, 1);
  EXPECT_EQ(container.getChartXY(), inner) << "the drawing around it stops";
  expectOnePage(1);
}

TEST_F(SelectionPageNesting, GoesOnAfterADrawingThatFailed)
{
  draw(6);
  // k6 divides the runs and has a name without type word, but is shown only once this is known.
  vtkAbstractArray* k6 = container.getTable()->GetColumnByName("Parameter: k6");
  for (int row = 0; row < runs * points; ++row)
    k6->SetVariantValue(row, row / points + 1.0);
  k6->SetName("k6");
  std::vector<vtkIdType> firstRuns(8 * points);
  std::iota(firstRuns.begin(), firstRuns.end(), 0);
  selectUnnoticed(firstRuns);
  stateOf(container).selectionUpdatePending = true;
  CapturedOutput errors(std::cerr);
  container.redraw();
  EXPECT_EQ(errors.text(),
            "void vtkSelectionUpdateCallback::Execute(vtkObject*, unsigned long, void*): "
            "basic_string::substr: __pos (which is 11) > this->size() (which is 2)\n");
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(4, 2));
  expectOnePage(3);
}

TEST_F(SelectionPageNesting, GoesOnAfterAnUpdateThatHasNothingToCompare)
{
  draw(0);
  stateOf(container).selectionUpdatePending = true;
  container.redraw();
  EXPECT_FALSE(stateOf(container).selectionUpdatePending);
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(1, 2));
  expectOnePage(0);
}

TEST_F(SelectionPageNesting, CountsCompletedDrawingsOnly)
{
  draw(3);
  const unsigned long before = stateOf(container).drawings;
  container.redraw();
  EXPECT_EQ(stateOf(container).drawings, before + 1);
  container.getTable()->GetColumnByName("Parameter: k2")->SetName("k2");
  EXPECT_THROW(container.redraw(), std::out_of_range);
  EXPECT_EQ(stateOf(container).drawings, before + 1);
}

TEST_F(SelectionPageNesting, MutesTheChartsThatANewPageDrops)
{
  for (const bool toMultiPlot : {true, false})
  {
    draw(3);
    const vtkSmartPointer<vtkChartXY> old = container.getChartXY();
    if (toMultiPlot)
      container.drawMulitPlot(scene.scene());
    else
      container.drawSelectionCdfPlot(scene.scene());
    ASSERT_NE(container.getChartXY(), old);
    old->InvokeEvent(vtkCommand::InteractionEvent);
    EXPECT_TRUE(stateOf(container).coordinateWindows.empty());
  }
}

TEST_F(SelectionPageNesting, BuildsAPageWithoutAScene)
{
  draw(3);
  container.drawSelectionCdfPlot(nullptr);
  EXPECT_EQ(container.getItem(), matrix());
  EXPECT_EQ(matrix()->GetScene(), nullptr);
  EXPECT_EQ(cell(0, 0)->GetNumberOfPlots(), 1);
  container.setScene(scene.scene());
  container.redraw();
  expectOnePage(1);
}

TEST_F(SelectionPageNesting, RunsTheStepsOfClientsOnceForThePageThatIsShown)
{
  draw(3);
  int preparations = 0;
  int completions = 0;
  container.addPreparation(&container, [&] { ++preparations; });
  container.addCompletion(&container,
                          [&]
                          {
                            ++completions;
                            container.getChartXY()->AddPlot(vtkChart::POINTS);
                          });
  stateOf(container).selectionUpdatePending = true;
  container.redraw();
  EXPECT_EQ(completions, 1);
  EXPECT_EQ(preparations, 2) << "of the drawing begun and of the one within";
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 2);
  container.redraw();
  EXPECT_EQ(container.getChartXY()->GetNumberOfPlots(), 2);
}

TEST_F(SelectionPageNesting, FollowsASelectionThatACompletionMakes)
{
  draw(3);
  bool made = false;
  container.addCompletion(&container,
                          [&]
                          {
                            if (std::exchange(made, true))
                              return;
                            container.getAnnotationLink()->SetCurrentSelection(
                                Talmesh::makeRowSelection({0}));
                          });
  container.redraw();
  // Curves of all, of the selected and of the other runs.
  expectOnePage(3);
}

} // namespace
