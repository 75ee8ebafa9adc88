#include "vtk/vtkShapeKMeansStatistics.h"

#include "external/vtkKMeansPearson.h"
#include "stats/ShapeClusters.h"

#include <vtkDataArray.h>
#include <vtkDoubleArray.h>
#include <vtkIdTypeArray.h>
#include <vtkInformation.h>
#include <vtkIntArray.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkSmartPointer.h>
#include <vtkStatisticsAlgorithmPrivate.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <cstring>
#include <optional>
#include <string>
#include <vector>

vtkStandardNewMacro(vtkShapeKMeansStatistics);

namespace
{
/// Columns of a model in front of the coordinates: run, K, iterations, error and cardinality.
constexpr vtkIdType modelColumns = 5;
constexpr vtkIdType clusterCountColumn = 1;

using Columns = std::vector<vtkDataArray*>;

/// Requested columns as one matrix, a row per observation.
class ObservationMatrix
{
public:
  ObservationMatrix(const Columns& columns, vtkIdType rows)
  {
    for (vtkDataArray* column : columns)
      positions += static_cast<std::size_t>(column->GetNumberOfComponents());
    count = static_cast<std::size_t>(rows);
    auto* doubles = columns.size() == 1 ? vtkDoubleArray::FastDownCast(columns[0]) : nullptr;
    if (doubles)
    {
      values = doubles->GetPointer(0);
      return;
    }
    copy.resize(count * positions);
    std::size_t position = 0;
    for (vtkDataArray* column : columns)
    {
      for (int component = 0; component < column->GetNumberOfComponents(); ++component, ++position)
      {
        for (std::size_t row = 0; row < count; ++row)
          copy[row * positions + position] =
              column->GetComponent(static_cast<vtkIdType>(row), component);
      }
    }
    values = copy.data();
  }

  Talmesh::stats::Observations view() const { return {values, count, positions}; }

private:
  std::vector<double> copy;
  const double* values = nullptr;
  std::size_t count = 0;
  std::size_t positions = 0;
};

/// The columns of `table` that `isWanted`, in its order; empty if one is not numeric.
template <class Condition>
Columns numericColumns(vtkTable* table, const Condition& isWanted)
{
  Columns columns;
  for (vtkIdType i = 0; i < table->GetNumberOfColumns(); ++i)
  {
    vtkAbstractArray* column = table->GetColumn(i);
    if (!column->GetName() || !isWanted(column->GetName()))
      continue;
    columns.push_back(vtkDataArray::SafeDownCast(column));
    if (!columns.back())
      return {};
  }
  return columns;
}

vtkSmartPointer<vtkIdTypeArray> idColumn(const char* name, std::size_t count, vtkIdType value)
{
  auto column = vtkSmartPointer<vtkIdTypeArray>::New();
  column->SetName(name);
  column->SetNumberOfValues(static_cast<vtkIdType>(count));
  column->Fill(static_cast<double>(value));
  return column;
}

/// The next coordinates of all centres, as many as `like` has components.
vtkSmartPointer<vtkDoubleArray> centreColumn(const Talmesh::stats::ClusterCentres& centres,
                                             std::size_t positions, std::size_t first,
                                             vtkDataArray* like)
{
  auto column = vtkSmartPointer<vtkDoubleArray>::New();
  column->SetName(like->GetName());
  column->SetNumberOfComponents(like->GetNumberOfComponents());
  column->SetNumberOfTuples(static_cast<vtkIdType>(centres.clusters));
  for (std::size_t cluster = 0; cluster < centres.clusters; ++cluster)
    column->SetTypedTuple(static_cast<vtkIdType>(cluster),
                          centres.values.data() + cluster * positions + first);
  return column;
}

vtkSmartPointer<vtkTable> modelOf(const Talmesh::stats::ClusterCentres& centres,
                                  const Columns& columns, std::size_t positions,
                                  const char* clusterCountName)
{
  const std::size_t clusters = centres.clusters;
  auto model = vtkSmartPointer<vtkTable>::New();
  model->AddColumn(idColumn("Run ID", clusters, 0));
  model->AddColumn(idColumn(clusterCountName, clusters, static_cast<vtkIdType>(clusters)));
  model->AddColumn(idColumn("Iterations", clusters, centres.iterations));
  vtkNew<vtkDoubleArray> errors;
  errors->SetName("Error");
  const auto members = idColumn("Cardinality", clusters, 0);
  for (std::size_t cluster = 0; cluster < clusters; ++cluster)
  {
    errors->InsertNextValue(centres.errors[cluster]);
    members->SetValue(static_cast<vtkIdType>(cluster),
                      static_cast<vtkIdType>(centres.members[cluster]));
  }
  model->AddColumn(errors);
  model->AddColumn(members);
  std::size_t first = 0;
  for (vtkDataArray* column : columns)
  {
    model->AddColumn(centreColumn(centres, positions, first, column));
    first += static_cast<std::size_t>(column->GetNumberOfComponents());
  }
  return model;
}

/// The centres of a model of one run, row by row, and the data they are compared with; none when
/// the two do not fit.
struct ModelInput
{
  Columns centres;
  Columns data;
};

std::optional<ModelInput> modelInput(vtkTable* model, vtkTable* data)
{
  if (!model || model->GetNumberOfRows() < 1 || model->GetNumberOfColumns() <= modelColumns ||
      model->GetValue(0, clusterCountColumn).ToLongLong() != model->GetNumberOfRows())
    return {};
  ModelInput input;
  for (vtkIdType i = modelColumns; i < model->GetNumberOfColumns(); ++i)
  {
    auto* centre = vtkDataArray::SafeDownCast(model->GetColumn(i));
    auto* column = centre && centre->GetName()
                       ? vtkDataArray::SafeDownCast(data->GetColumnByName(centre->GetName()))
                       : nullptr;
    if (!column || column->GetNumberOfComponents() != centre->GetNumberOfComponents())
      return {};
    input.centres.push_back(centre);
    input.data.push_back(column);
  }
  return input;
}
} // namespace

