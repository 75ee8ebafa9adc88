#ifndef OpacityImage_h
#define OpacityImage_h

#include "vtk/PixelCounts.h"

#include <vector>

namespace Talmesh
{
/// Opacities of pixels, row by row from the lowest, 255 for no light coming through.
struct OpacityImage
{
  int width = 0;
  int height = 0;
  std::vector<unsigned char> values;
};

/// An image without anything in it; without values if it has no pixels.
OpacityImage emptyImage(int width, int height);

/// Makes the columns from @p first to @p end of @p image from the sum of all @p counts. Those have
/// @p parts columns for each of the image's, of whose opacities a pixel has the mean.
void fillColumns(OpacityImage& image, const std::vector<PixelCounts>& counts,
                 const CoverageScale& scale, int parts, int first, int end);
} // namespace Talmesh

#endif
