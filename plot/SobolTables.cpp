#include "plot/SobolTables.h"

#include "external/ColumnNames.h"
#include "external/SobolPostProcessResult.h"
#include "plot/TableColumns.h"

#include <vtkStringArray.h>
#include <vtkTable.h>

#include <limits>
#include <sstream>
#include <vector>

namespace Talmesh::plot
{

namespace
{

template <typename Value>
Value entry(const std::vector<Value>& values, std::size_t position, const Value& missing = {})
{
  return position < values.size() ? values[position] : missing;
}

template <typename Value>
std::vector<Value> contents(const std::shared_ptr<std::vector<Value>>& values)
{
  return values ? *values : std::vector<Value>();
}

/// Estimates of indices may fall below 0, which an index cannot. The comparison keeps NaN.
double clamped(double value)
{
  return value < 0.0 ? 0.0 : value;
}

class Slice
{
public:
  Slice(const SobolPostProcessResult& result, SobolIndex index)
      : indices(index == SobolIndex::Total ? result.total.get() : result.firstOrder.get())
  {
  }

  double at(std::size_t output, std::size_t timePoint, std::size_t parameter) const
  {
    constexpr double missing = std::numeric_limits<double>::quiet_NaN();
    if (!indices || output >= indices->size() || timePoint >= (*indices)[output].size())
      return missing;
    return clamped(entry((*indices)[output][timePoint], parameter, missing));
  }

private:
  const SobolPostProcessResult::Indices* indices;
};

std::vector<std::size_t> shownOutputs(const SobolPostProcessResult& result)
{
  std::vector<std::size_t> shown;
  for (std::size_t i = 0; i + 1 < result.outputs.size(); ++i)
  {
    const DataType type = result.outputs[i].first;
    if (type == Molecule || type == ComplexWithMolecule || type == Pattern)
      shown.push_back(i);
  }
  return shown;
}

std::string totalPrefix(SobolIndex index)
{
  return index == SobolIndex::Total ? "Total " : "";
}

} // namespace

vtkSmartPointer<vtkTable> sobolTimeSeriesTable(const SobolPostProcessResult& result,
                                               SobolIndex index, std::size_t output)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  const Slice slice(result, index);
  const std::vector<double> times = contents(result.timePoints);
  for (std::size_t p = 0; p < result.parameterValues.size(); ++p)
  {
    std::vector<double> values;
    for (std::size_t t = 0; t < times.size(); ++t)
      values.push_back(slice.at(output, t, p));
    table->AddColumn(makeFloatColumn(entry(result.parameterNames, p), values));
  }
  table->AddColumn(makeFloatColumn(derivedTimeName, times));
  return table;
}

vtkSmartPointer<vtkTable> sobolTimePointTable(const SobolPostProcessResult& result,
                                              SobolIndex index, std::size_t timePoint)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  const Slice slice(result, index);
  const std::vector<std::size_t> outputs = shownOutputs(result);
  for (std::size_t p = 0; p < result.parameterValues.size(); ++p)
  {
    std::vector<double> values;
    for (const std::size_t output : outputs)
      values.push_back(slice.at(output, timePoint, p));
    table->AddColumn(makeFloatColumn(entry(result.parameterNames, p), values));
  }
  vtkNew<vtkStringArray> names;
  names->SetName("Name");
  for (const std::size_t output : outputs)
    names->InsertNextValue(selectionPairToString(result.outputs[output]));
  table->AddColumn(names);
  return table;
}

std::string sobolTimeSeriesTitle(const SobolPostProcessResult& result, SobolIndex index,
                                 std::size_t output)
{
  const std::string label =
      output < result.outputs.size() ? selectionPairToString(result.outputs[output]) : "";
  return totalPrefix(index) + "Sensitivity of " + label;
}

std::string sobolTimePointTitle(const SobolPostProcessResult& result, SobolIndex index,
                                std::size_t timePoint)
{
  std::ostringstream title;
  title << totalPrefix(index)
        << "Sensitivities at t= " << entry(contents(result.timePoints), timePoint) << " s";
  return title.str();
}

} // namespace Talmesh::plot
