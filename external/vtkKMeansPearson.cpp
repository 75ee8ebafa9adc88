#include "external/vtkKMeansPearson.h"

#include <vtkObjectFactory.h>
#include <vtkVariantArray.h>

#include <algorithm>
#include <cmath>
#include <vector>

vtkStandardNewMacro(vtkKMeansPearson);

namespace
{

using Values = std::vector<double>;

Values valuesOf(vtkVariantArray* tuple)
{
  Values values(static_cast<std::size_t>(tuple->GetNumberOfValues()));
  for (std::size_t i = 0; i < values.size(); ++i)
    values[i] = tuple->GetValue(static_cast<vtkIdType>(i)).ToDouble();
  return values;
}

bool allFinite(const Values& values)
{
  return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

// Finite values. Halves, for the difference of two large ones overflows.
bool isConstant(const Values& values)
{
  constexpr double roundingNoise = 1e-12;
  if (values.empty())
    return true;
  const auto [low, high] = std::minmax_element(values.begin(), values.end());
  const double largest = std::max(std::fabs(*low), std::fabs(*high));
  return *high / 2.0 - *low / 2.0 <= roundingNoise * (largest / 2.0);
}

// Scaling first keeps the squares of very large and very small values within range.
void centre(Values& values)
{
  double largest = 0.0;
  for (double value : values)
    largest = std::max(largest, std::fabs(value));
  double mean = 0.0;
  for (double& value : values)
  {
    value /= largest;
    mean += value / static_cast<double>(values.size());
  }
  for (double& value : values)
    value -= mean;
}

// Both vary and are finite.
double correlation(Values a, Values b)
{
  centre(a);
  centre(b);
  double products = 0.0;
  double squaresOfA = 0.0;
  double squaresOfB = 0.0;
  for (std::size_t i = 0; i < a.size(); ++i)
  {
    products += a[i] * b[i];
    squaresOfA += a[i] * a[i];
    squaresOfB += b[i] * b[i];
  }
  return products / std::sqrt(squaresOfA) / std::sqrt(squaresOfB);
}

double pearsonDistance(const Values& a, const Values& b)
{
  if (a.size() != b.size() || !allFinite(a) || !allFinite(b))
    return 2.0;
  const bool constantA = isConstant(a);
  const bool constantB = isConstant(b);
  if (constantA || constantB)
    return constantA && constantB ? 0.0 : 1.0;
  return std::clamp(1.0 - correlation(a, b), 0.0, 2.0);
}

} // namespace

void vtkKMeansPearson::PrintSelf(ostream& os, vtkIndent indent)
{
  this->Superclass::PrintSelf(os, indent);
}

void vtkKMeansPearson::operator()(double& distance, vtkVariantArray* center,
                                  vtkVariantArray* observation)
{
  distance = pearsonDistance(valuesOf(center), valuesOf(observation));
}

void vtkKMeansPearson::PairwiseUpdate(vtkTable* clusterCenters, vtkIdType row,
                                      vtkVariantArray* data, vtkIdType dataCardinality,
                                      vtkIdType totalCardinality)
{
  vtkVariantArray* counted =
      allFinite(valuesOf(data)) ? data : this->GetEmptyTuple(data->GetNumberOfValues());
  this->Superclass::PairwiseUpdate(clusterCenters, row, counted, dataCardinality, totalCardinality);
}
