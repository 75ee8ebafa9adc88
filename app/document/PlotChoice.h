#ifndef PlotChoice_h
#define PlotChoice_h

#include "app/document/PlotWishes.h"
#include "app/import/Result.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// What the user chooses of a plot. Columns are 0-based columns of the container's table, or
/// features of them, see app/document/FeatureColumns.h.
struct PlotChoice
{
  plotStyles style = xyPlot;
  int x = 0;
  /// The columns over x; the first one first in the legend. Without any, charts of y are empty.
  std::vector<int> y{1};
  int z = 2;
  /// Axes of parallel coordinates that the user has moved, which come first and in this order.
  std::vector<int> axes;
  /// Lines, one per run, instead of points in the XY plot.
  bool lines = false;
  bool legend = false;
  bool logX = false;
  bool logY = false;
};

bool operator==(const PlotChoice& left, const PlotChoice& right);

/// What a container now shows; legend and logarithmic y axis as its XY chart has them.
PlotChoice choiceOf(const PlotContainer& container);

/// Says that there is no drawing, and why.
std::string cannotDraw(const std::string& why);

/// Does what draws.
/// @return why it could not be drawn, in one line; empty on success
std::string whyNotDone(const std::function<void()>& drawing);

/// Makes the container show the choice: draws it, labels the axes, and writes what only an XY chart
/// keeps. Does not render. What charts of runs show must be in the container, see RunSummary.
/// @param draw what draws, and says why it has not as `whyNotDone` does; redraw() without it
/// @return as `whyNotDone`
std::string applyChoice(PlotContainer& container, const PlotChoice& choice,
                        const std::function<std::string()>& draw = {});

/// How what a container has drawn differs from the choice, in one line; empty if it does not.
QString remarkOn(const PlotChoice& choice, const PlotContainer& container);

/// The names of the columns that can be chosen: all but those at the end that mark what is
/// selected.
QStringList choosableColumns(const PlotContainer& container);

/// Finds a column by its whole name, else by its name without the kind, else by what a table's
/// header calls its time or its runs, which may have got another name in the import.
Result<int> findColumn(const PlotContainer& container, const std::string& name);

/// Writes the style and the columns that the wishes name into `choice`. Names of y columns
/// that a comma has parted count as one where a column has that name.
/// @return why a name cannot be found, in one line; empty on success
std::string chooseByName(const PlotContainer& container, const PlotWishes& wishes,
                         PlotChoice& choice);

/// Makes the page that compares runs the style of a container that holds runs with parameters, and
/// otherwise leaves the style that it has. Wishes come first: they may name a style, or more
/// columns than that page shows. Does not draw.
void chooseOpeningStyle(PlotContainer& container, const PlotWishes& wishes);

} // namespace Talmesh::app

#endif
