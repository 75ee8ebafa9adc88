#include "plot/SpectralFeatures.h"

#include "plot/TableColumns.h"

#include <vtkTable.h>
#include <vtkTableFFT.h>

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
    for (vtkIdType row = 0; row < spectrum->GetNumberOfTuples(); ++row)
    {
      const double real = spectrum->GetComponent(row, 0);
      const double imaginary = spectrum->GetComponent(row, 1);
      column->SetValue(row, feature == SpectralFeature::phase
                                ? std::atan2(imaginary, real)
                                : std::sqrt(real * real + imaginary * imaginary));
    }
    features->AddColumn(column);
  }
  return features;
}

} // namespace Talmesh::plot
