#include "RowFilterFixture.h"

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

TYPED_TEST(RowFilter, FillsTheCellsThatAShortColumnDoesNotHave)
{
  configure(this->filter);
  vtkNew<vtkStringArray> names;
  names->SetName("name");
  names->InsertNextValue("row 0");
  vtkNew<vtkFloatArray> pairs;
  pairs->SetName("pair");
  pairs->SetNumberOfComponents(2);
  pairs->InsertNextTuple2(0.5, -0.5);
  // A table refuses such columns, but its data does not.
  vtkDataSetAttributes* data = this->table->GetRowData();
  data->AddArray(names);
  data->AddArray(pairs);
  data->AddArray(makeColumn<vtkDoubleArray>("number", {1.5}));
  data->AddArray(makeColumn<vtkIntArray>("count", {7}));
  data->AddArray(makeColumn<vtkDoubleArray>("nothing", {}));
  this->filter->SetInputData(1, makeRowSelection({0, 1}));
  ASSERT_TRUE(this->update());
  vtkTable* selected = this->filter->GetOutput(0);
  ASSERT_EQ(this->output(0), (Rows{0, 1}));
  for (vtkIdType column = 0; column < selected->GetNumberOfColumns(); ++column)
    EXPECT_EQ(selected->GetColumn(column)->GetNumberOfTuples(), 2) << column;
  EXPECT_EQ(selected->GetValueByName(0, "name").ToString(), "row 0");
  EXPECT_EQ(selected->GetValueByName(1, "name").ToString(), "");
  auto* outPairs = vtkFloatArray::SafeDownCast(selected->GetColumnByName("pair"));
  EXPECT_EQ(outPairs->GetComponent(0, 1), -0.5);
  EXPECT_TRUE(std::isnan(outPairs->GetComponent(1, 0)));
  EXPECT_TRUE(std::isnan(outPairs->GetComponent(1, 1)));
  EXPECT_EQ(numbers(selected, "number")[0], 1.5);
  EXPECT_TRUE(std::isnan(numbers(selected, "number")[1]));
  EXPECT_EQ(numbers(selected, "count"), (std::vector<double>{7, 0}));
  EXPECT_TRUE(std::isnan(numbers(selected, "nothing")[0]));
}

TYPED_TEST(RowFilter, TakesTimesThatAShortColumnDoesNotHaveForNone)
{
  configure(this->filter);
  this->table->GetRowData()->AddArray(makeColumn<vtkDoubleArray>("short", {0, 1, 2, 0}));
  this->filter->SetTimeColumnIndex(2);
  this->filter->SetInputData(1, makeRowSelection({0}));
  ASSERT_TRUE(this->update());
  EXPECT_EQ(this->output(0), (Rows{0}));
  EXPECT_EQ(this->output(1), (Rows{3}));
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
