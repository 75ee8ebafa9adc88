#ifndef LongPoints_h
#define LongPoints_h

#include "app/import/ImportProgress.h"
#include "app/import/LongTable.h"
#include "app/import/RunPoints.h"
#include "app/import/TableText.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <unordered_map>
#include <vector>

namespace Talmesh::app
{

/// Enough rows to outweigh a question, and few enough for an answer within some milliseconds.
inline constexpr std::size_t rowsBetweenQuestions = 16384;

/// The points, of a run at a time each, that the rows of a table with a row per value are of. Of
/// each point the table has one value per item; the values of further replicates are of runs of
/// their own.
class LongPoints
{
public:
  static constexpr int leftOut = -1;

  /// @param text_ has the runs of its rows; not owned
  LongPoints(TableText& text_, const LongColumns& columns_, const ImportProgress& progress_);

  /// Puts the point of each row, or `leftOut`, in place of its run. The time it takes is linear.
  /// @return why that cannot be, in one line; empty on success, and where it was given up
  std::string find();

  bool isCancelled() const { return cancelled; }
  std::size_t size() const { return points.size(); }
  /// How many rows are of a point.
  std::size_t rows() const { return kept; }
  /// The first row of each point.
  const std::vector<std::size_t>& firstRows() const { return first; }
  const std::vector<int>& runOfPoint() const { return points.runOfPoint(); }

private:
  /// A value that stands several times, or the runs that its replicates are of.
  struct Place
  {
    int run;
    int item;
    double time;

    bool operator==(const Place& other) const;
  };

  struct PlaceHash
  {
    std::size_t operator()(const Place& place) const;
  };

  double timeOf(std::size_t row) const;
  int pointOfRow(std::size_t row);
  bool isFirst(int point, int level);
  int runOfReplicate(int run, int repeat);
  std::string tooMany() const;

  TableText& text;
  const TextLevels& items;
  bool repeatsAreReplicates;
  const ImportProgress& progress;
  RunPoints points;
  std::vector<std::size_t> first;
  std::size_t kept = 0;
  /// Which points have a value of which item: a row of bits for each point.
  std::vector<bool> taken;
  std::unordered_map<Place, int, PlaceHash> repeats;
  std::unordered_map<Place, int, PlaceHash> replicates;
  std::string error;
  bool cancelled = false;
};

} // namespace Talmesh::app

#endif
