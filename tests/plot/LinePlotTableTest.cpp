#include "plot/ContainerAccess.h"
#include "support/CapturedOutput.h"
#include "support/LineTables.h"
#include "support/PlotFixture.h"

#include <vtkDoubleArray.h>
#include <vtkWeakPointer.h>

#include <boost/weak_ptr.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

using Talmesh::Complex;
using Talmesh::Molecule;
using Talmesh::Parameter;
using Talmesh::Pattern;
using Talmesh::TimeOrValue;

namespace
{

using Ranges = std::vector<std::pair<double, double>>;
using Items = std::vector<Talmesh::TypedConcentrationName>;

class LinePlotTableInput : public PlotFixture
{
};

TEST_F(LinePlotTableInput, MakesAColumnOfEveryItemThatIsNotAConstantParameter)
{
  const auto lines = lineTableOf({{Complex, "A"},
                                  {Parameter, "fixed"},
                                  {TimeOrValue, "Time [s]"},
                                  {Parameter, "k"},
                                  {Parameter, "alsoFixed"},
                                  {Parameter, "q"}},
                                 {{1, 1}, {0, 2}, {-3, -3}, {4, 9}}, 2, 3);
  const vtkSmartPointer<vtkTable> before = container.getTable();
  container.setLinePlotTable(lines, false);

  EXPECT_NE(container.getTable(), before.Get());
  EXPECT_EQ(before->GetNumberOfColumns(), 4);
  EXPECT_EQ(container.getLabels(),
            (QStringList{"Complex: A", ": Time [s]", "Parameter: k", "Parameter: q"}));
  EXPECT_EQ(container.getColumnItems(),
            (Items{{Complex, "A"}, {TimeOrValue, "Time [s]"}, {Parameter, "k"}, {Parameter, "q"}}));
  EXPECT_EQ(stateOf(container).parameterBounds, (Ranges{{0, 2}, {4, 9}}));
  EXPECT_EQ(settings().parameterColumns, (std::vector<int>{2, 3}));
  EXPECT_EQ(settings().getStride(), 3);
}

TEST_F(LinePlotTableInput, UsesTheValuesInPlace)
{
  const auto lines =
      lineTableOf({{Complex, "A"}, {Parameter, "fixed"}, {Molecule, "M"}}, {{1, 1}}, 4, 5);
  container.setLinePlotTable(lines, false);
  ASSERT_EQ(container.getTable()->GetNumberOfColumns(), 2);
  EXPECT_EQ(container.getTable()->GetNumberOfRows(), 20);
  auto* a = vtkDoubleArray::SafeDownCast(container.getTable()->GetColumn(0));
  auto* m = vtkDoubleArray::SafeDownCast(container.getTable()->GetColumn(1));
  ASSERT_TRUE(a && m);
  EXPECT_EQ(a->GetPointer(0), lines->values[0]);
  EXPECT_EQ(m->GetPointer(0), lines->values[2]);
  EXPECT_EQ(m->GetValue(19), lineValue(2, 19));
}

TEST_F(LinePlotTableInput, ReplacesTheItemsButCollectsTheBoundsOfEveryCall)
{
  const auto lines = lineTableOf({{Parameter, "k"}, {Complex, "A"}}, {{0, 2}});
  container.setLinePlotTable(lines, false);
  container.setLinePlotTable(lines, false);
  EXPECT_EQ(container.getColumnItems().size(), 2U);
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 2);
  EXPECT_EQ(stateOf(container).parameterBounds, (Ranges{{0, 2}, {0, 2}}));
  container.updateFromLinePlotTable(false);
  EXPECT_EQ(container.getColumnItems().size(), 2U);
  EXPECT_EQ(stateOf(container).parameterBounds.size(), 3U);
}

TEST_F(LinePlotTableInput, KeepsAParameterWithAnInfiniteBound)
{
  const double inf = std::numeric_limits<double>::infinity();
  container.setLinePlotTable(lineTableOf({{Parameter, "k"}}, {{0, inf}}), false);
  EXPECT_EQ(container.getLabels(), QStringList{"Parameter: k"});
  EXPECT_EQ(stateOf(container).parameterBounds, (Ranges{{0, inf}}));
}

TEST_F(LinePlotTableInput, UpdatesNothingWithoutALineTable)
{
  stateOf(container).columnItems = {{Complex, "A"}};
  const vtkTable* before = container.getTable();
  container.updateFromLinePlotTable(false);
  EXPECT_EQ(container.getTable(), before);
  EXPECT_EQ(container.getColumnItems().size(), 1U);
}

TEST_F(LinePlotTableInput, MarksTheSceneForPaintingOnUpdate)
{
  container.setLinePlotTable(lineTableOf({{Complex, "A"}}), false);
  scene.scene()->SetDirty(false);
  container.updateFromLinePlotTable(false);
  EXPECT_TRUE(scene.scene()->GetDirty());
}

TEST_F(LinePlotTableInput, ReadsTheLineTableAgainOnUpdate)
{
  const auto lines = lineTableOf({{Complex, "A"}, {TimeOrValue, "Time [s]"}});
  container.setLinePlotTable(lines, false);
  lines->items[0].second = "renamed";
  container.updateFromLinePlotTable(false);
  EXPECT_EQ(container.getLabels(), (QStringList{"Complex: renamed", ": Time [s]"}));
}

TEST_F(LinePlotTableInput, DrawsOnceAndUnblocksTheSettings)
{
  for (const bool blocked : {true, false})
  {
    settings().blockSignals(blocked);
    newDrawings();
    container.setLinePlotTable(lineTableOf({{Complex, "A"}}, {}, 2, blocked ? 7 : 8), false);
    EXPECT_EQ(newDrawings(), 1U) << "the stride changes silently";
    EXPECT_FALSE(settings().signalsBlocked());
  }
}

