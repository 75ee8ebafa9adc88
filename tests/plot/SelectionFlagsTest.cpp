#include "plot/SelectionFlags.h"

#include "plot/ColumnReduction.h"
#include "plot/PlotState.h"
#include "support/SampleRuns.h"
#include "vtk/RowSelections.h"

#include <vtkAnnotation.h>
#include <vtkAnnotationLayers.h>
#include <vtkAnnotationLink.h>
#include <vtkDoubleArray.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkIntArray.h>
#include <vtkObject.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "CurrentFlags.h"

using Talmesh::makeRowSelection;

namespace
{

vtkSmartPointer<vtkSelection> inverseSelection(const std::vector<vtkIdType>& unselected)
{
  auto selection = makeRowSelection(unselected);
  selection->GetNode(0)->GetProperties()->Set(vtkSelectionNode::INVERSE(), 1);
  return selection;
}

struct Marks
{
  std::optional<int> enable;
  std::optional<int> hide;
};

void annotate(PlotContainer& container, vtkSelection* selection, const Marks& marks = {})
{
  vtkNew<vtkAnnotation> annotation;
  annotation->SetSelection(selection);
  if (marks.enable)
    annotation->GetInformation()->Set(vtkAnnotation::ENABLE(), *marks.enable);
  if (marks.hide)
    annotation->GetInformation()->Set(vtkAnnotation::HIDE(), *marks.hide);
  container.getAnnotationLink()->GetAnnotationLayers()->AddAnnotation(annotation);
}

Flags flagsWithAnnotation(const Marks& marks)
{
  SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  annotate(plot.container, makeRowSelection({1}), marks);
  return currentFlags(plot.container);
}

} // namespace

TEST(SelectionFlags, AreAllZeroOnAFreshLink)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  EXPECT_EQ(currentFlags(plot.container), Flags({0, 0, 0, 0}));
}

TEST(SelectionFlags, AreNullWithoutLayersAndSelection)
{
  const SampleRuns::Plot plot;
  plot.container.getAnnotationLink()->SetAnnotationLayers(nullptr);
  EXPECT_EQ(plot.container.getCurrentSelection(), nullptr);
}

TEST(SelectionFlags, AreZeroWithLayersThatHoldNoSelection)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(nullptr);
  EXPECT_EQ(currentFlags(plot.container), Flags({0, 0, 0, 0}));
}

TEST(SelectionFlags, HaveOneNamedComponentPerRow)
{
  const SampleRuns::Plot plot(SampleRuns::runs(3, 2));
  const auto flags = vtk::TakeSmartPointer(plot.container.getCurrentSelection());
  ASSERT_NE(flags, nullptr);
  EXPECT_EQ(flags->GetReferenceCount(), 1);
  EXPECT_STREQ(flags->GetName(), "selected points");
  EXPECT_EQ(flags->GetNumberOfComponents(), 1);
  EXPECT_EQ(flags->GetNumberOfTuples(), 6);
}

TEST(SelectionFlags, AreEmptyForAnEmptyTable)
{
  const PlotContainer container(nullptr);
  EXPECT_EQ(currentFlags(container), Flags());
}

TEST(SelectionFlags, MarkTheListedRowsOnce)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 3, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({4, 0, 4}));
  EXPECT_EQ(currentFlags(plot.container), Flags({1, 0, 0, 0, 1, 0}));
}

TEST(SelectionFlags, IgnoreRowsThatTheTableDoesNotHave)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({-1, 2, 4, 1000000}));
  EXPECT_EQ(currentFlags(plot.container), Flags({0, 0, 1, 0}));
}

TEST(SelectionFlags, MarkTheRowsThatAnInverseNodeDoesNotList)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(inverseSelection({2, 0, 17, -3}));
  EXPECT_EQ(currentFlags(plot.container), Flags({0, 1, 0, 1}));
}

TEST(SelectionFlags, MarkEveryRowForAnInverseNodeThatListsNone)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(inverseSelection({}));
  EXPECT_EQ(currentFlags(plot.container), Flags({1, 1, 1, 1}));
}

