#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "support/Reaction.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"

#include <vtkCommand.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkInformationObjectBaseKey.h>
#include <vtkIntArray.h>
#include <vtkNew.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkTable.h>
#include <vtkWeakPointer.h>

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <stdexcept>
#include <vector>

using SampleRuns::selectedRows;
using SampleRuns::valuesOf;
using Talmesh::makeRowSelection;

namespace
{

using Rows = std::set<vtkIdType>;
using Values = std::vector<double>;

vtkAnnotationLink* matrixLink(const PlotContainer& container)
{
  return stateOf(container).scatterPlotMatrix->GetAnnotationLink();
}

/// Three runs of three points in the scatter-plot matrix.
class MatrixSelection : public ::testing::Test
{
protected:
  MatrixSelection()
  {
    plot.container.setPlotStyle(scatterPlotMatrix);
    link()->AddObserver(vtkCommand::AnnotationChangedEvent, listener);
    listener->react = [this] { ++announcements; };
  }

  vtkAnnotationLink* link() { return plot.container.getAnnotationLink(); }

  void selectInMatrix(const std::vector<vtkIdType>& rows)
  {
    matrixLink(plot.container)->SetCurrentSelection(makeRowSelection(rows));
  }

  SampleRuns::Plot plot{SampleRuns::runs(3, 3)};
  vtkNew<Reaction> listener;
  int announcements = 0;
};

} // namespace

