#include "support/SampleRuns.h"

#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"

#include <vtkDataArray.h>
#include <vtkIdTypeArray.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>

#include <algorithm>
#include <numeric>

namespace SampleRuns
{

namespace
{

std::vector<double> columnValues(const Shape& shape, int column)
{
  std::vector<double> values;
  for (std::size_t run = 0; run < shape.runIndices.size(); ++run)
  {
    for (int point = 0; point < shape.stride; ++point)
      values.push_back(value(shape, column, static_cast<int>(run), point));
  }
  return values;
}

} // namespace

Shape runs(int count, int stride, int parameters)
{
  std::vector<int> indices(static_cast<std::size_t>(count));
  std::iota(indices.begin(), indices.end(), 0);
  return indexedRuns(std::move(indices), stride, parameters);
}

Shape indexedRuns(std::vector<int> runIndices, int stride, int parameters)
{
  Shape shape;
  shape.runIndices = std::move(runIndices);
  shape.stride = stride;
  shape.parameters = parameters;
  return shape;
}

std::vector<Talmesh::TypedConcentrationName> items(const Shape& shape)
{
  std::vector<Talmesh::TypedConcentrationName> names{{Talmesh::Complex, "A"},
                                                     {Talmesh::Molecule, "B"},
                                                     {Talmesh::TimeOrValue, "Time [s]"},
                                                     {Talmesh::TimeOrValue, "Run Index"}};
  for (int parameter = 1; parameter <= shape.parameters; ++parameter)
    names.emplace_back(Talmesh::Parameter, "k" + std::to_string(parameter));
  return names;
}

double value(const Shape& shape, int column, int run, int point)
{
  switch (column)
  {
  case complexColumn:
    return 10 * run + point;
  case moleculeColumn:
    return -(10 * run + point);
  case timeColumn:
    return point;
  case runIndexColumn:
    return shape.runIndices.at(static_cast<std::size_t>(run));
  default:
    return (run + 1) * (column - firstParameterColumn + 1);
  }
}

vtkSmartPointer<vtkTable> table(const Shape& shape)
{
  auto result = vtkSmartPointer<vtkTable>::New();
  for (const auto& item : items(shape))
    result->AddColumn(
        Talmesh::plot::makeColumn(Talmesh::selectionPairToString(item),
                                  columnValues(shape, int(result->GetNumberOfColumns()))));
  return result;
}

boost::shared_ptr<LinePlotTable> lineTable(const Shape& shape)
{
  boost::shared_ptr<LinePlotTable> lines(new LinePlotTable);
  lines->items = items(shape);
  lines->numberOfTrajectories = shape.runIndices.size();
  lines->pointsPerTrajectory = static_cast<std::size_t>(shape.stride);
  lines->parameterRanges = parameterBounds(shape);
  for (std::size_t column = 0; column < lines->items.size(); ++column)
  {
    const std::vector<double> values = columnValues(shape, static_cast<int>(column));
    lines->values.push_back(new double[values.size()]);
    std::copy(values.begin(), values.end(), lines->values.back());
  }
  return lines;
}

std::vector<std::pair<double, double>> parameterBounds(const Shape& shape)
{
  std::vector<std::pair<double, double>> bounds;
  const auto count = static_cast<double>(shape.runIndices.size());
  for (int parameter = 1; parameter <= shape.parameters; ++parameter)
    bounds.emplace_back(parameter, parameter * count);
  return bounds;
}

void load(PlotContainer& container, const Shape& shape)
{
  stateOf(container).columnItems = items(shape);
  stateOf(container).parameterBounds = parameterBounds(shape);
  const bool wasBlocked = container.getMetaData()->blockSignals(true);
  container.getMetaData()->setStride(shape.stride);
  container.getMetaData()->blockSignals(wasBlocked);
  container.setPlotData(table(shape));
}

Plot::Plot(const Shape& shape)
{
  container.setScene(scene);
  load(container, shape);
  container.redraw();
}

std::vector<double> valuesOf(vtkAbstractArray* column)
{
  std::vector<double> values;
  auto* numbers = vtkDataArray::SafeDownCast(column);
  for (vtkIdType row = 0; numbers && row < numbers->GetNumberOfTuples(); ++row)
    values.push_back(numbers->GetComponent(row, 0));
  return values;
}

std::vector<double> valuesOf(vtkTable* table, const std::string& column)
{
  return valuesOf(Talmesh::plot::columnNamed(table, column));
}

std::set<vtkIdType> selectedRows(const PlotContainer& container)
{
  std::set<vtkIdType> rows;
  vtkSelection* selection = container.getAnnotationLink()->GetCurrentSelection();
  for (unsigned int i = 0; selection && i < selection->GetNumberOfNodes(); ++i)
  {
    auto* list = vtkIdTypeArray::SafeDownCast(selection->GetNode(i)->GetSelectionList());
    for (vtkIdType k = 0; list && k < list->GetNumberOfValues(); ++k)
      rows.insert(list->GetValue(k));
  }
  return rows;
}

} // namespace SampleRuns
