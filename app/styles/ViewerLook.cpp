#include "app/styles/ViewerLook.h"

namespace Talmesh::app
{

PlotLook viewerLook()
{
  PlotLook look;
  // Okabe, M. and Ito, K.: Color Universal Design (2008), https://jfly.uni-koeln.de/color/; without
  // yellow and black, which are hard to see on white and taken by text.
  look.series = {{0, 114, 178, 255},   {213, 94, 0, 255},  {0, 158, 115, 255},
                 {204, 121, 167, 255}, {230, 159, 0, 255}, {86, 180, 233, 255}};
  // Lighter than the lines of runs, so that these are seen on them.
  look.bands = {{{222, 235, 247, 255}, {158, 202, 225, 255}, {8, 48, 107, 255}}};
  look.highlight.widening = 0.6;
  look.ticksFollowText = true;
  look.labelsEcdfs = true;
  return look;
}

} // namespace Talmesh::app
