#ifndef RunTable_h
#define RunTable_h

#include "app/runs/RunFeatures.h"
#include "app/runs/RunFilter.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// What there is to say of each run in numbers: a row per run, a column per parameter or feature.
namespace Talmesh::app
{

/// A column of the table of runs.
struct RunColumn
{
  /// Of a course; none for the value of a parameter.
  std::optional<RunFeature> feature;
  /// Of the table that the runs are in.
  int column = -1;
  /// What a filter calls this number: `alpha`, `max(TetR)`, `"k [1/s]"`.
  std::string words;
  /// What files call it: a parameter by its plain name.
  std::string title = {};

  friend bool operator==(const RunColumn& left, const RunColumn& right)
  {
    return left.feature == right.feature && left.column == right.column &&
           left.words == right.words;
  }
};

/// The value of a parameter, or a feature of an item, of that name.
RunColumn runColumn(std::optional<RunFeature> feature, int column, const std::string& name);

/// NaN for what a run does not have.
double numberOf(const FilteredRuns& runs, std::size_t run, const RunColumn& column);

/// The numbers of all runs.
struct RunTable
{
  std::vector<RunColumn> columns;
  /// What the runs are called.
  std::vector<double> numbers;
  /// For each column a value per run.
  std::vector<std::vector<double>> values;
  /// The texts that the values 0, 1, 2, ... of some columns stand for.
  std::map<std::size_t, std::vector<std::string>> texts;
};

/// Fills a table a few runs at a time, so that whoever waits for it can do other things meanwhile.
class RunTableFilling
{
public:
  /// @param runs outlives the filling, and its values stay as they are meanwhile
  RunTableFilling(const FilteredRuns& runs, std::vector<RunColumn> columns);

  bool isDone() const { return next == runs.numberOfRuns(); }
  /// Goes on for some milliseconds, or to the end.
  void goOn(int milliseconds);
  /// The table, complete once that is done; hands it over.
  RunTable take() { return std::move(table); }

private:
  const FilteredRuns& runs;
  RunTable table;
  std::size_t next = 0;
};

/// Adds a column that is no filter's.
void addColumn(RunTable& table, const std::string& name, const std::vector<double>& values);

/// The whole table at once.
RunTable runTable(const FilteredRuns& runs, const std::vector<RunColumn>& columns);

/// What files have in a cell: a text, or a number with all its digits; nothing where it is missing.
std::string cellText(const RunTable& table, std::size_t column, std::size_t run);

/// The table as comma-separated text: a line of names, `run` and the titles of the columns, then
/// one line per run. Numbers that are missing are left out.
std::string commaText(const RunTable& table);

/// A cell of such a text, in quotes where it needs them.
std::string commaCell(const std::string& text);
/// A number of such a text, with as many digits as all readers need to read the same one.
std::string fullNumber(double value);

} // namespace Talmesh::app

#endif
