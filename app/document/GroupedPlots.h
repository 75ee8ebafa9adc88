#ifndef GroupedPlots_h
#define GroupedPlots_h

#include "app/session/SessionGroups.h"

#include <QColor>

#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// Groups of runs, numbered from 0.
struct RunGroups
{
  /// The group of every run.
  std::vector<int> groupOfRun;
  /// One name per group, for the legend, UTF-8.
  std::vector<std::string> names;
  /// One colour per group; none for those that groups have by their numbers.
  std::vector<QColor> colours;

  friend bool operator==(const RunGroups& left, const RunGroups& right)
  {
    return left.groupOfRun == right.groupOfRun && left.names == right.names &&
           left.colours == right.colours;
  }
};

/// Groups with their names in the user's language.
/// @param groupOfRun the group of every run, from 0
RunGroups namedGroups(const std::vector<int>& groupOfRun);

/// The group of each run as the window numbers them, from 1; none without groups.
std::vector<double> groupNumbers(const RunGroups& groups);

/// The colour of a group in lists and charts; those of the first twelve groups differ.
QColor groupColour(int group);
/// That of one of these groups.
QColor colourOf(const RunGroups& groups, int group);

/// The following complete the XY chart of a container's drawing, with the first y column
/// over the x axis, and do nothing where it shows another chart. The runs themselves stay
/// selectable, and their highlight stays above everything but the means.

/// Draws the runs in the colours of their groups instead of the one colour of all.
void colourGroups(PlotContainer& container, const RunGroups& groups);

/// Adds the mean course of every group. Values that are not finite do not count.
void addGroupMeans(PlotContainer& container, const RunGroups& groups);

/// Draws the range of all runs, the range between their quartiles and their median behind
/// everything, and, of the runs, only the selected ones.
void showQuartileBands(PlotContainer& container);

/// All of them that the look asks for.
/// @param colours the groups that colour the runs; none of no groups
void dressRuns(PlotContainer& container, const RunGroups& groups, const RunGroups& colours,
               const RunLook& look);

} // namespace Talmesh::app

#endif
