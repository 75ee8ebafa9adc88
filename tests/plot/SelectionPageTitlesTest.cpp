#include "plot/ContainerAccess.h"
#include "support/CapturedOutput.h"

#include <gtest/gtest.h>

#include "SelectionPageFixture.h"

namespace
{

class SelectionPageTitles : public SelectionPageFixture
{
protected:
  void rename(const char* name, const char* newName)
  {
    container.getTable()->GetColumnByName(name)->SetName(newName);
  }
  std::string title(int column) { return cell(column, 0)->GetAxis(vtkAxis::BOTTOM)->GetTitle(); }
};

TEST_F(SelectionPageTitles, RefuseAShortNameBeforeThePageChanges)
{
  draw(3);
  rename("Parameter: k2", "k2");
  vtkChart* const trajectories = container.getChartXY();
  EXPECT_THROW(container.drawSelectionCdfPlot(scene.scene()), std::out_of_range);
  EXPECT_FALSE(settings().signalsBlocked());
  EXPECT_EQ(matrix()->GetSize(), vtkVector2i(3, 2));
  EXPECT_EQ(container.getChartXY(), trajectories);
  EXPECT_EQ(scene.scene()->GetNumberOfItems(), 1U);
}

TEST_F(SelectionPageTitles, ReportAShortNameInOneLineWhenASettingDraws)
{
  draw(3);
  rename("Parameter: k2", "k2");
  CapturedOutput errors(std::cerr);
  settings().setPThreshold(0.01);
  EXPECT_EQ(errors.text().rfind("void PlotContainer::redraw(): ", 0), 0U) << errors.text();
  EXPECT_EQ(errors.text().find('\n'), errors.text().size() - 1);
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(SelectionPageTitles, CountAnEmptyOrMissingNameAsShort)
{
  draw(3);
  rename("Parameter: k2", "");
  EXPECT_THROW(container.redraw(), std::out_of_range);
  rename("Parameter: k3", nullptr);
  settings().parameterColumns = {5};
  EXPECT_THROW(container.redraw(), std::out_of_range);
}

TEST_F(SelectionPageTitles, AreCutFromTheShownParametersOnly)
{
  draw(6);
  rename("Parameter: k5", "k5");
  container.redraw();
  EXPECT_EQ(title(3), "k4");
  stateOf(container).ksResults.assign(6, {0.5, 0.2});
  stateOf(container).ksResults[4] = {0.001, 0.9};
  EXPECT_THROW(container.redraw(), std::out_of_range);
}

TEST_F(SelectionPageTitles, AreEmptyWithoutAColumn)
{
  draw(3);
  settings().parameterColumns = {1000, -1, 5};
  container.redraw();
  EXPECT_EQ(title(0), "");
  EXPECT_EQ(title(1), "");
  EXPECT_EQ(title(2), "k3");
  scene.render(container);
}

} // namespace
