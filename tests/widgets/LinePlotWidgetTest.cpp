#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkPlot.h>
#include <vtkTable.h>

#include <QLabel>
#include <QMetaMethod>
#include <QSplitter>

#include "LinePlotFixture.h"

namespace
{

using LinePlot = LinePlotFixture;

TEST_F(LinePlot, StartsWithoutData)
{
  EXPECT_EQ(widget.objectName(), "LinePlotWidgetClass");
  EXPECT_EQ(widget.windowTitle(), "Form");
  EXPECT_EQ(widget.size(), QSize(1216, 884));
  EXPECT_EQ(pages()->currentWidget(), find<QWidget>("page_no_data"));
  EXPECT_EQ(pages()->indexOf(find<QWidget>("plotter")), 1);
  EXPECT_TRUE(find<QLabel>("label")->text().contains("Simulation data not available"));
  EXPECT_EQ(find<QPushButton>("exportButton")->text(), "Export Plot");
  EXPECT_EQ(find<QPushButton>("showLegend")->text(), "Show the Legend");
  EXPECT_EQ(find<QPushButton>("logSButton")->text(), "Use Log Scale");
  EXPECT_EQ(find<PlotSelector>("selector")->topLevelItemCount(), 0);
  EXPECT_EQ(container().getTable()->GetNumberOfColumns(), 0);
}

TEST_F(LinePlot, KeepsTheStatedSizePolicyOfTheChart)
{
  const QSizePolicy policy = pages()->sizePolicy();
  EXPECT_EQ(policy.horizontalStretch(), 3);
  EXPECT_EQ(policy.verticalStretch(), 0);
  EXPECT_EQ(policy.horizontalPolicy(), QSizePolicy::Expanding);
  EXPECT_EQ(policy.verticalPolicy(), QSizePolicy::Expanding);
  EXPECT_EQ(pages()->sizeIncrement(), QSize(1, 1));
  EXPECT_EQ(find<QSplitter>("splitter")->orientation(), Qt::Horizontal);
}

TEST_F(LinePlot, OffersExactlyItsThreeSlots)
{
  const QMetaObject& meta = LinePlotWidget::staticMetaObject;
  ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 3);
  EXPECT_EQ(meta.method(meta.methodOffset()).methodSignature(), "toggleLegend()");
  EXPECT_EQ(meta.method(meta.methodOffset() + 1).methodSignature(), "toggleLogScale()");
  EXPECT_EQ(meta.method(meta.methodOffset() + 2).methodSignature(), "exportPlot()");
}

TEST_F(LinePlot, ShowsData)
{
  widget.setData(&data);
  EXPECT_EQ(pages()->currentWidget(), find<QWidget>("plotter"));
  EXPECT_EQ(find<PlotSelector>("selector")->topLevelItemCount(), 2);
  EXPECT_EQ(container().getTable()->GetNumberOfColumns(), 3);
  EXPECT_EQ(container().getColumnItems().size(), 2U);
  widget.setData(&data);
  EXPECT_EQ(container().getColumnItems().size(), 2U);
}

TEST_F(LinePlot, IgnoresDataThatAreNotThere)
{
  widget.setData(nullptr);
  EXPECT_EQ(pages()->currentWidget(), find<QWidget>("page_no_data"));
  data.series[{Talmesh::Molecule, "B"}] = nullptr;
  data.xValues = nullptr;
  widget.setData(&data);
  EXPECT_EQ(container().getTable()->GetNumberOfRows(), 0);
}

TEST_F(LinePlot, PlotsTheItemsThatAreClicked)
{
  show();
  widget.setData(&data);
  auto* selector = find<PlotSelector>("selector");
  selector->expandAll();
  QTreeWidgetItem* item = selector->topLevelItem(0)->child(0);
  QTest::mouseClick(selector->viewport(), Qt::LeftButton, Qt::NoModifier,
                    selector->visualItemRect(item).center());
  ASSERT_EQ(container().getChartXY()->GetNumberOfPlots(), 1);
  EXPECT_EQ(container().getChartXY()->GetPlot(0)->GetInput(), container().getTable());
  vtkContextScene* scene = find<VtkPlotWidget>("plotter")->contextView()->GetScene();
  ASSERT_EQ(scene->GetNumberOfItems(), 1U);
  EXPECT_EQ(scene->GetItem(0), container().getItem());
}

TEST_F(LinePlot, EmptiesEverythingWhenTheDataGo)
{
  widget.setData(&data);
  find<PlotSelector>("selector")->expandAll();
  find<PlotSelector>("selector")->selectAll();
  ASSERT_EQ(container().getChartXY()->GetNumberOfPlots(), 2);
  widget.removeData();
  EXPECT_EQ(pages()->currentWidget(), find<QWidget>("page_no_data"));
  EXPECT_EQ(find<PlotSelector>("selector")->topLevelItemCount(), 0);
  EXPECT_EQ(container().getChartXY()->GetNumberOfPlots(), 0);
  EXPECT_EQ(container().getTable()->GetNumberOfColumns(), 0);
}

TEST_F(LinePlot, TogglesTheLogScaleWhenTheButtonGoesDown)
{
  show();
  vtkAxis* left = container().getChartXY()->GetAxis(vtkAxis::LEFT);
  EXPECT_FALSE(left->GetLogScale());
  QTest::mousePress(find<QPushButton>("logSButton"), Qt::LeftButton);
  EXPECT_TRUE(left->GetLogScale());
  EXPECT_EQ(find<QPushButton>("logSButton")->text(), "Use Linear Scale");
  QTest::mouseRelease(find<QPushButton>("logSButton"), Qt::LeftButton);
  EXPECT_TRUE(left->GetLogScale());
  press("logSButton");
  EXPECT_FALSE(left->GetLogScale());
  EXPECT_EQ(find<QPushButton>("logSButton")->text(), "Use Log Scale");
}

TEST_F(LinePlot, TogglesTheLegend)
{
  show();
  EXPECT_FALSE(container().getChartXY()->GetShowLegend());
  press("showLegend");
  EXPECT_TRUE(container().getChartXY()->GetShowLegend());
  EXPECT_EQ(find<QPushButton>("showLegend")->text(), "Hide the Legend");
  widget.setData(&data);
  widget.removeData();
  EXPECT_TRUE(container().getChartXY()->GetShowLegend()) << "data do not reset it";
}

TEST_F(LinePlot, HandsTheContainerAnEmptyListWhenTheDataGo)
{
  widget.setData(&data);
  selector().expandAll();
  selector().selectAll();
  std::vector<std::size_t> counts;
  std::vector<vtkIdType> plots;
  // Told after the container, which was connected first.
  QObject::connect(&selector(), &PlotSelector::notifySelectionChanged,
                   [&](std::vector<Talmesh::TypedConcentrationName>* items)
                   {
                     counts.push_back(items->size());
                     plots.push_back(container().getChartXY()->GetNumberOfPlots());
                   });
  widget.removeData();
  EXPECT_EQ(counts, std::vector<std::size_t>{0});
  EXPECT_EQ(plots, std::vector<vtkIdType>{0});
}

} // namespace
