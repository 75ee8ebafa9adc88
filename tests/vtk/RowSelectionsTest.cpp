#include "vtk/RowSelections.h"

#include "support/SampleRuns.h"
#include "support/SampleTables.h"

#include <vtkAnnotationLink.h>
#include <vtkContextScene.h>
#include <vtkInformation.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <gtest/gtest.h>

#include <vector>

using Talmesh::combineRows;
using Talmesh::listSelectedRows;
using Talmesh::makeRowSelection;
using Talmesh::selectRows;

namespace
{

using Rows = std::vector<bool>;
using Values = std::vector<double>;

TEST(RowSelections, CombineRows)
{
  const Rows before = {false, false, true, true};
  const Rows hit = {false, true, false, true};
  EXPECT_EQ(combineRows(before, hit, vtkContextScene::SELECTION_TOGGLE + 1), hit);
  EXPECT_EQ(combineRows(before, hit, vtkContextScene::SELECTION_DEFAULT), hit);
  EXPECT_EQ(combineRows(before, hit, vtkContextScene::SELECTION_ADDITION),
            (Rows{false, true, true, true}));
  EXPECT_EQ(combineRows(before, hit, vtkContextScene::SELECTION_SUBTRACTION),
            (Rows{false, false, true, false}));
  EXPECT_EQ(combineRows(before, hit, vtkContextScene::SELECTION_TOGGLE),
            (Rows{false, true, true, false}));
}

TEST(RowSelections, TakeRowsThatNobodySpeaksOfAsNotHit)
{
  const Rows before = {true, false, true};
  EXPECT_EQ(combineRows(before, {false}, vtkContextScene::SELECTION_TOGGLE), before);
  EXPECT_EQ(combineRows(before, {}, vtkContextScene::SELECTION_DEFAULT), Rows(3, false));
}

/// A link and a table of five rows.
class RowSelectionsOfALink : public ::testing::Test
{
protected:
  Values rows() { return SampleRuns::valuesOf(listSelectedRows(link, table)); }

  vtkSmartPointer<vtkTable> table = plainTable();
  vtkNew<vtkAnnotationLink> link;
};

TEST_F(RowSelectionsOfALink, ListWhatEveryNodeNames)
{
  EXPECT_EQ(rows(), Values());
  const auto selection = makeRowSelection({4, 1, 1, 77, -2});
  selection->AddNode(makeRowSelection({0})->GetNode(0));
  link->SetCurrentSelection(selection);
  EXPECT_EQ(rows(), Values({0, 1, 4}));
  const auto inverse = makeRowSelection({1});
  inverse->GetNode(0)->GetProperties()->Set(vtkSelectionNode::INVERSE(), 1);
  link->SetCurrentSelection(inverse);
  EXPECT_EQ(rows(), Values({0, 2, 3, 4}));
  link->SetCurrentSelection(nullptr);
  EXPECT_EQ(rows(), Values());
}

TEST_F(RowSelectionsOfALink, SelectWithoutTouchingTheSelectionBefore)
{
  const auto before = makeRowSelection({3, 1});
  link->SetCurrentSelection(before);
  selectRows(link, table, {true, true, false, false, false}, vtkContextScene::SELECTION_TOGGLE);
  EXPECT_EQ(rows(), Values({0, 3}));
  EXPECT_NE(link->GetCurrentSelection(), before);
  EXPECT_EQ(SampleRuns::valuesOf(before->GetNode(0)->GetSelectionList()), Values({3, 1}));
  vtkSelectionNode* node = link->GetCurrentSelection()->GetNode(0);
  EXPECT_EQ(node->GetFieldType(), vtkSelectionNode::ROW);
  EXPECT_EQ(node->GetContentType(), vtkSelectionNode::INDICES);
}

} // namespace
