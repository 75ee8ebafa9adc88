#ifndef FeatureSearch_h
#define FeatureSearch_h

#include "app/import/ImportProgress.h"
#include "app/import/Result.h"
#include "app/runs/RunFeatures.h"

#include <vtkType.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace Talmesh::app
{

/// The first rows of a table as runs of equal length, one below the other.
struct StackedRuns
{
  std::size_t runs = 0;
  std::size_t points = 0;
};

/// One value for each run: a feature of a column, or its first value. A single value takes no time,
/// features of many points do.
/// @param times of the rows; null for 0, 1, 2, ... in each run
/// @param progress asked between runs; may be empty
Result<std::vector<double>> valuesOfRuns(std::optional<RunFeature> feature, const double* times,
                                         const double* values, const StackedRuns& stacked,
                                         const ImportProgress& progress = {});

/// Features of runs that are to be computed in any thread, from copies of their columns.
class FeatureTask
{
public:
  explicit FeatureTask(const StackedRuns& rows)
      : stacked(rows)
  {
  }

  /// Copies what the feature needs.
  /// @param shown a feature's column, as `featureColumn` counts
  /// @param times null for none
  void add(int shown, const double* times, const double* values);

  /// The values of all, in the order in which they were added.
  Result<std::vector<std::vector<double>>> compute(const ImportProgress& progress) const;

private:
  std::vector<double> copied(const double* column) const;

  StackedRuns stacked;
  std::vector<double> commonTimes;
  /// By item.
  std::map<int, std::vector<double>> items;
  std::vector<int> wanted;
};

/// Computes the features that charts lack, in the background, for the drawing that has asked last.
class FeatureSearch
{
public:
  /// Each with one value for every run.
  using Values = std::vector<std::vector<double>>;
  using Work = std::function<Result<Values>(const ImportProgress& progress)>;
  /// Does long work elsewhere: `start` takes work, in place of the one before, and delivers its
  /// result in the GUI thread, from the event loop; nothing if it was given up.
  struct Background
  {
    std::function<void(const Work&, const std::function<void(const Values&)>&)> start;
    std::function<void()> cancel;
  };
  /// A feature's column, and when the values that it is of were changed last.
  using Wish = std::pair<int, vtkMTimeType>;
  using Wishes = std::vector<Wish>;

  /// @param takeValues gets what was computed
  explicit FeatureSearch(std::function<void(const Wishes&, const Values&)> takeValues)
      : take(std::move(takeValues))
  {
  }
  FeatureSearch(const FeatureSearch&) = delete;
  FeatureSearch& operator=(const FeatureSearch&) = delete;

  /// Without one, a drawing may wait as long as it takes.
  void setBackground(const Background& elsewhere) { background = elsewhere; }
  void setPatience(std::chrono::milliseconds most) { patience = most; }
  /// Called when there are values to be drawn.
  void setFound(std::function<void()> told) { tellOfValues = std::move(told); }

  /// A drawing begins.
  void beginDrawing() { waitsUntil = std::chrono::steady_clock::now() + patience; }
  /// Whether it may go on computing features by itself.
  bool mayWait() const;
  /// What it lacks: that is computed now, and nothing else.
  /// @param task makes the task that computes these
  void want(const Wishes& wishes, const std::function<FeatureTask()>& task);
  /// Computes no more of what is under way, until something else is wanted.
  void giveUp();

private:
  void drop();

  std::function<void(const Wishes&, const Values&)> take;
  std::function<void()> tellOfValues;
  Background background;
  /// Whoever waits longer for a window believes that it hangs.
  std::chrono::milliseconds patience{150};
  std::chrono::steady_clock::time_point waitsUntil;
  Wishes underWay;
  Wishes givenUp;
};

} // namespace Talmesh::app

#endif