void vtkShapeKMeansStatistics::Learn(vtkTable* inData, vtkTable* inParameters,
                                     vtkMultiBlockDataSet* outMeta)
{
  const bool centresGiven = inParameters && inParameters->GetNumberOfRows() > 0;
  Columns columns;
  if (inData && outMeta && !centresGiven && vtkKMeansPearson::SafeDownCast(this->DistanceFunctor) &&
      !this->Internals->Requests.empty())
  {
    const auto& request = *this->Internals->Requests.begin();
    columns = numericColumns(inData,
                             [&](const char* name) { return request.find(name) != request.end(); });
  }
  if (columns.empty() || inData->GetNumberOfRows() == 0 || this->DefaultNumberOfClusters < 1)
  {
    this->Superclass::Learn(inData, inParameters, outMeta);
    return;
  }
  const ObservationMatrix matrix(columns, inData->GetNumberOfRows());
  const auto goOn = [this](double done)
  {
    this->UpdateProgress(done);
    return this->GetAbortExecute() == 0;
  };
  const Talmesh::stats::ClusterCentres centres = Talmesh::stats::findClusters(
      matrix.view(), static_cast<std::size_t>(this->DefaultNumberOfClusters),
      {this->Tolerance, this->MaxNumIterations}, goOn);
  outMeta->SetNumberOfBlocks(1);
  outMeta->SetBlock(0, modelOf(centres, columns, matrix.view().positions, this->KValuesArrayName));
  outMeta->GetMetaData(0U)->Set(vtkCompositeDataSet::NAME(), "Updated Cluster Centers");
}

void vtkShapeKMeansStatistics::Assess(vtkTable* inData, vtkMultiBlockDataSet* inMeta,
                                      vtkTable* outData)
{
  std::optional<ModelInput> input;
  if (inData && inMeta && outData && vtkKMeansPearson::SafeDownCast(this->DistanceFunctor))
    input = modelInput(vtkTable::SafeDownCast(inMeta->GetBlock(0)), inData);
  if (!input)
  {
    this->Superclass::Assess(inData, inMeta, outData);
    return;
  }
  const vtkIdType rows = inData->GetNumberOfRows();
  const ObservationMatrix centres(input->centres, input->centres[0]->GetNumberOfTuples());
  const ObservationMatrix data(input->data, rows);
  const Talmesh::stats::Observations centreRows = centres.view();
  const Talmesh::stats::ClosestCentres closest = Talmesh::stats::closestCentres(
      data.view(),
      {centreRows.values, centreRows.values + centreRows.count * centreRows.positions});
  vtkNew<vtkDoubleArray> distances;
  vtkNew<vtkIntArray> clusters;
  distances->SetName((this->AssessNames->GetValue(0) + "(0)").c_str());
  clusters->SetName((this->AssessNames->GetValue(1) + "(0)").c_str());
  distances->SetNumberOfValues(rows);
  clusters->SetNumberOfValues(rows);
  for (vtkIdType row = 0; row < rows; ++row)
  {
    distances->SetValue(row, closest.distance[static_cast<std::size_t>(row)]);
    clusters->SetValue(row, closest.cluster[static_cast<std::size_t>(row)]);
  }
  outData->AddColumn(distances);
  outData->AddColumn(clusters);
}
