#ifndef ScenePainter_h
#define ScenePainter_h

#include "export/ViewerExport.h"

#include <QSize>

class QPainter;
class vtkContextScene;

namespace Talmesh
{
/// Which shapes of a chart stay shapes on a page. Axes and text always do.
enum class Vectors
{
  All,  ///< every one
  Auto, ///< as many as a page has use for; see vectorLimits()
  None  ///< none of those that show the data
};

/// More of a kind become one picture: lines and points that nobody can tell apart would only make
/// the page large and slow.
constexpr int mostVectorRuns = 60;
constexpr int mostVectorHighlights = 60;
constexpr int mostVectorPoints = 5000;

/// Paints a scene, of which a pixel becomes a unit of the painter's coordinates, on white. The
/// scene keeps the size, so that it must be painted on its own device again before it is used
/// otherwise.
/// @param resolution how many pixels a unit of a picture on the page has
TALMESHPLOT_VIEWER_EXPORT void paintScene(vtkContextScene& scene, QPainter& painter,
                                          const QSize& size, double resolution, Vectors vectors);
} // namespace Talmesh

#endif
