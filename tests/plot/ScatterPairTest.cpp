#include "support/PageFixture.h"
#include "support/ParameterStudy.h"
#include "support/Reaction.h"

#include <vtkCommand.h>
#include <vtkScatterPlotMatrix.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace
{

/// A scatter-plot matrix of x, y and parameters, drawn but not painted yet.
class ScatterPair : public PageFixture
{
protected:
  ScatterPair()
  {
    container.setScene(scene.scene());
    container.setLinePlotTable(parameterStudy(6, 4, 4), false);
    settings().setLimitColumVisibility(true);
    container.setPlotStyle(scatterPlotMatrix);
  }

  vtkScatterPlotMatrix* pairs() { return vtkScatterPlotMatrix::SafeDownCast(container.getItem()); }

  std::string pair()
  {
    const vtkVector2i active = pairs()->GetActivePlot();
    return pairs()->GetColumnName(active.GetX()) + ", " + pairs()->GetRowName(active.GetY());
  }
};

const std::string timeAndMolecule = ": Time [s], Molecule: A";

TEST_F(ScatterPair, IsXAndYAgainAfterEveryDrawing)
{
  scene.render(container);
  EXPECT_EQ(pair(), timeAndMolecule);
  ASSERT_TRUE(pairs()->SetActivePlot(vtkVector2i(2, 0)));
  EXPECT_NE(pair(), timeAndMolecule);
  container.redraw();
  scene.render(container);
  EXPECT_EQ(pair(), timeAndMolecule);
}

TEST_F(ScatterPair, StaysTheUsersWhereThatIsWanted)
{
  PlotOptions options;
  options.keepsScatterPair = true;
  container.setOptions(options);
  scene.render(container);
  EXPECT_EQ(pair(), timeAndMolecule);
  ASSERT_TRUE(pairs()->SetActivePlot(vtkVector2i(2, 0)));
  const std::string chosen = pair();
  container.redraw();
  scene.render(container);
  EXPECT_EQ(pair(), chosen);
  container.setPlotStyle(xyPlot);
  container.setPlotStyle(scatterPlotMatrix);
  EXPECT_EQ(pair(), timeAndMolecule) << "the matrix was left";
}

TEST_F(ScatterPair, StaysTheUsersAmongAllColumns)
{
  settings().setLimitColumVisibility(false);
  scene.render(container);
  ASSERT_TRUE(pairs()->SetActivePlot(vtkVector2i(2, 0)));
  const std::string chosen = pair();
  container.redraw();
  EXPECT_EQ(pair(), chosen);
}

TEST_F(ScatterPair, NeedNotBePaintedBeforeColumnsGo)
{
  for (const bool limited : {false, true})
  {
    // Draws once, which does not lay the matrix out.
    settings().setLimitColumVisibility(limited);
    const std::unique_ptr<char[]> text(container.saveData("", false));
    EXPECT_NE(text, nullptr);
    scene.render(container);
    EXPECT_NE(pairs()->GetMainChart(), nullptr);
    EXPECT_GE(pairs()->GetActivePlot().GetY(), 0);
  }
}

TEST_F(ScatterPair, IsPaintedOnceWhereNothingChanges)
{
  // The large chart of an even number of columns has room to make beside the histograms.
  ASSERT_EQ(pairs()->GetSize().GetX() % 2, 0);
  for (int i = 0; i < 4; ++i)
    scene.render(container);
  int wishes = 0;
  vtkNew<Reaction> reaction;
  reaction->react = [&] { wishes += scene.scene()->GetDirty() ? 1 : 0; };
  scene.scene()->AddObserver(vtkCommand::ModifiedEvent, reaction);
  for (int i = 0; i < 4; ++i)
    scene.renderItems();
  scene.scene()->RemoveObserver(reaction);
  EXPECT_EQ(wishes, 0) << "paintings asked for while painting";
}

} // namespace
