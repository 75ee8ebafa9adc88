#ifndef ColumnNames_h
#define ColumnNames_h

#include "../export/TalmeshPlotExport.h"
#include "../external/TypedConcentrationName.h"

#include <string>
#include <vector>

/// How the columns that order a table of runs are told from the others: by kind, by name, and by
/// their place in front of the parameters.
namespace Talmesh
{

/// Of the items of the time or value kind, the one of this name is the time ...
inline constexpr char timeItemName[] = "Time [s]";
/// ... or else the last one of this name, or else the first of all.
inline constexpr char valueItemName[] = "Value";
/// The item of the time or value kind that numbers the runs.
inline constexpr char runIndexName[] = "Run Index";

/// The column of times of the tables that are derived from runs.
inline constexpr char derivedTimeName[] = "Time";

/// Where no name tells, the columns of time and of the runs' numbers stand so many columns in front
/// of the first parameter, as line-plot tables have them.
inline constexpr int timeBeforeParameters = 2;
inline constexpr int runIndexBeforeParameters = 1;

/// (TimeOrValue, "Run Index").
TALMESHPLOT_EXPORT TypedConcentrationName runIndexItem();

/// Index of the item that gives the time, as said above; -1 when there is none of its kind.
TALMESHPLOT_EXPORT int timeItem(const std::vector<TypedConcentrationName>& items);

/// Whether a column of this label holds times to selections and comparisons of runs, of several the
/// first one: it contains Value, Time or Period.
TALMESHPLOT_EXPORT bool labelsTime(const std::string& label);

/// Whether a column of this label numbers the runs, of several the first one: it contains Index.
TALMESHPLOT_EXPORT bool labelsRunIndex(const std::string& label);

} // namespace Talmesh

#endif
