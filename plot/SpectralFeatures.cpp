#include "plot/SpectralFeatures.h"

#include <vtkDataArray.h>
#include <vtkDoubleArray.h>
#include <vtkTable.h>
#include <vtkTableFFT.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace Talmesh::plot
{

namespace
{

/// A copy whose column names are positions, because the transform leaves out a column named "time".
vtkSmartPointer<vtkTable> namedByPosition(vtkTable* curves)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  table->DeepCopy(curves);
  for (int i = 0; i < table->GetNumberOfColumns(); ++i)
    table->GetColumn(i)->SetName(std::to_string(i).c_str());
  return table;
}

/// Newer versions of VTK find no spectrum of single values.
vtkSmartPointer<vtkTable> spectraOf(vtkTable* curves)
{
  if (curves->GetNumberOfRows() == 1)
    return curves;
  vtkNew<vtkTableFFT> transform;
  transform->SetInputData(namedByPosition(curves));
  transform->Update();
  return transform->GetOutput();
}

/// One spectrum. That of a single value is the value, without an imaginary part.
class Spectrum
{
public:
  explicit Spectrum(vtkDataArray* components)
      : values(components)
  {
  }

  vtkIdType size() const { return values->GetNumberOfTuples(); }
  double real(vtkIdType row) const { return values->GetComponent(row, 0); }
  double imaginary(vtkIdType row) const
  {
    return values->GetNumberOfComponents() > 1 ? values->GetComponent(row, 1) : 0.0;
  }
  double magnitude(vtkIdType row) const
  {
    return std::sqrt(real(row) * real(row) + imaginary(row) * imaginary(row));
  }
  /// The same without overflow.
  double safeMagnitude(vtkIdType row) const { return std::hypot(real(row), imaginary(row)); }

private:
  vtkDataArray* values;
};

/// @param noise size of what counts as nothing
double phaseAt(const Spectrum& spectrum, vtkIdType row, double noise)
{
  if (spectrum.safeMagnitude(row) <= noise)
    return 0.0;
  return std::atan2(spectrum.imaginary(row), spectrum.real(row));
}

/// What rounding may leave of a frequency that the curve does not have.
double roundingNoise(const Spectrum& spectrum)
{
  double largest = 0.0;
  for (vtkIdType row = 0; row < spectrum.size(); ++row)
    largest = std::max(largest, spectrum.safeMagnitude(row));
  return 1e-12 * largest;
}

} // namespace

vtkSmartPointer<vtkTable> spectralFeatures(vtkTable* curves, SpectralFeature feature)
{
  const vtkSmartPointer<vtkTable> spectra = spectraOf(curves);
  auto features = vtkSmartPointer<vtkTable>::New();
  for (int i = 0; i < spectra->GetNumberOfColumns(); ++i)
  {
    const Spectrum spectrum(vtkDataArray::SafeDownCast(spectra->GetColumn(i)));
    vtkNew<vtkDoubleArray> column;
    column->SetName(std::to_string(i).c_str());
    column->SetNumberOfValues(spectrum.size());
    const double noise = roundingNoise(spectrum);
    for (vtkIdType row = 0; row < spectrum.size(); ++row)
      column->SetValue(row, feature == SpectralFeature::phase ? phaseAt(spectrum, row, noise)
                                                              : spectrum.magnitude(row));
    features->AddColumn(column);
  }
  return features;
}

} // namespace Talmesh::plot
