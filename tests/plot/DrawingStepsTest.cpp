#include "plot/DrawingSteps.h"

#include "plot/TableColumns.h"
#include "support/CapturedOutput.h"
#include "support/PlotFixture.h"

#include <vtkChartXYZ.h>

#include <QPointer>

#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

namespace
{

/// Steps write a letter each.
class DrawingSteps : public PlotFixture
{
protected:
  void complete(const std::string& letter) { complete(letter, &owner); }
  void complete(const std::string& letter, const QObject* by)
  {
    container.addCompletion(by, [this, letter] { written += letter; });
  }
  void prepare(const std::string& letter)
  {
    container.addPreparation(&owner, [this, letter] { written += letter; });
  }
  /// What was written since the last call.
  std::string taken() { return std::exchange(written, {}); }

  QObject owner;
  std::string written;
};

} // namespace

TEST_F(DrawingSteps, RunInOrderOfRegistrationAroundEveryDrawing)
{
  complete("C");
  prepare("a");
  complete("D");
  prepare("b");
  container.redraw();
  EXPECT_EQ(taken(), "abCD");
  settings().setStride(2);
  EXPECT_EQ(taken(), "abCD") << "started by a setting";
  container.setPlotCols(0, 2, 0, false);
  EXPECT_EQ(taken(), "abCD") << "started by the library";
}

TEST_F(DrawingSteps, DoNotRunWhileTheClientWantsNoDrawing)
{
  complete("C");
  container.withoutDrawing(
      [this]
      {
        container.redraw();
        settings().setStride(2);
        container.setPlotCols(0, 2, 0, false);
      });
  EXPECT_EQ(taken(), "");
  container.redraw();
  EXPECT_EQ(taken(), "C") << "once, and again from now on";
  EXPECT_THROW(container.withoutDrawing([] { throw std::runtime_error("a change that fails"); }),
               std::runtime_error);
  settings().setStride(1);
  EXPECT_EQ(taken(), "C");
}

TEST_F(DrawingSteps, RunInEveryStyle)
{
  complete("C");
  for (const int style : {0, 3, 4, 5, 6, 7, 8, 9, 1, 2})
  {
    drawStyle(style);
    taken();
    container.redraw();
    EXPECT_EQ(taken(), "C") << style;
  }
}

