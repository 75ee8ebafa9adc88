#include "vtk/vtkCombinedFilterAndSelectedRows.h"
#include "vtk/vtkCombinedFilterOrSelectedRows.h"

#include <vtkAnnotationLink.h>
#include <vtkDoubleArray.h>
#include <vtkExecutive.h>
#include <vtkInformation.h>
#include <vtkInformationVector.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "SelectionBuilders.h"
#include "VtkTestSupport.h"

/// What the two row filters do alike.
namespace
{
using Rows = std::vector<vtkIdType>;

void configure(vtkCombinedFilterOrSelectedRows* filter)
{
  filter->SetTimeColumnIndex(0);
}

void configure(vtkCombinedFilterAndSelectedRows* filter)
{
  filter->SetTimeColumnIndex(0);
  filter->SetParaCount(0);
  filter->SetStride(3);
}

int noSelectionLine(vtkCombinedFilterOrSelectedRows*)
{
  return 119;
}
int noSelectionLine(vtkCombinedFilterAndSelectedRows*)
{
  return 128;
}
int failedConversionLine(vtkCombinedFilterOrSelectedRows*)
{
  return 166;
}
int failedConversionLine(vtkCombinedFilterAndSelectedRows*)
{
  return 186;
}

template <class Filter>
class RowFilter : public ::testing::Test
{
protected:
  void SetUp() override { filter->SetInputData(0, table); }

  bool update() { return filter->GetExecutive()->Update() != 0; }
  Rows output(int port) { return idColumn(filter->GetOutput(port), "row"); }

  vtkNew<Filter> filter;
  vtkSmartPointer<vtkTable> table = makeThreeRuns();
  CapturedVtkOutput vtkOutput;
};

using Filters = ::testing::Types<vtkCombinedFilterOrSelectedRows, vtkCombinedFilterAndSelectedRows>;
} // namespace

TYPED_TEST_SUITE(RowFilter, Filters);

TYPED_TEST(RowFilter, ReportsThatThereIsNoSelection)
{
  configure(this->filter);
  const ErrorLog errors(this->filter);
  EXPECT_FALSE(this->update());
  EXPECT_EQ(onlyMessage(errors),
            expectedMessage(this->filter, noSelectionLine(this->filter),
                            "No vtkSelection or vtkAnnotationLayers provided as input."));
}

TYPED_TEST(RowFilter, SendsErrorsToTheOutputWindowWithoutAnObserver)
{
  configure(this->filter);
  this->update();
  EXPECT_NE(
      this->vtkOutput.text().find("No vtkSelection or vtkAnnotationLayers provided as input."),
      std::string::npos);
}

TYPED_TEST(RowFilter, ReportsAFailedConversion)
{
  configure(this->filter);
  vtkNew<vtkSelectionNode> node;
  node->SetContentType(vtkSelectionNode::THRESHOLDS);
  node->SetFieldType(vtkSelectionNode::ROW);
  node->SetSelectionList(makeColumn<vtkDoubleArray>("no such column", {0, 1}));
  vtkNew<vtkSelection> selection;
  selection->AddNode(node);
  this->filter->SetInputData(1, selection);
  const ErrorLog errors(this->filter);
  EXPECT_FALSE(this->update());
  EXPECT_EQ(onlyMessage(errors), expectedMessage(this->filter, failedConversionLine(this->filter),
                                                 "Selection conversion to INDICES failed."));
  EXPECT_EQ(this->table->GetNumberOfColumns(), 2);
}

TYPED_TEST(RowFilter, LeavesTheOutputsAsTheyWereOnError)
{
  vtkNew<vtkInformationVector> inputs[3];
  vtkNew<vtkInformation> tableInfo;
  tableInfo->Set(vtkDataObject::DATA_OBJECT(), this->table);
  inputs[0]->Append(tableInfo);
  vtkInformationVector* inputVector[] = {inputs[0], inputs[1], inputs[2]};
  vtkNew<vtkInformationVector> outputs;
  const auto earlier = makeTable({{"earlier", {1, 2}}});
  for (int port = 0; port < 2; ++port)
  {
    vtkNew<vtkInformation> info;
    info->Set(vtkDataObject::DATA_OBJECT(), earlier);
    outputs->Append(info);
  }
  const ErrorLog errors(this->filter);
  vtkNew<vtkInformation> request;
  EXPECT_EQ(this->filter->RequestData(request, inputVector, outputs), 0);
  vtkNew<vtkInformation> selectionInfo;
  selectionInfo->Set(vtkDataObject::DATA_OBJECT(), makeRowSelection({0}));
  inputs[1]->Append(selectionInfo);
  EXPECT_EQ(this->filter->RequestData(request, inputVector, outputs), 0) << "no time column";
  EXPECT_EQ(errors.messages.size(), 2u);
  EXPECT_EQ(numbers(earlier, "earlier"), (std::vector<double>{1, 2}));
  EXPECT_EQ(earlier->GetNumberOfColumns(), 1);

  configure(this->filter);
  EXPECT_EQ(this->filter->RequestData(request, inputVector, outputs), 1);
}

