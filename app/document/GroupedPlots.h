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
};

/// Groups with their names in the user's language.
/// @param groupOfRun the group of every run, from 0
RunGroups namedGroups(const std::vector<int>& groupOfRun);

/// The colour of a group in lists and charts; those of the first twelve groups differ.
QColor groupColour(int group);

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
void dressRuns(PlotContainer& container, const RunGroups& groups, const RunLook& look);

} // namespace Talmesh::app

#endif
