#ifndef LevelBars_h
#define LevelBars_h

#include "app/document/DrawnGroups.h"

#include <array>
#include <string>
#include <vector>

class PlotContainer;

/// How often runs have each text of a category, as bars.
namespace Talmesh::app
{

struct LevelShares
{
  /// Of runs in a colour, the part that has each text; runs without any do not count.
  struct Group
  {
    std::array<unsigned char, 3> color;
    std::vector<double> shares;
  };

  /// The parameter as charts name it.
  std::string parameter;
  std::vector<std::string> levels;
  std::vector<Group> groups;
};

bool operator==(const LevelShares& one, const LevelShares& other);

/// Of each category of a study, for all runs or, where there are any, the selected ones and the
/// others.
std::vector<LevelShares> levelShares(const ComparedStudy& study,
                                     const std::vector<DrawnRunGroup>& groups);

/// Draws them in the charts of the page of distributions that are titled by these parameters, in
/// place of curves over numbers that mean nothing. Does nothing on another page.
void drawLevelBars(PlotContainer& container, const std::vector<LevelShares>& shares);

} // namespace Talmesh::app

#endif