TEST(SelectionFlags, JoinSeveralNodes)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  auto selection = makeRowSelection({0});
  selection->AddNode(makeRowSelection({3})->GetNode(0));
  plot.container.getAnnotationLink()->SetCurrentSelection(selection);
  EXPECT_EQ(currentFlags(plot.container), Flags({1, 0, 0, 1}));
}

TEST(SelectionFlags, ReadASelectionByValue)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  vtkNew<vtkDoubleArray> values;
  values->SetName("Complex: A");
  values->InsertNextValue(10);
  vtkNew<vtkSelectionNode> node;
  node->SetFieldType(vtkSelectionNode::ROW);
  node->SetContentType(vtkSelectionNode::VALUES);
  node->SetSelectionList(values);
  vtkNew<vtkSelection> selection;
  selection->AddNode(node);
  plot.container.getAnnotationLink()->SetCurrentSelection(selection);
  EXPECT_EQ(currentFlags(plot.container), Flags({0, 0, 1, 0}));
  EXPECT_EQ(selection->GetNode(0)->GetContentType(), vtkSelectionNode::VALUES);
}

TEST(SelectionFlags, AreNullWhenVtkCannotFindTheRows)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  const auto pedigree = makeRowSelection({1});
  pedigree->GetNode(0)->SetContentType(vtkSelectionNode::PEDIGREEIDS);
  plot.container.getAnnotationLink()->SetCurrentSelection(pedigree);
  vtkObject::GlobalWarningDisplayOff();
  EXPECT_EQ(plot.container.getCurrentSelection(), nullptr);
  vtkObject::GlobalWarningDisplayOn();
}

TEST(SelectionFlags, ContainAnAnnotationThatDoesNotSayWhetherItIsEnabled)
{
  EXPECT_EQ(flagsWithAnnotation({}), Flags({0, 1, 0, 0}));
  EXPECT_EQ(flagsWithAnnotation({std::nullopt, 1}), Flags({0, 1, 0, 0}));
}

TEST(SelectionFlags, ContainAnEnabledAnnotationThatIsNotHidden)
{
  EXPECT_EQ(flagsWithAnnotation({1, std::nullopt}), Flags({0, 1, 0, 0}));
  EXPECT_EQ(flagsWithAnnotation({1, 0}), Flags({0, 1, 0, 0}));
}

TEST(SelectionFlags, LeaveOutAnEnabledAnnotationThatIsHidden)
{
  EXPECT_EQ(flagsWithAnnotation({1, 1}), Flags({0, 0, 0, 0}));
}

TEST(SelectionFlags, LeaveOutADisabledAnnotation)
{
  EXPECT_EQ(flagsWithAnnotation({0, std::nullopt}), Flags({0, 0, 0, 0}));
  EXPECT_EQ(flagsWithAnnotation({0, 0}), Flags({0, 0, 0, 0}));
}

TEST(SelectionFlags, UniteSelectionAndAnnotationsWithoutChangingThem)
{
  SampleRuns::Plot plot(SampleRuns::runs(2, 3, 0));
  const auto selected = makeRowSelection({0});
  const auto annotated = makeRowSelection({5});
  plot.container.getAnnotationLink()->SetCurrentSelection(selected);
  annotate(plot.container, annotated);
  annotate(plot.container, nullptr);
  for (int repetition = 0; repetition < 3; ++repetition)
    EXPECT_EQ(currentFlags(plot.container), Flags({1, 0, 0, 0, 0, 1}));
  for (const auto& [selection, row] : {std::pair{selected, 0}, std::pair{annotated, 5}})
  {
    ASSERT_EQ(selection->GetNumberOfNodes(), 1U);
    EXPECT_EQ(SampleRuns::valuesOf(
                  vtkIdTypeArray::SafeDownCast(selection->GetNode(0)->GetSelectionList())),
              Flags({double(row)}));
  }
}

TEST(SelectionFlags, DoNotChangeTheLink)
{
  const SampleRuns::Plot plot(SampleRuns::runs(2, 2, 0));
  plot.container.getAnnotationLink()->SetCurrentSelection(makeRowSelection({1}));
  const vtkMTimeType before = plot.container.getAnnotationLink()->GetMTime();
  currentFlags(plot.container);
  EXPECT_EQ(plot.container.getAnnotationLink()->GetMTime(), before);
}
