#include "plot/PlotTable.h"

#include "support/SampleTables.h"

#include <vtkDataSetAttributes.h>
#include <vtkDoubleArray.h>
#include <vtkFieldData.h>
#include <vtkIdTypeArray.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

namespace
{

using Talmesh::plot::deepCopyOf;

TEST(PlotTable, IsCopiedWithItsAttributes)
{
  const auto table = tableOf({{"a", {1, 2}}, {"b", {3, 4}}, {"b", {5, 6}}});
  vtkNew<vtkIdTypeArray> ids;
  ids->SetName("ids");
  ids->InsertNextValue(70);
  ids->InsertNextValue(71);
  table->GetRowData()->SetPedigreeIds(ids);
  table->GetRowData()->SetActiveScalars("b");
  const auto copy = deepCopyOf(table);
  vtkDataSetAttributes* rows = copy->GetRowData();
  ASSERT_NE(rows->GetPedigreeIds(), nullptr);
  EXPECT_STREQ(rows->GetPedigreeIds()->GetName(), "ids");
  EXPECT_NE(rows->GetPedigreeIds(), ids.Get()) << "a copy of its own";
  EXPECT_EQ(rows->GetPedigreeIds()->GetVariantValue(1), 71);
  ASSERT_NE(rows->GetScalars(), nullptr);
  EXPECT_EQ(rows->GetScalars(), copy->GetColumn(1));
  EXPECT_EQ(rows->GetVectors(), nullptr);
}

TEST(PlotTable, IsCopiedWithWhatIsSaidOfAllRows)
{
  const auto table = tableOf({{"a", {1, 2}}});
  vtkNew<vtkStringArray> origin;
  origin->SetName("origin");
  origin->InsertNextValue("a measurement");
  table->GetFieldData()->AddArray(origin);
  const auto copy = deepCopyOf(table);
  origin->SetValue(0, "changed");
  auto* copied = vtkStringArray::SafeDownCast(copy->GetFieldData()->GetAbstractArray("origin"));
  ASSERT_NE(copied, nullptr);
  EXPECT_EQ(copied->GetValue(0), "a measurement");
}

} // namespace
