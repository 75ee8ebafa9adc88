#include "app/import/LongPoints.h"

#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cmath>

namespace Talmesh::app
{

namespace
{

/// A table of more items than any run has values would grow beyond reason.
constexpr std::size_t mostGrowth = 8;
constexpr std::size_t alwaysCells = 10000000;

std::size_t mostCells(std::size_t rows)
{
  return std::max(mostGrowth * rows, alwaysCells);
}

} // namespace

LongPoints::LongPoints(TableText& text_, const LongColumns& columns_,
                       const ImportProgress& progress_)
    : text(text_)
    , items(text.columns[columns_.item].levels)
    , repeatsAreReplicates(columns_.repeatsAreReplicates)
    , progress(progress_)
{
}

bool LongPoints::Place::operator==(const Place& other) const
{
  return run == other.run && item == other.item && time == other.time;
}

std::size_t LongPoints::PlaceHash::operator()(const Place& place) const
{
  constexpr std::uint64_t golden = 0x9E3779B97F4A7C15ULL;
  std::uint64_t bits = 0;
  std::memcpy(&bits, &place.time, sizeof bits);
  bits ^= (static_cast<std::uint64_t>(place.run) << 32U) + static_cast<std::uint64_t>(place.item);
  bits *= golden;
  return static_cast<std::size_t>(bits ^ (bits >> 29U));
}

double LongPoints::timeOf(std::size_t row) const
{
  if (text.roles.timeColumn < 0)
    return 0.0;
  // All that are equal have the same bits but for the sign of 0.
  return text.columns[static_cast<std::size_t>(text.roles.timeColumn)].values[row] + 0.0;
}

/// Whether a value is the first one of its item at its point. Of more cells than a table may have,
/// nothing is known.
bool LongPoints::isFirst(int point, int level)
{
  const std::size_t count = items.names().size();
  const std::size_t cell =
      static_cast<std::size_t>(point) * count + static_cast<std::size_t>(level);
  if (cell >= mostCells(text.rows))
    return true;
  if (cell >= taken.size())
    taken.resize(points.size() * count);
  const bool isNew = !taken[cell];
  taken[cell] = true;
  return isNew;
}

int LongPoints::runOfReplicate(int run, int repeat)
{
  const auto [entry, added] =
      replicates.emplace(Place{run, repeat, 0.0}, static_cast<int>(text.runNames.size()));
  if (added)
    text.runNames.push_back(text.runNames[static_cast<std::size_t>(run)] + ", replicate " +
                            std::to_string(repeat + 1));
  return entry->second;
}

int LongPoints::pointOfRow(std::size_t row)
{
  const double time = timeOf(row);
  const int level = items.rows()[row];
  if (std::isnan(time) || level == TextLevels::none ||
      items.names()[static_cast<std::size_t>(level)].empty())
    return leftOut;
  const int run = text.runOfRow[row];
  int point = points.at(run, time);
  if (isFirst(point, level))
    return point;
  if (!repeatsAreReplicates)
  {
    error =
        withValues(translated("LongTable", "line %1: a second value of %2 at the same time. Name "
                                           "the columns that tell the runs apart (--run)"),
                   {std::to_string(text.lineOf(row)),
                    quotedForMessage(items.names()[static_cast<std::size_t>(level)])});
    return leftOut;
  }
  point = points.at(runOfReplicate(run, ++repeats[{run, level, time}]), time);
  isFirst(point, level);
  return point;
}

std::string LongPoints::find()
{
  for (std::size_t row = 0; row < text.rows && error.empty(); ++row)
  {
    if (row % rowsBetweenQuestions == 0 && progress && !progress(1.0))
      cancelled = true;
    if (cancelled)
      return {};
    const int point = pointOfRow(row);
    first.resize(points.size(), row);
    kept += point == leftOut ? 0 : 1;
    text.runOfRow[row] = point;
  }
  std::vector<bool>().swap(taken);
  if (error.empty() && kept == 0)
    error = translated("LongTable", "no row has an item and a time");
  return error.empty() ? tooMany() : error;
}

std::string LongPoints::tooMany() const
{
  const std::size_t count = items.names().size();
  if (count * size() <= mostCells(kept))
    return {};
  return withValues(translated("LongTable",
                               "%1 items at %2 points, most of them without a value, are too many; "
                               "name the item column (--item) if it is another one"),
                    {std::to_string(count), std::to_string(size())});
}

} // namespace Talmesh::app