TEST_F(DrawingSteps, CompleteADressedChartInItsSceneWithSilentSettings)
{
  settings().pointSize = 7.5;
  settings().setLogX(true);
  Talmesh::plot::doubleColumn(container.getTable(), 0)->FillValue(3.0);
  int plots = 0;
  container.addCompletion(&owner,
                          [&]
                          {
                            EXPECT_EQ(container.getItem(), chart());
                            EXPECT_EQ(chart()->GetScene(), scene.scene());
                            EXPECT_EQ(points()->GetMarkerSize(), 7.5F);
                            EXPECT_TRUE(container.showsLogScaleX());
                            EXPECT_TRUE(settings().signalsBlocked());
                            chart()->AddPlot(vtkChart::POINTS);
                            plots = static_cast<int>(chart()->GetNumberOfPlots());
                          });
  for (int drawing = 0; drawing < 3; ++drawing)
  {
    container.redraw();
    EXPECT_EQ(plots, 2) << "a drawing begins with none of the plots of the one before";
    EXPECT_EQ(chart()->GetNumberOfPlots(), 2);
  }
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(DrawingSteps, PrepareWhatIsDrawn)
{
  container.addPreparation(&owner,
                           [this]
                           {
                             settings().setPlotStyle(xyzPlot);
                             settings().title = "prepared";
                           });
  newDrawings();
  container.redraw();
  EXPECT_NE(vtkChartXYZ::SafeDownCast(container.getItem()), nullptr);
  EXPECT_EQ(newDrawings(), 1U) << "what a preparation changes and asks for is in the drawing";
}

TEST_F(DrawingSteps, FindTheSettingsSilentWhateverTheStepBeforeDid)
{
  const auto expectSilence = [this] { EXPECT_TRUE(settings().signalsBlocked()); };
  const auto letSpeak = [this] { settings().blockSignals(false); };
  for (const auto add : {&PlotSeams::addPreparation, &PlotSeams::addCompletion})
  {
    (container.*add)(&owner, letSpeak);
    (container.*add)(&owner, expectSilence);
  }
  newDrawings();
  container.redraw();
  EXPECT_EQ(newDrawings(), 1U);
}

TEST_F(DrawingSteps, EndWithTheirOwnerOrOnRequest)
{
  complete("A");
  auto other = std::make_unique<QObject>();
  complete("B", other.get());
  container.redraw();
  EXPECT_EQ(taken(), "AB");
  other.reset();
  container.redraw();
  EXPECT_EQ(taken(), "A");
  prepare("p");
  container.removeDrawingSteps(&owner);
  container.redraw();
  EXPECT_EQ(taken(), "");
}

TEST_F(DrawingSteps, MayDropStepsAndRegisterOthers)
{
  QObject first;
  container.addCompletion(&first,
                          [&]
                          {
                            container.removeDrawingSteps(&owner);
                            container.removeDrawingSteps(&first);
                            complete("N");
                          });
  complete("O");
  container.redraw();
  EXPECT_EQ(taken(), "") << "the new one waits for the next drawing";
  container.redraw();
  EXPECT_EQ(taken(), "N");
}

TEST_F(DrawingSteps, AreNotCopied)
{
  complete("C");
  prepare("p");
  const CapturedOutput quiet(std::cout); // the copy has no scene at first
  PlotContainer copy(container);
  PlotScene other;
  copy.setScene(other.scene());
  copy.redraw();
  EXPECT_EQ(taken(), "");
}

TEST_F(DrawingSteps, DoNotRunWithoutAScene)
{
  complete("C");
  prepare("p");
  container.setScene(nullptr);
  const CapturedOutput quiet(std::cout);
  container.redraw();
  EXPECT_EQ(taken(), "");
}

TEST_F(DrawingSteps, DrawOnceMoreAfterCompletionsThatAskForIt)
{
  complete("A");
  for (int i = 0; i < 2; ++i)
    container.addCompletion(&owner,
                            [this]
                            {
                              const vtkSmartPointer<vtkPlot> shown = points();
                              settings().yColumns = {2};
                              container.redraw();
                              EXPECT_EQ(points(), shown) << "not within the step";
                            });
  complete("B");
  newDrawings();
  container.redraw();
  EXPECT_EQ(taken(), "ABAB") << "once, although four steps asked";
  EXPECT_EQ(newDrawings(), 2U);
  EXPECT_EQ(plottedName(points(), 1), container.getTable()->GetColumnName(2));
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(DrawingSteps, DrawOnceMoreAfterCompletionsThatChangeSettingsAloud)
{
  container.addCompletion(&owner,
                          [this]
                          {
                            settings().blockSignals(false);
                            settings().setStride(settings().getStride() + 1);
                          });
  complete("C");
  container.redraw();
  EXPECT_EQ(taken(), "CC");
  EXPECT_EQ(settings().getStride(), 3);
}

TEST_F(DrawingSteps, EndTheDrawingByAnException)
{
  complete("A");
  const QObject failing;
  container.addCompletion(&failing, [] { throw std::runtime_error("no such colour"); });
  complete("B");
  newDrawings();
  EXPECT_THROW(container.redraw(), std::runtime_error);
  EXPECT_EQ(taken(), "A");
  EXPECT_EQ(newDrawings(), 0U);
  EXPECT_FALSE(settings().signalsBlocked());
  {
    const CapturedOutput errors(std::cerr);
    settings().setStride(5);
    EXPECT_EQ(errors.text(), "void PlotContainer::redraw(): no such colour\n");
  }
  EXPECT_FALSE(settings().signalsBlocked());
  taken();
  container.removeDrawingSteps(&failing);
  container.redraw();
  EXPECT_EQ(taken(), "AB") << "the next drawing is whole";
}

TEST_F(DrawingSteps, ForgetTheWishOfADrawingThatFailed)
{
  const QObject failing;
  container.addCompletion(&failing,
                          [this]
                          {
                            container.redraw();
                            throw std::runtime_error("failed");
                          });
  EXPECT_THROW(container.redraw(), std::runtime_error);
  container.removeDrawingSteps(&failing);
  newDrawings();
  container.redraw();
  EXPECT_EQ(newDrawings(), 1U);
}