TEST_F(MatrixSelection, BecomesTheContainersAndSplitsTheRuns)
{
  selectInMatrix({0, 1, 4, 7});
  EXPECT_EQ(selectedRows(plot.container), Rows({0, 1, 4, 7}));
  EXPECT_EQ(announcements, 1);
  const auto flags = vtk::TakeSmartPointer(plot.container.getCurrentSelection());
  EXPECT_EQ(valuesOf(flags), Values({1, 1, 0, 0, 1, 0, 0, 1, 0}));
  const auto& tables = plot.container.getDerivedTables();
  ASSERT_EQ(tables.size(), 8U);
  EXPECT_EQ(valuesOf(tables[2], "Complex: A"), Values({0, 1}));
  EXPECT_EQ(valuesOf(tables[5], "Complex: A"), Values({10, 11, 20, 21}));
  EXPECT_EQ(valuesOf(plot.container.getTable(), "vtkRemainderSelection"),
            Values({1, 1, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(MatrixSelection, IsForwardedEveryTimeItChanges)
{
  for (const Rows& rows : {Rows{0}, Rows{1, 5}, Rows{}, Rows{8}})
  {
    selectInMatrix({rows.begin(), rows.end()});
    EXPECT_EQ(selectedRows(plot.container), rows);
  }
  matrixLink(plot.container)->SetCurrentSelection(nullptr);
  EXPECT_EQ(selectedRows(plot.container), Rows());
  EXPECT_EQ(announcements, 5);
}

TEST_F(MatrixSelection, IsForwardedAsACopyWithoutThePlotItWasMadeIn)
{
  const auto selection = makeRowSelection({4});
  vtkSelectionNode* node = selection->GetNode(0);
  vtkWeakPointer<vtkSelection> madeIn;
  {
    // Any object serves as the one in which the selection was made.
    vtkNew<vtkSelection> object;
    madeIn = object;
    node->GetProperties()->Set(vtkSelectionNode::PROP(), object);
    matrixLink(plot.container)->SetCurrentSelection(selection);
  }
  vtkIdTypeArray::SafeDownCast(node->GetSelectionList())->SetValue(0, 7);
  EXPECT_EQ(selectedRows(plot.container), Rows({4}));
  node->GetProperties()->Remove(vtkSelectionNode::PROP());
  EXPECT_EQ(madeIn, nullptr);
}

TEST_F(MatrixSelection, OfTheSameRowsAnnouncesNothing)
{
  selectInMatrix({2, 1});
  ASSERT_EQ(announcements, 1);
  selectInMatrix({1, 2, 2});
  const auto points = makeRowSelection({1});
  points->GetNode(0)->SetFieldType(vtkSelectionNode::POINT);
  points->AddNode(makeRowSelection({2})->GetNode(0));
  matrixLink(plot.container)->SetCurrentSelection(points);
  EXPECT_EQ(announcements, 1);
}

TEST_F(MatrixSelection, FollowsTheContainersWithoutAnEcho)
{
  link()->SetCurrentSelection(makeRowSelection({3, 4}));
  EXPECT_EQ(announcements, 1);
  vtkSelection* shown = matrixLink(plot.container)->GetCurrentSelection();
  ASSERT_EQ(shown->GetNumberOfNodes(), 1U);
  EXPECT_EQ(valuesOf(shown->GetNode(0)->GetSelectionList()), Values({3, 4}));
  EXPECT_NE(shown, link()->GetCurrentSelection());
}

TEST_F(MatrixSelection, IsForwardedAgainAfterAnObserverHasThrown)
{
  vtkNew<Reaction> throwing;
  throwing->react = [] { throw std::runtime_error("not now"); };
  matrixLink(plot.container)->AddObserver(vtkCommand::AnnotationChangedEvent, throwing);
  EXPECT_THROW(plot.container.redraw(), std::runtime_error);
  matrixLink(plot.container)->RemoveObserver(throwing);
  selectInMatrix({1, 2});
  EXPECT_EQ(selectedRows(plot.container), Rows({1, 2}));
}

TEST_F(MatrixSelection, OfACopiedContainerIsItsOwn)
{
  PlotContainer copy(plot.container);
  matrixLink(copy)->SetCurrentSelection(makeRowSelection({5}));
  EXPECT_EQ(selectedRows(copy), Rows({5}));
  EXPECT_EQ(selectedRows(plot.container), Rows());
}

TEST_F(MatrixSelection, MayLoseItsMatrix)
{
  const vtkSmartPointer<vtkAnnotationLink> left = matrixLink(plot.container);
  plot.container.setPlotStyle(xyPlot);
  stateOf(plot.container).scatterPlotMatrix = nullptr;
  left->SetCurrentSelection(makeRowSelection({1}));
  link()->SetCurrentSelection(makeRowSelection({2}));
  EXPECT_EQ(selectedRows(plot.container), Rows({2}));
}

TEST(MatrixSelectionLifetime, AnnouncesNothingToADeadContainer)
{
  vtkSmartPointer<vtkAnnotationLink> ofMatrix;
  vtkSmartPointer<vtkAnnotationLink> ofContainer;
  {
    SampleRuns::Plot plot;
    ofMatrix = matrixLink(plot.container);
    ofContainer = plot.container.getAnnotationLink();
  }
  const vtkSelection* before = ofContainer->GetCurrentSelection();
  ofMatrix->SetCurrentSelection(makeRowSelection({1}));
  EXPECT_EQ(ofContainer->GetCurrentSelection(), before);
}

TEST(SelectionLifetimeOfCuts, MayEndTheContainer)
{
  for (const bool byRedraw : {false, true})
  {
    vtkNew<vtkContextScene> scene;
    auto container = std::make_unique<PlotContainer>(nullptr);
    container->setScene(scene);
    SampleRuns::load(*container, SampleRuns::runs(3, 3));
    const vtkSmartPointer<vtkAnnotationLink> link = container->getAnnotationLink();
    vtkNew<Reaction> listener;
    listener->react = [&] { container.reset(); };
    if (!byRedraw)
    {
      link->AddObserver(vtkCommand::AnnotationChangedEvent, listener, -1.0F);
      link->SetCurrentSelection(makeRowSelection({1, 1000}));
    }
    else
    {
      link->SetCurrentSelection(makeRowSelection({8}));
      link->AddObserver(vtkCommand::AnnotationChangedEvent, listener, -1.0F);
      container->getTable()->SetNumberOfRows(6);
      container->redraw();
    }
    EXPECT_EQ(container, nullptr) << byRedraw;
  }
}

TEST(MatrixSelectionLifetime, MayEndTheContainer)
{
  vtkNew<vtkContextScene> scene;
  auto container = std::make_unique<PlotContainer>(nullptr);
  container->setScene(scene);
  SampleRuns::load(*container, SampleRuns::runs(3, 3));
  container->setPlotStyle(scatterPlotMatrix);
  const vtkSmartPointer<vtkAnnotationLink> ofMatrix = matrixLink(*container);
  vtkNew<Reaction> listener;
  listener->react = [&] { container.reset(); };
  container->getAnnotationLink()->AddObserver(vtkCommand::AnnotationChangedEvent, listener, 1.0F);
  ofMatrix->SetCurrentSelection(makeRowSelection({1}));
  EXPECT_EQ(container, nullptr);
}
