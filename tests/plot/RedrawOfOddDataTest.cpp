#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PlotFixture.h"
#include "support/PlotStyleCount.h"
#include "support/SampleTables.h"
#include "support/SoundPicture.h"
#include "support/VtkErrors.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

class RedrawOfOddData : public UndrawnPlotFixture, public ::testing::WithParamInterface<int>
{
protected:
  void TearDown() override { EXPECT_EQ(errors.text(), ""); }

private:
  VtkErrors errors;
};

TEST_P(RedrawOfOddData, SurvivesColumnsThatDoNotExist)
{
  for (const int index : {-5, -1, 4, 1000})
  {
    settings().xColumns = {index};
    settings().yColumns = {index, index, index};
    settings().zColumns = {index};
    settings().colorColumn = index;
    settings().solidColor = false;
    setStyle(GetParam());
    container.redraw();
    expectSoundPicture(scene, container);
  }
  settings().xColumns.clear();
  settings().yColumns.clear();
  settings().zColumns.clear();
  container.redraw();
  expectSoundPicture(scene, container);
}

TEST_P(RedrawOfOddData, SurvivesAFirstColumnWithoutRows)
{
  for (const bool limited : {true, false})
  {
    settings().setLimitColumVisibility(limited);
    setStyle(GetParam());
    expectSoundPicture(scene, container);
    container.getTable()->GetColumn(0)->SetNumberOfTuples(0);
    container.redraw();
    expectSoundPicture(scene, container);
    container.redraw();
    expectSoundPicture(scene, container);
    container.setPlotData(plainTable());
  }
}

TEST_P(RedrawOfOddData, SurvivesColumnsEmptiedInPlace)
{
  for (const int column : {1, 2})
  {
    container.setPlotData(plainTable());
    settings().xColumns = {0};
    settings().yColumns = {1};
    settings().zColumns = {2};
    setStyle(GetParam());
    expectSoundPicture(scene, container);
    container.getTable()->GetColumn(column)->Initialize();
    container.redraw();
    expectSoundPicture(scene, container);
  }
}

TEST_P(RedrawOfOddData, ShowsValuesOfAnyMagnitudeInTheFirstPainting)
{
  for (const double magnitude : {1e12, 1e-12})
  {
    const auto table =
        tableOf({{"a", {1, 2, 3, 4, 5}}, {"b", {1, 5, 2, 4, 3}}, {"c", {2, 1, 5, 3, 4}}});
    for (vtkIdType column = 0; column < 3; ++column)
      for (vtkIdType row = 0; row < 5; ++row)
        table->SetValue(row, column, magnitude * table->GetValue(row, column).ToDouble());
    container.setPlotData(table);
    settings().xColumns = {0};
    settings().yColumns = {1};
    settings().zColumns = {2};
    setStyle(GetParam());
    container.redraw();
    scene.render(container);
    const int first = scene.paintedPixels();
    scene.renderItems();
    EXPECT_EQ(first, scene.paintedPixels()) << magnitude;
  }
}

TEST_P(RedrawOfOddData, SurvivesTextAndUnnamedColumns)
{
  vtkSmartPointer<vtkTable> table = plainTable();
  addStringColumn(table, "words");
  table->AddColumn(Talmesh::plot::makeColumn("nameless", {1, 2, 3, 4, 5}));
  table->GetColumn(5)->SetName(nullptr);
  container.setPlotData(table);
  setStyle(GetParam());
  for (const int index : {4, 5})
  {
    settings().xColumns = {index};
    settings().yColumns = {index, 0, index};
    settings().zColumns = {index};
    settings().colorColumn = index;
    settings().solidColor = false;
    container.redraw();
    expectSoundPicture(scene, container);
  }
}

TEST_P(RedrawOfOddData, SurvivesAnEmptyTable)
{
  setStyle(GetParam());
  container.redraw();
  expectSoundPicture(scene, container);
  container.setPlotData(vtkSmartPointer<vtkTable>::New());
  container.redraw();
  expectSoundPicture(scene, container);
  container.setPlotData(tableOf({{"a", {}}, {"b", {}}, {"c", {}}}));
  container.redraw();
  expectSoundPicture(scene, container);
}

TEST_P(RedrawOfOddData, SurvivesValuesThatAreNotFinite)
{
  const double inf = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  container.setPlotData(tableOf({{"a", {0, inf, 2, -inf, 4}},
                                 {"b", {nan, nan, nan, nan, nan}},
                                 {"c", {1, nan, 3, 4, 1e300}},
                                 {"d", {7, 7, 7, 7, 7}}}));
  setStyle(GetParam());
  for (int x = 0; x < 4; ++x)
  {
    for (int y = 0; y < 4; ++y)
    {
      settings().xColumns = {x};
      settings().yColumns = {y, 0, 3};
      settings().zColumns = {3};
      settings().colorColumn = x;
      settings().solidColor = false;
      container.redraw();
      expectSoundPicture(scene, container);
    }
  }
}

TEST_P(RedrawOfOddData, SurvivesATableOfOneRow)
{
  container.setPlotData(tableOf({{"a", {1}}, {"b", {2}}, {"c", {3}}}));
  setStyle(GetParam());
  container.redraw();
  expectSoundPicture(scene, container);
}

INSTANTIATE_TEST_SUITE_P(EveryStyle, RedrawOfOddData, ::testing::Range(0, plotStyleCount + 1));

} // namespace
