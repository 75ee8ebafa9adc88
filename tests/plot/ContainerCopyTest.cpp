#include "plot/ContainerAccess.h"
#include "support/LineTables.h"
#include "vtk/RowSelections.h"

#include <vtkIntArray.h>

#include "ContainerCopyFixture.h"

using Talmesh::Complex;
using Talmesh::Parameter;

namespace
{

using ContainerCopy = ContainerCopyFixture;

TEST_F(ContainerCopy, HasTheParentOfTheOriginal)
{
  EXPECT_EQ(copied()->parent(), nullptr);
  QObject parent;
  container.setParent(&parent);
  const auto copy = copied();
  EXPECT_EQ(copy->parent(), &parent);
  container.setParent(nullptr);
  copy->setParent(nullptr);
}

TEST_F(ContainerCopy, HasTheItemsBoundsWindowsMarginsAndFlags)
{
  auto& state = stateOf(container);
  state.columnItems = {{Complex, "A"}, {Parameter, "k"}};
  state.parameterBounds = {{1, 2}};
  state.coordinateWindows[{0, 1, 0}] = {1, 2, 3, 4, true};
  state.showDecorations = true;
  state.useIndexForXSeries = true;
  state.leftMargin = 1;
  state.topMargin = 2;
  state.bottomMargin = 3;
  state.rightMargin = 4;
  state.horizontalGutter = 5;
  state.verticalGutter = 6;
  const auto copy = copied();
  EXPECT_EQ(copy->getColumnItems(), state.columnItems);
  EXPECT_EQ(stateOf(*copy).parameterBounds, state.parameterBounds);
  ASSERT_EQ(stateOf(*copy).coordinateWindows.size(), 1U);
  const CoordinateWindow& window = stateOf(*copy).coordinateWindows.at({0, 1, 0});
  EXPECT_EQ(window.xMin, 1.0);
  EXPECT_EQ(window.yMax, 4.0);
  EXPECT_TRUE(window.valid);
  EXPECT_TRUE(copy->getShowDecorations());
  EXPECT_TRUE(copy->getUseIndexForXSeries());
  EXPECT_EQ(copy->getLeftMargin(), 1);
  EXPECT_EQ(copy->getTopMargin(), 2);
  EXPECT_EQ(copy->getBottomMargin(), 3);
  EXPECT_EQ(copy->getRightMargin(), 4);
  EXPECT_EQ(copy->getHorizontalGutter(), 5);
  EXPECT_EQ(copy->getVerticalGutter(), 6);

  stateOf(*copy).columnItems.clear();
  stateOf(*copy).coordinateWindows.clear();
  EXPECT_EQ(state.columnItems.size(), 2U);
  EXPECT_EQ(state.coordinateWindows.size(), 1U);
}

TEST_F(ContainerCopy, StartsWithoutDerivedResults)
{
  auto& state = stateOf(container);
  state.derivedTables = {plainTable()};
  state.linePlotTable = lineTableOf({{Complex, "A"}});
  state.ksResults = {{0.5, 0.5}};
  state.decorationTable = plainTable();
  state.clusterMembership = vtkSmartPointer<vtkIntArray>::New();
  const auto copy = copied();
  EXPECT_TRUE(copy->getDerivedTables().empty());
  EXPECT_EQ(stateOf(*copy).linePlotTable, nullptr);
  EXPECT_TRUE(copy->getKsResults().empty());
  EXPECT_EQ(stateOf(*copy).decorationTable, nullptr);
  EXPECT_EQ(copy->getClusterMembership(), nullptr);
  EXPECT_EQ(stateOf(*copy).pointColors, nullptr);
  EXPECT_TRUE(stateOf(*copy).selectionUpdatePending);
  EXPECT_FALSE(state.selectionUpdatePending);
}

TEST_F(ContainerCopy, HasSettingsOfItsOwnWithEqualValues)
{
  settings().xColumns = {2, 1};
  settings().title = "title";
  settings().pointSize = 9.0;
  settings().setStride(3);
  settings().setPThreshold(0.01);
  const auto copy = copied();
  PlotMetaData* own = copy->getMetaData();
  ASSERT_NE(own, &settings());
  EXPECT_EQ(own->parent(), copy.get());
  EXPECT_EQ(own->xColumns, (std::vector<int>{2, 1}));
  EXPECT_EQ(own->title, "title");
  EXPECT_EQ(own->pointSize, 9.0);
  EXPECT_EQ(own->getStride(), 3);
  EXPECT_EQ(own->getPThreshold(), 0.01);
  own->title = "other";
  EXPECT_EQ(settings().title, "title");
}

TEST_F(ContainerCopy, IsSilentUntilItIsDrawnInAScene)
{
  const auto copy = copied();
  EXPECT_TRUE(copy->getMetaData()->signalsBlocked());
  PlotScene other;
  copy->setScene(other.scene());
  copy->redraw();
  EXPECT_FALSE(copy->getMetaData()->signalsBlocked());

  newDrawings();
  const unsigned long before = stateOf(*copy).drawings;
  copy->getMetaData()->setStride(9);
  EXPECT_EQ(stateOf(*copy).drawings, before + 1);
  EXPECT_EQ(newDrawings(), 0U);
  settings().setStride(10);
  EXPECT_EQ(stateOf(*copy).drawings, before + 1);
  EXPECT_EQ(newDrawings(), 1U);
}

TEST_F(ContainerCopy, HasATableOfItsOwnWithEqualValues)
{
  addStringColumn(container.getTable(), "words");
  const auto copy = copied();
  vtkTable* own = copy->getTable();
  ASSERT_NE(own, container.getTable());
  ASSERT_GE(own->GetNumberOfColumns(), 5);
  ASSERT_EQ(own->GetNumberOfRows(), 5);
  for (int column = 0; column < 5; ++column)
  {
    EXPECT_STREQ(own->GetColumnName(column), container.getTable()->GetColumnName(column));
    EXPECT_NE(own->GetColumn(column), container.getTable()->GetColumn(column));
    for (int row = 0; row < 5; ++row)
      EXPECT_EQ(own->GetValue(row, column), container.getTable()->GetValue(row, column));
  }
  own->SetValue(2, 1, 77.0);
  EXPECT_EQ(container.getTable()->GetValue(2, 1).ToDouble(), 9.0);
}

TEST_F(ContainerCopy, HasColumnsOfOneNameAndOfNoneInTheirPlaces)
{
  for (const int same : {0, 2})
    container.getTable()->GetColumn(same)->SetName("same");
  container.getTable()->GetColumn(1)->SetName(nullptr);
  const auto copy = copied();
  ASSERT_GE(copy->getTable()->GetNumberOfColumns(), 4);
  for (int column = 0; column < 4; ++column)
    EXPECT_EQ(copy->getTable()->GetValue(0, column), container.getTable()->GetValue(0, column));
  EXPECT_STREQ(copy->getTable()->GetColumnName(2), "same");
}

TEST_F(ContainerCopy, LetsSettingsItemsAndWindowsFollowTheColumnsBehindOldFlags)
{
  auto& state = stateOf(container);
  vtkNew<vtkIntArray> flags;
  flags->SetName("selected points");
  for (const int flag : {0, 1, 0})
    flags->InsertNextValue(flag);
  const auto table = tableOf({{"a", {1, 2, 3}}});
  table->AddColumn(flags);
  table->AddColumn(Talmesh::plot::makeColumn("b", {4, 5, 6}));
  table->AddColumn(Talmesh::plot::makeColumn("c", {7, 8, 9}));
  container.setPlotData(table);
  state.columnItems = {{Complex, "a"}, {Complex, "flags"}, {Complex, "b"}, {Complex, "c"}};
  settings().xColumns = {2};
  settings().yColumns = {3, 0};
  settings().colorColumn = 2;
  state.coordinateWindows[{2, 3, 0}] = {1, 2, 3, 4, true};
  state.windowScales[{2, 3, 0}] = {true, false};
  container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({2}));
  const auto copy = copied();
  EXPECT_EQ(copy->getLabels(), (QStringList{"a", "b", "c", "selected points"}));
  EXPECT_EQ(copy->getMetaData()->xColumns, std::vector<int>{1});
  EXPECT_EQ(copy->getMetaData()->yColumns, (std::vector<int>{2, 0}));
  EXPECT_EQ(copy->getMetaData()->colorColumn, 1);
  EXPECT_EQ(copy->getColumnItems()[1].second, "b");
  ASSERT_EQ(stateOf(*copy).coordinateWindows.count({1, 2, 0}), 1U);
  EXPECT_TRUE(stateOf(*copy).windowScales.at({1, 2, 0}).xLog);
  EXPECT_EQ(settings().xColumns, std::vector<int>{2}) << "the original stays as it is";
}

TEST_F(ContainerCopy, OutlivesTheOriginalAndItsBorrowedValues)
{
  auto original = std::make_unique<PlotContainer>(nullptr);
  std::unique_ptr<PlotContainer> copy;
  {
    const CapturedOutput output(std::cout);
    original->setLinePlotTable(lineTableOf({{Complex, "A"}, {Talmesh::TimeOrValue, "t"}}), false);
    copy = std::make_unique<PlotContainer>(*original);
  }
  original.reset();
  EXPECT_EQ(copy->getTable()->GetValue(5, 0).ToDouble(), lineValue(0, 5));
  copy->setScene(scene.scene());
  copy->redraw();
  scene.render(*copy);
  scene.scene()->ClearItems();
}

} // namespace
