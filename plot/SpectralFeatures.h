#ifndef SpectralFeatures_h
#define SpectralFeatures_h

#include <vtkSmartPointer.h>

class vtkTable;

namespace Talmesh::plot
{

/// What of a complex number is kept.
enum class SpectralFeature
{
  /// atan2 of imaginary and real part, radians in [-pi, pi]; 0 where the modulus is no more than
  /// 1e-12 of the largest one, which is rounding noise
  phase,
  magnitude ///< modulus
};

/// The discrete Fourier transform of every column of `curves`, whose columns are all doubles,
/// reduced to one feature per frequency: a table of the same shape, columns named by their
/// position. Rows are the frequencies in the transform's own order: 0 up to the highest, then the
/// negative ones.
vtkSmartPointer<vtkTable> spectralFeatures(vtkTable* curves, SpectralFeature feature);

} // namespace Talmesh::plot

#endif
