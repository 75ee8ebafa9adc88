#include "FuzzChoices.h"

#include <vtkCharArray.h>
#include <vtkDataSetAttributes.h>
#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkIntArray.h>
#include <vtkNew.h>
#include <vtkSelectionNode.h>
#include <vtkStringArray.h>

#include <array>
#include <iterator>
#include <limits>

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr int mostRows = 25;
constexpr int mostColumns = 9;

constexpr std::array<double, 20> oddNumbers = {
    nan,    infinity, -infinity, 0.0,      -0.0, 1.0,   1.0,  1e-12, 1e12,  1e-310,
    1e-300, 1e300,    1.7e308,   -1.7e308, 1e10, 3.0e9, -1.0, 0.5,   1e-30, 9.2e18};

constexpr std::array<const char*, 16> names = {"x",
                                               "y",
                                               "Time",
                                               "Time [s]",
                                               ": Time [s]",
                                               ": Run Index",
                                               "Parameter: k1",
                                               "Parameter: k2",
                                               "Molecule: A",
                                               "selected points",
                                               "vtkRemainderSelection",
                                               "vtkComplementSelection",
                                               "Name",
                                               "error",
                                               "say \"no\"",
                                               ""};

vtkSmartPointer<vtkAbstractArray> emptyArray(int type)
{
  switch (type)
  {
  case 1:
    return vtkSmartPointer<vtkFloatArray>::New();
  case 2:
    return vtkSmartPointer<vtkIntArray>::New();
  case 3:
    return vtkSmartPointer<vtkIdTypeArray>::New();
  case 4:
    return vtkSmartPointer<vtkStringArray>::New();
  case 5:
    return vtkSmartPointer<vtkCharArray>::New();
  default:
    return vtkSmartPointer<vtkDoubleArray>::New();
  }
}

} // namespace

FuzzChoices::FuzzChoices(const std::uint8_t* bytes, std::size_t size)
    : next(bytes)
    , left(size)
{
}

int FuzzChoices::pick(int count)
{
  if (left == 0 || count < 2)
    return 0;
  --left;
  return *next++ % count;
}

double FuzzChoices::number()
{
  const int kind = pick(4);
  if (kind == 0)
    return oddNumbers[static_cast<std::size_t>(pick(static_cast<int>(oddNumbers.size())))];
  if (kind == 1)
    return pick(256) / 16.0 - 4.0;
  return pick(16);
}

std::string FuzzChoices::name()
{
  return names[static_cast<std::size_t>(pick(static_cast<int>(names.size())))];
}

std::vector<int> FuzzChoices::columns()
{
  std::vector<int> list;
  for (int i = pick(5); i > 0; --i)
    list.push_back(column());
  return list;
}

std::vector<double> FuzzChoices::numbers(int most)
{
  std::vector<double> list;
  for (int i = pick(most); i > 0; --i)
    list.push_back(number());
  return list;
}

Talmesh::TypedConcentrationName FuzzChoices::item()
{
  constexpr std::array<const char*, 5> items = {"A", "k1", "Time [s]", "Run Index", "Value"};
  const auto kind = static_cast<Talmesh::DataType>(pick(7));
  return {kind, items[static_cast<std::size_t>(pick(static_cast<int>(items.size())))]};
}

std::vector<Talmesh::TypedConcentrationName> FuzzChoices::items()
{
  std::vector<Talmesh::TypedConcentrationName> list;
  for (int i = pick(8); i > 0; --i)
    list.push_back(item());
  return list;
}

vtkSmartPointer<vtkAbstractArray> FuzzChoices::array(int rows)
{
  vtkSmartPointer<vtkAbstractArray> array = emptyArray(pick(9));
  if (pick(12) == 1)
    array->SetNumberOfComponents(2);
  array->SetNumberOfTuples(rows);
  // Short inputs fill long columns: the later values follow from the first ones.
  const std::vector<double> values = numbers(12);
  for (vtkIdType i = 0; i < array->GetNumberOfValues(); ++i)
  {
    const auto place = static_cast<std::size_t>(i);
    const double value =
        values.empty() ? static_cast<double>(i / 3) : values[place % values.size()];
    if (auto* numbersOfIt = vtkDataArray::SafeDownCast(array))
    {
      const bool floating = numbersOfIt->IsA("vtkDoubleArray") || numbersOfIt->IsA("vtkFloatArray");
      const double fitting = floating ? value : static_cast<double>(i % 3);
      numbersOfIt->SetVariantValue(i, vtkVariant(fitting));
    }
    else
      array->SetVariantValue(i, vtkVariant("text"));
  }
  if (pick(10) != 1)
    array->SetName(name().c_str());
  return array;
}

vtkSmartPointer<vtkTable> FuzzChoices::table()
{
  auto made = vtkSmartPointer<vtkTable>::New();
  const int rows = pick(mostRows);
  std::vector<vtkSmartPointer<vtkAbstractArray>> arrays;
  for (int i = pick(mostColumns); i > 0; --i)
  {
    arrays.push_back(array(rows));
    const std::string arrayName = arrays.back()->GetName() ? arrays.back()->GetName() : "";
    arrays.back()->SetName(nullptr);
    made->GetRowData()->AddArray(arrays.back());
    if (pick(10) != 1)
      arrays.back()->SetName(arrayName.c_str());
  }
  // Nobody keeps a client from it.
  if (!arrays.empty() && pick(6) == 1)
    arrays[static_cast<std::size_t>(pick(static_cast<int>(arrays.size())))]->SetNumberOfTuples(
        pick(rows + 1));
  return made;
}

vtkSmartPointer<vtkSelection> FuzzChoices::selection()
{
  auto made = vtkSmartPointer<vtkSelection>::New();
  for (int nodes = pick(3); nodes >= 0; --nodes)
  {
    vtkNew<vtkSelectionNode> node;
    node->SetFieldType(pick(8) == 1 ? vtkSelectionNode::POINT : vtkSelectionNode::ROW);
    constexpr std::array<int, 4> contents = {vtkSelectionNode::INDICES, vtkSelectionNode::INDICES,
                                             vtkSelectionNode::VALUES,
                                             vtkSelectionNode::PEDIGREEIDS};
    node->SetContentType(contents[static_cast<std::size_t>(pick(4))]);
    if (pick(6) == 1)
      node->GetProperties()->Set(vtkSelectionNode::INVERSE(), 1);
    vtkNew<vtkIdTypeArray> list;
    if (flip())
      list->SetName(name().c_str());
    for (int i = pick(6); i > 0; --i)
      list->InsertNextValue(pick(8) == 1 ? -pick(3) : pick(mostRows + 5));
    if (pick(10) != 1)
      node->SetSelectionList(list);
    made->AddNode(node);
  }
  return made;
}