TEST(LinePlotTableWithoutScene, UnblocksTheSettingsAllTheSame)
{
  PlotContainer container(nullptr);
  const CapturedOutput output(std::cout);
  container.setLinePlotTable(lineTableOf({{Complex, "A"}}), false);
  EXPECT_EQ(output.text(), "void PlotContainer::redraw(): invalid scene\n");
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(LinePlotTableInput, SurvivesATableWithoutContents)
{
  container.setLinePlotTable(lineTableOf({}), false);
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 0);
  EXPECT_EQ(settings().xLabel, "");
  EXPECT_EQ(settings().yLabel, "");
  scene.render(container);
  container.setLinePlotTable(lineTableOf({{Complex, "A"}, {TimeOrValue, "t"}}, {}, 0, 0), false);
  EXPECT_EQ(container.getTable()->GetNumberOfColumns(), 2);
  scene.render(container);
  container.setLinePlotTable(nullptr, false);
  scene.render(container);
}

TEST_F(LinePlotTableInput, FillsAColumnWithoutValuesWithNaN)
{
  auto lines = lineTableOf({{Complex, "A"}, {TimeOrValue, "t"}, {Parameter, "k"}}, {{0, 1}});
  delete[] lines->values[0];
  lines->values[0] = nullptr;
  container.setLinePlotTable(lines, false);
  EXPECT_EQ(container.getLabels(), (QStringList{"Complex: A", ": t", "Parameter: k"}));
  EXPECT_EQ(container.getTable()->GetNumberOfRows(), 6);
  EXPECT_TRUE(std::isnan(container.getTable()->GetValue(5, 0).ToDouble()));
  EXPECT_EQ(container.getTable()->GetValue(5, 1).ToDouble(), lineValue(1, 5));
  scene.render(container);

  container.setLinePlotTableAsAdditionalData(lines.get());
  ASSERT_EQ(container.getDerivedTables().size(), 1U);
  EXPECT_EQ(container.getDerivedTables().front()->GetNumberOfColumns(), 3);
}

TEST_F(LinePlotTableInput, LeavesOutItemsBeyondTheValues)
{
  auto lines = lineTableOf({{Complex, "A"}, {TimeOrValue, "t"}, {Parameter, "k"}}, {{0, 1}});
  delete[] lines->values.back();
  lines->values.pop_back();
  container.setLinePlotTable(lines, false);
  EXPECT_EQ(container.getLabels(), (QStringList{"Complex: A", ": t"}));
  EXPECT_EQ(container.getColumnItems().size(), 2U);
  EXPECT_TRUE(settings().parameterColumns.empty());
  scene.render(container);
}

TEST_F(LinePlotTableInput, HoldsTheLineTableAndReleasesTheOneBefore)
{
  auto first = lineTableOf({{Complex, "A"}});
  boost::weak_ptr<LinePlotTable> firstWatch = first;
  container.setLinePlotTable(first, false);
  EXPECT_EQ(stateOf(container).linePlotTable, first);
  first.reset();
  EXPECT_FALSE(firstWatch.expired());
  EXPECT_EQ(container.getTable()->GetValue(5, 0).ToDouble(), lineValue(0, 5));
  scene.render(container);

  container.setLinePlotTable(lineTableOf({{Molecule, "M"}}), false);
  scene.render(container);
  EXPECT_TRUE(firstWatch.expired());
}

TEST_F(LinePlotTableInput, KeepsTheValuesAliveForWhoeverKeepsTheTable)
{
  container.setLinePlotTable(lineTableOf({{Complex, "A"}}), false);
  boost::weak_ptr<LinePlotTable> lines = stateOf(container).linePlotTable;
  vtkSmartPointer<vtkTable> kept = container.getTable();
  container.setLinePlotTable(lineTableOf({{Molecule, "M"}}), false);
  EXPECT_EQ(kept->GetValue(5, 0).ToDouble(), lineValue(0, 5));

  vtkSmartPointer<vtkAbstractArray> column = kept->GetColumn(0);
  kept = nullptr;
  EXPECT_EQ(column->GetVariantValue(5).ToDouble(), lineValue(0, 5));
  EXPECT_FALSE(lines.expired());
  column = nullptr;
  EXPECT_TRUE(lines.expired());
}

TEST(LinePlotTableOwnership, OutlivesTheContainerWithTheTable)
{
  PlotScene scene;
  auto container = std::make_unique<PlotContainer>(nullptr);
  container->setScene(scene.scene());
  container->setLinePlotTable(lineTableOf({{Complex, "A"}, {TimeOrValue, "t"}}), false);
  scene.render(*container);
  const vtkSmartPointer<vtkTable> table = container->getTable();
  boost::weak_ptr<LinePlotTable> lines = stateOf(*container).linePlotTable;
  container.reset();
  EXPECT_FALSE(lines.expired());
  EXPECT_EQ(table->GetValue(5, 1).ToDouble(), lineValue(1, 5));
  scene.scene()->ClearItems();
}

TEST(LinePlotTableOwnership, EndsWithTheContainer)
{
  const auto lines = lineTableOf({{Complex, "A"}});
  auto container = std::make_unique<PlotContainer>(nullptr);
  {
    const CapturedOutput output(std::cout);
    container->setLinePlotTable(lines, true);
  }
  EXPECT_GT(lines.use_count(), 1);
  container.reset();
  EXPECT_EQ(lines.use_count(), 1);
  EXPECT_EQ(lines->values[0][5], lineValue(0, 5));
}

} // namespace
