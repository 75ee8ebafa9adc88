#include "app/comparison/ComparisonResults.h"
#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/export/PictureFile.h"
#include "plot/DerivedTables.h"
#include "plot/PlotContainer.h"
#include "plot/TableColumns.h"
#include "vtk/RowSelections.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAnnotationLink.h>
#include <vtkDoubleArray.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include "SampleStudies.h"

using namespace Talmesh::app;
namespace plot = Talmesh::plot;

// It is asked for after every drawing; the ranking, once per selection, has been through all rows.
TEST(ComparisonOfRanks, CountsNoValuesThatTheRankingHasCounted)
{
  const auto widget = makeHiddenPlot(QSize(300, 200));
  PlotContainer& container = *widget->plotContainer();
  showStudy(sampleStudy(sampleRuns(12, 3)), container);
  applyChoice(container, choiceOf(container));
  container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({0, 3, 6, 9, 12}));
  const Comparison before = comparisonOf(container);
  ASSERT_EQ(before.state, Comparison::State::compared);
  ASSERT_EQ(before.parameters.front().obstacle, TestObstacle::none);
  for (const std::size_t dataSet : {1, 2})
  {
    vtkTable* rows = container.getDerivedTables().at(plot::rankSlot(dataSet) - 1);
    for (int column = 0; column < rows->GetNumberOfColumns(); ++column)
      if (auto* values = vtkDoubleArray::SafeDownCast(rows->GetColumn(column)))
        values->Fill(1.0);
  }
  const Comparison after = comparisonOf(container);
  ASSERT_EQ(after.parameters.size(), before.parameters.size());
  for (std::size_t k = 0; k < before.parameters.size(); ++k)
  {
    EXPECT_EQ(after.parameters[k].obstacle, before.parameters[k].obstacle);
    EXPECT_DOUBLE_EQ(after.parameters[k].pValue, before.parameters[k].pValue);
  }
}
