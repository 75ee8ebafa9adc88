#ifndef RunFilter_h
#define RunFilter_h

#include "app/import/ImportProgress.h"
#include "app/import/Result.h"
#include "app/runs/FilterSyntax.h"
#include "app/runs/RunCourse.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// Runs by their places, each with the same number of points of every item.
class NumberedRuns
{
public:
  virtual ~NumberedRuns() = default;

  virtual std::size_t numberOfRuns() const = 0;
  /// What the table calls a run.
  virtual double runNumber(std::size_t run) const = 0;
  /// What the first of two columns draws over the other; over time where that is negative. Valid
  /// while the table is.
  virtual RunCourse course(std::size_t run, int column, int over) const = 0;
};

/// What filters are read for: runs whose columns have names.
class FilteredRuns : public NumberedRuns
{
public:
  /// The column that a filter names, or why there is none.
  virtual Result<int> column(const std::string& name) const = 0;
  /// Whether a column has one value for a whole run, as parameters have.
  virtual bool isOfWholeRun(int column) const = 0;
  /// The number that stands for a text in a column; none where the column has no such text.
  virtual std::optional<double> numberOf(int column, const std::string& text) const;
  /// The texts that the numbers 0, 1, 2, ... of a column stand for; empty of others.
  virtual std::vector<std::string> textsOf(int) const { return {}; }
};

struct BoundTerm;

/// A filter whose names mean columns of a table: a condition that each run meets or does not.
class RunFilter
{
public:
  /// Selects nothing.
  RunFilter();
  ~RunFilter();
  RunFilter(RunFilter&&) noexcept;
  RunFilter& operator=(RunFilter&&) noexcept;

  /// @param runs not kept
  /// @param fault what is wrong with the text, if anything is
  /// @return one that selects nothing if anything is wrong
  static RunFilter read(std::string_view text, const FilteredRuns& runs, FilterFault& fault);

  /// The columns that the text names, those below others among them; may be there twice.
  std::vector<int> columns() const;

  /// Whether the text lists some runs by their numbers, which says nothing of others.
  bool listsRuns() const;

  /// Whether a run meets the condition. A comparison with a missing value (NaN) is not met.
  /// @param runs those that the filter was read for, or others of the same columns
  bool selects(const NumberedRuns& runs, std::size_t run) const;
  /// For all runs; cancelled when `progress`, which may be empty, says so.
  Result<std::vector<bool>> select(const NumberedRuns& runs, const ImportProgress& progress) const;

private:
  std::unique_ptr<const BoundTerm> condition;
};

} // namespace Talmesh::app

#endif
