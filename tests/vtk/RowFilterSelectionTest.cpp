#include "RowFilterFixture.h"

template <class Filter>
class RowFilterSelection : public RowFilter<Filter>
{
};

TYPED_TEST_SUITE(RowFilterSelection, Filters);

TYPED_TEST(RowFilterSelection, TreatsAnEnabledVisibleAnnotationLikeASelection)
{
  configure(this->filter);
  this->filter->SetInputData(1, makeRowSelection({0, 1, 4}));
  ASSERT_TRUE(this->update());
  const Rows selected = this->output(0);
  const Rows compared = this->output(1);
  EXPECT_FALSE(selected.empty());
  EXPECT_FALSE(compared.empty());

  const auto annotated = makeRowSelection({0, 1, 4});
  for (const auto& annotation :
       {makeAnnotation(annotated, Says::Yes, Says::No), makeAnnotation(annotated, Says::Yes),
        makeAnnotation(annotated), makeAnnotation(annotated, Says::Nothing, Says::Yes)})
  {
    vtkNew<TypeParam> other;
    configure(other);
    other->SetInputData(0, makeThreeRuns());
    other->SetInputData(2, makeLayers({annotation}));
    other->Update();
    EXPECT_EQ(idColumn(other->GetOutput(0), "row"), selected);
    EXPECT_EQ(idColumn(other->GetOutput(1), "row"), compared);
  }
}

TYPED_TEST(RowFilterSelection, CopiesTheInputWhenNoAnnotationContributes)
{
  configure(this->filter);
  const auto rows = makeRowSelection({0});
  this->filter->AddOriginalRowIdsArrayOn();
  this->filter->SetInputData(
      2, makeLayers({makeAnnotation(rows, Says::Yes, Says::Yes), makeAnnotation(rows, Says::No),
                     makeAnnotation(rows, Says::No, Says::No)}));
  ASSERT_TRUE(this->update());
  vtkTable* copy = this->filter->GetOutput(0);
  EXPECT_EQ(copy->GetNumberOfColumns(), 2);
  EXPECT_EQ(copy->GetColumn(0), this->table->GetColumn(0)) << "shared, not copied";
  EXPECT_EQ(this->filter->GetOutput(1)->GetNumberOfColumns(), 0);
  EXPECT_EQ(this->table->GetNumberOfColumns(), 2);
}

TYPED_TEST(RowFilterSelection, CountsAnAnnotationWithoutASelection)
{
  configure(this->filter);
  this->filter->SetInputData(2, makeLayers({makeAnnotation(nullptr)}));
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->filter->GetOutput(0)->GetNumberOfColumns(), 2);
  EXPECT_EQ(this->filter->GetOutput(0)->GetNumberOfRows(), 0);
}

TYPED_TEST(RowFilterSelection, UnitesSelectionAndAnnotations)
{
  configure(this->filter);
  this->filter->SetInputData(1, makeRowSelection({0}));
  this->filter->SetInputData(2, makeLayers({makeAnnotation(makeRowSelection({3})),
                                            makeAnnotation(makeRowSelection({6}), Says::No),
                                            makeAnnotation(makeRowSelection({0, 3}))}));
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{0, 3}));
  EXPECT_EQ(this->output(1), (Rows{6}));
}

TYPED_TEST(RowFilterSelection, KeepsAnnotatedRowsBesideANodeWithoutAList)
{
  configure(this->filter);
  vtkNew<vtkSelectionNode> node;
  node->SetContentType(vtkSelectionNode::INDICES);
  node->SetFieldType(vtkSelectionNode::ROW);
  vtkNew<vtkSelection> listless;
  listless->AddNode(node);
  this->filter->SetInputData(1, listless);
  this->filter->SetInputData(
      2, makeLayers({makeAnnotation(makeRowSelection({0})), makeAnnotation(listless)}));
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{0}));
  EXPECT_EQ(listless->GetNumberOfNodes(), 1u);
  EXPECT_EQ(this->vtkOutput.text(), "");
}

