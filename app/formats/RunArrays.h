#ifndef RunArrays_h
#define RunArrays_h

#include "app/formats/ArrayMeaning.h"
#include "app/import/NamedColumn.h"
#include "external/TypedConcentrationName.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace Talmesh::app
{

/// Makes the columns of a table of runs from arrays of runs, times and items.
class RunArrays
{
public:
  RunArrays(ArraySource& source, const ArrayCompanions& companions, const ImportProgress& progress);

  /// @param main an array with its meaning; it decides how many runs and times there are
  /// @return why it cannot, in one line; empty on success and when it was cancelled
  std::string make(std::size_t main, const ArrayMeaning& meaning);
  /// Adds another array of as many runs and times, or tells by false that it is none.
  bool add(std::size_t array, const ArrayMeaning& meaning, std::string& error);
  /// Adds times, runs and parameters.
  std::string complete();

  /// An array of rows and columns as it is.
  std::string makeTable(std::size_t array, const ArrayMeaning& meaning);
  /// An array of one axis as a column.
  std::string addColumn(std::size_t array);
  /// Names the arrays of which nothing was made.
  void noteLeftOut();

  bool isCancelled() const { return cancelled; }
  std::vector<NamedColumn> takeColumns() { return std::move(columns); }
  const std::vector<std::string>& notes() const { return said; }

private:
  std::string readItems(std::size_t array, const ArrayMeaning& meaning, DataType kind);
  std::string readLine(std::size_t array, std::vector<double>& values);
  std::string addRuns();
  std::string addTimes();
  std::string addParameters();
  std::string addParametersOfMatrix();
  std::string addPerRun(std::size_t array);
  std::string itemNames(std::size_t array, std::size_t items, std::vector<std::string>& names);
  void addRepeated(const std::string& name, const std::vector<double>& ofRun);
  NumberSink counting(const NumberSink& sink);

  ArraySource& source;
  const std::vector<StoredArray>& arrays;
  const ArrayCompanions& companions;
  const ImportProgress& progress;
  std::vector<bool> used;
  std::vector<NamedColumn> columns;
  std::vector<std::string> said;
  std::size_t runs = 1;
  std::size_t times = 1;
  std::size_t valuesRead = 0;
  std::size_t valuesInAll = 1;
  bool cancelled = false;
};

} // namespace Talmesh::app

#endif