TYPED_TEST(RowFilter, NeedsATable)
{
  configure(this->filter);
  this->filter->SetInputConnection(0, nullptr);
  this->filter->SetInputData(1, makeRowSelection({0}));
  EXPECT_FALSE(this->update());
}

TYPED_TEST(RowFilter, TakesATableASelectionAndAnnotations)
{
  EXPECT_EQ(this->filter->GetNumberOfInputPorts(), 3);
  EXPECT_EQ(this->filter->GetNumberOfOutputPorts(), 2);
  const char* const types[] = {"vtkTable", "vtkSelection", "vtkAnnotationLayers"};
  for (int port = 0; port < 3; ++port)
  {
    vtkNew<vtkInformation> info;
    EXPECT_EQ(this->filter->FillInputPortInformation(port, info), 1);
    EXPECT_STREQ(info->Get(vtkAlgorithm::INPUT_REQUIRED_DATA_TYPE()), types[port]);
    EXPECT_EQ(info->Get(vtkAlgorithm::INPUT_IS_OPTIONAL()), port > 0 ? 1 : 0);
  }
  vtkNew<vtkInformation> info;
  EXPECT_EQ(this->filter->FillInputPortInformation(3, info), 0);
  EXPECT_EQ(this->filter->FillInputPortInformation(-1, info), 0);
}

TYPED_TEST(RowFilter, TreatsAnEnabledVisibleAnnotationLikeASelection)
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

TYPED_TEST(RowFilter, CopiesTheInputWhenNoAnnotationContributes)
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

TYPED_TEST(RowFilter, CountsAnAnnotationWithoutASelection)
{
  configure(this->filter);
  this->filter->SetInputData(2, makeLayers({makeAnnotation(nullptr)}));
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->filter->GetOutput(0)->GetNumberOfColumns(), 2);
  EXPECT_EQ(this->filter->GetOutput(0)->GetNumberOfRows(), 0);
}

TYPED_TEST(RowFilter, UnitesSelectionAndAnnotations)
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

TYPED_TEST(RowFilter, KeepsAnnotatedRowsBesideANodeWithoutAList)
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

TYPED_TEST(RowFilter, TakesEveryFieldTypeForRows)
{
  configure(this->filter);
  const auto selection = makeRowSelection({0});
  selection->GetNode(0u)->SetFieldType(vtkSelectionNode::POINT);
  this->filter->SetInputData(1, selection);
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{0}));
  EXPECT_EQ(selection->GetNode(0u)->GetFieldType(), vtkSelectionNode::POINT);
}

TYPED_TEST(RowFilter, ConvertsOtherKindsOfSelection)
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

TYPED_TEST(RowFilter, IgnoresListsThatHoldNoIds)
{
  configure(this->filter);
  const auto selection = makeRowSelection({});
  selection->GetNode(0u)->SetSelectionList(makeColumn<vtkDoubleArray>("ids", {0, 1}));
  this->filter->SetInputData(1, selection);
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->filter->GetOutput(0)->GetNumberOfRows(), 0);
  EXPECT_EQ(this->filter->GetOutput(0)->GetNumberOfColumns(), 2);
}

TYPED_TEST(RowFilter, SkipsIdsOutsideTheRows)
{
  configure(this->filter);
  this->filter->SetInputData(1, makeRowSelection({-1, 0, 9, 4000000000}));
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{0}));
  EXPECT_EQ(this->output(1), (Rows{3, 6}));
}

TYPED_TEST(RowFilter, SelectsAllRowsThatAnInverseNodeDoesNotList)
{
  configure(this->filter);
  this->filter->SetInputData(1, makeRowSelection({1, 2, 4, 5, 6, 7, 8, 70, -4}, true));
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{0, 3}));
  EXPECT_EQ(this->output(1), (Rows{6}));
}

TYPED_TEST(RowFilter, NeitherSharesNorChangesTheSelectionsItIsGiven)
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

TYPED_TEST(RowFilter, ReadsAnAnnotationLink)
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