TYPED_TEST(RowFilterSelection, TakesEveryFieldTypeForRows)
{
  configure(this->filter);
  const auto selection = makeRowSelection({0});
  selection->GetNode(0u)->SetFieldType(vtkSelectionNode::POINT);
  this->filter->SetInputData(1, selection);
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{0}));
  EXPECT_EQ(selection->GetNode(0u)->GetFieldType(), vtkSelectionNode::POINT);
}

TYPED_TEST(RowFilterSelection, ConvertsOtherKindsOfSelection)
{
  configure(this->filter);
  vtkNew<vtkSelectionNode> node;
  node->SetContentType(vtkSelectionNode::THRESHOLDS);
  node->SetFieldType(vtkSelectionNode::ROW);
  node->SetSelectionList(makeColumn<vtkDoubleArray>("Time", {0.5, 1.5}));
  vtkNew<vtkSelection> selection;
  selection->AddNode(node);
  this->filter->SetInputData(1, selection);
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{1, 4, 7}));
}

TYPED_TEST(RowFilterSelection, IgnoresListsThatHoldNoIds)
{
  configure(this->filter);
  const auto selection = makeRowSelection({});
  selection->GetNode(0u)->SetSelectionList(makeColumn<vtkDoubleArray>("ids", {0, 1}));
  this->filter->SetInputData(1, selection);
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->filter->GetOutput(0)->GetNumberOfRows(), 0);
  EXPECT_EQ(this->filter->GetOutput(0)->GetNumberOfColumns(), 2);
}

TYPED_TEST(RowFilterSelection, SkipsIdsOutsideTheRows)
{
  configure(this->filter);
  this->filter->SetInputData(1, makeRowSelection({-1, 0, 9, 4000000000}));
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{0}));
  EXPECT_EQ(this->output(1), (Rows{3, 6}));
}

TYPED_TEST(RowFilterSelection, SelectsAllRowsThatAnInverseNodeDoesNotList)
{
  configure(this->filter);
  this->filter->SetInputData(1, makeRowSelection({1, 2, 4, 5, 6, 7, 8, 70, -4}, true));
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{0, 3}));
  EXPECT_EQ(this->output(1), (Rows{6}));
}

TYPED_TEST(RowFilterSelection, NeitherSharesNorChangesTheSelectionsItIsGiven)
{
  configure(this->filter);
  const auto selection = makeRowSelection({0, 1});
  selection->GetNode(0u)->SetFieldType(vtkSelectionNode::POINT);
  const auto annotated = makeRowSelection({4});
  annotated->GetNode(0u)->SetFieldType(vtkSelectionNode::POINT);
  const auto selectionBefore = describe(selection);
  const auto annotatedBefore = describe(annotated);
  const auto before = selection->GetMTime();
  this->filter->SetInputData(1, selection);
  this->filter->SetInputData(2, makeLayers({makeAnnotation(annotated)}));
  for (int run = 0; run < 3; ++run)
  {
    this->filter->Modified();
    ASSERT_TRUE(this->update());
  }
  EXPECT_EQ(describe(selection), selectionBefore);
  EXPECT_EQ(describe(annotated), annotatedBefore);
  EXPECT_EQ(selection->GetMTime(), before);
  EXPECT_EQ(selection->GetNode(0u)->GetReferenceCount(), 1);
  EXPECT_EQ(selection->GetNode(0u)->GetSelectionList()->GetReferenceCount(), 1);
}

TYPED_TEST(RowFilterSelection, ReadsAnAnnotationLink)
{
  configure(this->filter);
  vtkNew<vtkAnnotationLink> link;
  link->SetCurrentSelection(makeRowSelection({0}));
  link->GetAnnotationLayers()->AddAnnotation(makeAnnotation(makeRowSelection({3})));
  this->filter->SetSelectionConnection(link->GetOutputPort(2));
  this->filter->SetAnnotationLayersConnection(link->GetOutputPort(0));
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{0, 3}));

  link->SetCurrentSelection(makeRowSelection({6}));
  ASSERT_TRUE(this->update());
  std::set<vtkIdType> selected;
  for (const vtkIdType row : this->output(0))
    selected.insert(row);
  EXPECT_EQ(selected, (std::set<vtkIdType>{3, 6}));
  EXPECT_EQ(describe(link->GetCurrentSelection())[0].ids, (Rows{6}));
}
