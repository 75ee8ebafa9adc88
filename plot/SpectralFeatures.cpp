#include "plot/SpectralFeatures.h"

#include "plot/TableColumns.h"

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

double magnitudeAt(vtkDoubleArray* spectrum, vtkIdType row)
{
  const double real = spectrum->GetComponent(row, 0);
  const double imaginary = spectrum->GetComponent(row, 1);
  return std::sqrt(real * real + imaginary * imaginary);
}

/// The same without overflow.
double sizeAt(vtkDoubleArray* spectrum, vtkIdType row)
{
  return std::hypot(spectrum->GetComponent(row, 0), spectrum->GetComponent(row, 1));
}

/// @param noise size of what counts as nothing
double phaseAt(vtkDoubleArray* spectrum, vtkIdType row, double noise)
{
  if (sizeAt(spectrum, row) <= noise)
    return 0.0;
  return std::atan2(spectrum->GetComponent(row, 1), spectrum->GetComponent(row, 0));
}

/// What rounding may leave of a frequency that the curve does not have.
double roundingNoise(vtkDoubleArray* spectrum)
{
  double largest = 0.0;
  for (vtkIdType row = 0; row < spectrum->GetNumberOfTuples(); ++row)
    largest = std::max(largest, sizeAt(spectrum, row));
  return 1e-12 * largest;
}

} // namespace

vtkSmartPointer<vtkTable> spectralFeatures(vtkTable* curves, SpectralFeature feature)
{
  vtkNew<vtkTableFFT> transform;
  transform->SetInputData(namedByPosition(curves));
  transform->Update();
  vtkTable* spectra = transform->GetOutput();
  auto features = vtkSmartPointer<vtkTable>::New();
  for (int i = 0; i < spectra->GetNumberOfColumns(); ++i)
  {
    vtkDoubleArray* spectrum = doubleColumn(spectra, i);
    vtkNew<vtkDoubleArray> column;
    column->SetName(std::to_string(i).c_str());
    column->SetNumberOfValues(spectrum->GetNumberOfTuples());
    const double noise = roundingNoise(spectrum);
    for (vtkIdType row = 0; row < spectrum->GetNumberOfTuples(); ++row)
      column->SetValue(row, feature == SpectralFeature::phase ? phaseAt(spectrum, row, noise)
                                                              : magnitudeAt(spectrum, row));
    features->AddColumn(column);
  }
  return features;
}

} // namespace Talmesh::plot