TYPED_TEST(RowFilter, KeepsEveryTypeOfColumn)
{
  configure(this->filter);
  vtkNew<vtkStringArray> names;
  names->SetName("name");
  vtkNew<vtkDoubleArray> pairs;
  pairs->SetName("pair");
  pairs->SetNumberOfComponents(2);
  for (int row = 0; row < 9; ++row)
  {
    names->InsertNextValue("row " + std::to_string(row));
    pairs->InsertNextTuple2(row, -row);
  }
  this->table->AddColumn(names);
  this->table->AddColumn(pairs);
  this->filter->SetInputData(1, makeRowSelection({0, 1}));
  ASSERT_TRUE(this->update());
  vtkTable* selected = this->filter->GetOutput(0);
  ASSERT_EQ(selected->GetNumberOfColumns(), 4);
  ASSERT_EQ(selected->GetNumberOfRows(), 2);
  auto* outNames = vtkStringArray::SafeDownCast(selected->GetColumnByName("name"));
  auto* outPairs = vtkDoubleArray::SafeDownCast(selected->GetColumnByName("pair"));
  ASSERT_TRUE(outNames && outPairs);
  EXPECT_EQ(outNames->GetValue(1), "row 1");
  EXPECT_EQ(outPairs->GetComponent(1, 0), 1);
  EXPECT_EQ(outPairs->GetComponent(1, 1), -1);
}

TYPED_TEST(RowFilter, AddsRowNumbersToBothOutputsOnDemand)
{
  configure(this->filter);
  this->filter->SetInputData(1, makeRowSelection({0, 1, 4}));
  ASSERT_TRUE(this->update());
  for (int port = 0; port < 2; ++port)
    EXPECT_EQ(this->filter->GetOutput(port)->GetColumnByName("vtkOriginalRowIds"), nullptr);
  this->filter->AddOriginalRowIdsArrayOn();
  ASSERT_TRUE(this->update());
  for (int port = 0; port < 2; ++port)
  {
    EXPECT_FALSE(this->output(port).empty());
    EXPECT_EQ(idColumn(this->filter->GetOutput(port), "vtkOriginalRowIds"), this->output(port));
  }
  EXPECT_EQ(this->table->GetColumnByName("vtkOriginalRowIds"), nullptr);
}

TYPED_TEST(RowFilter, DoesNotPileUpMarkerColumns)
{
  configure(this->filter);
  this->filter->SetInputData(1, makeRowSelection({0}));
  ASSERT_TRUE(this->update());
  const auto columns = this->table->GetNumberOfColumns();
  for (const vtkIdType row : {3, 6, 8})
  {
    this->filter->SetInputData(1, makeRowSelection({row}));
    ASSERT_TRUE(this->update());
    EXPECT_EQ(this->table->GetNumberOfColumns(), columns);
    EXPECT_EQ(this->filter->GetOutput(0)->GetNumberOfColumns(), columns);
    EXPECT_EQ(this->output(0), (Rows{row}));
  }
  EXPECT_EQ(idColumn(this->table, "vtkComplementSelection"), (Rows{0, 0, 1, 0, 0, 1, 0, 0, 0}));
}

TYPED_TEST(RowFilter, CopesWithATableWithoutRowsOrColumns)
{
  configure(this->filter);
  this->filter->SetInputData(1, makeRowSelection({0, 1}, true));
  for (const auto& empty : {makeTable({{"Time", {}}}), makeTable({})})
  {
    this->filter->SetInputData(0, empty);
    ASSERT_TRUE(this->update());
    EXPECT_EQ(this->filter->GetOutput(0)->GetNumberOfRows(), 0);
    EXPECT_EQ(this->filter->GetOutput(1)->GetNumberOfRows(), 0);
  }
  EXPECT_EQ(this->vtkOutput.text(), "");
}

TYPED_TEST(RowFilter, HoldsItsPropertiesAndTellsOnlyChanges)
{
  EXPECT_FALSE(this->filter->GetAddOriginalRowIdsArray());
  EXPECT_EQ(this->filter->GetTimeColumnIndex(), -1);
  auto before = this->filter->GetMTime();
  this->filter->AddOriginalRowIdsArrayOff();
  this->filter->SetTimeColumnIndex(-1);
  EXPECT_EQ(this->filter->GetMTime(), before);
  this->filter->SetAddOriginalRowIdsArray(true);
  EXPECT_GT(this->filter->GetMTime(), before);
  before = this->filter->GetMTime();
  this->filter->SetTimeColumnIndex(2);
  EXPECT_GT(this->filter->GetMTime(), before);
}

TYPED_TEST(RowFilter, PrintsWhetherItAddsRowNumbers)
{
  const auto lastLine = [this]
  {
    std::ostringstream text;
    this->filter->PrintSelf(text, vtkIndent());
    const std::string all = text.str();
    return all.substr(all.rfind('\n', all.size() - 2) + 1);
  };
  EXPECT_EQ(lastLine(), "AddOriginalRowIdsArray: 0\n");
  this->filter->AddOriginalRowIdsArrayOn();
  EXPECT_EQ(lastLine(), "AddOriginalRowIdsArray: 1\n");
  vtkNew<vtkTableAlgorithm> base;
  EXPECT_EQ(printedNames(this->filter).size(), printedNames(base).size() + 1);
  const auto other = vtkSmartPointer<TypeParam>::Take(this->filter->NewInstance());
  EXPECT_STREQ(other->GetClassName(), this->filter->GetClassName());
}
