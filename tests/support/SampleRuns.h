#ifndef SampleRuns_h
#define SampleRuns_h

#include "external/LinePlotTable.h"
#include "external/TypedConcentrationName.h"
#include "plot/PlotContainer.h"

#include <vtkContextScene.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <boost/shared_ptr.hpp>

#include <set>
#include <string>
#include <utility>
#include <vector>

/// Run-stacked data with the typed names and the column order of line-plot data:
/// "Complex: A", "Molecule: B", ": Time [s]", ": Run Index", "Parameter: k1", "Parameter: k2", ...
namespace SampleRuns
{

/// What to build.
struct Shape
{
  /// One entry per run: the value of its run-index column.
  std::vector<int> runIndices{0, 1, 2, 3};
  /// Rows per run.
  int stride = 3;
  /// Number of parameter columns.
  int parameters = 2;
};

constexpr int complexColumn = 0;
constexpr int moleculeColumn = 1;
constexpr int timeColumn = 2;
constexpr int runIndexColumn = 3;
constexpr int firstParameterColumn = 4;

/// `count` runs numbered from 0.
Shape runs(int count, int stride, int parameters = 2);

/// One run for each of `runIndices`, the values of the run-index column.
Shape indexedRuns(std::vector<int> runIndices, int stride, int parameters = 2);

/// Typed names of the columns.
std::vector<Talmesh::TypedConcentrationName> items(const Shape& shape);

/// Value of row `point` of the run at position `run` in a column: 10 run + point for the complex,
/// minus that for the molecule, the point for the time, and for parameter p the constant
/// (run + 1) (p + 1).
double value(const Shape& shape, int column, int run, int point);

/// A table of double columns.
vtkSmartPointer<vtkTable> table(const Shape& shape);

/// The same data as a line-plot table.
boost::shared_ptr<LinePlotTable> lineTable(const Shape& shape);

/// (smallest, largest) value of each parameter.
std::vector<std::pair<double, double>> parameterBounds(const Shape& shape);

/// Puts the table, its typed names, bounds and stride into a container, without drawing.
void load(PlotContainer& container, const Shape& shape);

/// A container that shows a run table in a scene of its own.
struct Plot
{
  explicit Plot(const Shape& shape = {});

  vtkNew<vtkContextScene> scene;
  PlotContainer container{nullptr};
};

/// The values of a numeric column; empty for null.
std::vector<double> valuesOf(vtkAbstractArray* column);

/// The values of the named column; empty if there is none.
std::vector<double> valuesOf(vtkTable* table, const std::string& column);

/// The rows that the lists of the container's current selection name.
std::set<vtkIdType> selectedRows(const PlotContainer& container);

} // namespace SampleRuns

#endif
