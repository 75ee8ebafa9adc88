#include "app/examples/PuromycinStudy.h"

#include "app/examples/LeastSquaresFit.h"
#include "plot/TableColumns.h"

#include <vtkFloatArray.h>
#include <vtkTable.h>

#include <cmath>
#include <string>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t replicates = 2;
/// The curve runs this factor beyond the highest concentration.
constexpr double curveOvershoot = 1.05;

double michaelisMenten(double concentration, double vm, double k)
{
  return vm * concentration / (k + concentration);
}

std::vector<double> rateResiduals(const std::vector<double>& parameters)
{
  std::vector<double> residuals;
  for (const InitialRate& measured : puromycinRates())
    residuals.push_back(measured.rate -
                        michaelisMenten(measured.concentration, parameters[0], parameters[1]));
  return residuals;
}

vtkSmartPointer<vtkTable> floatTable(const std::vector<const char*>& names)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  for (const char* name : names)
    table->AddColumn(plot::makeFloatColumn(name, {}));
  return table;
}

void append(vtkTable* table, const std::vector<double>& row)
{
  for (std::size_t i = 0; i < row.size(); ++i)
    vtkFloatArray::SafeDownCast(table->GetColumn(static_cast<vtkIdType>(i)))
        ->InsertNextValue(static_cast<float>(row[i]));
}

} // namespace

const std::vector<InitialRate>& puromycinRates()
{
  static const std::vector<InitialRate> rates = {
      {0.02, 76.0},  {0.02, 47.0},  {0.06, 97.0},  {0.06, 107.0}, {0.11, 123.0}, {0.11, 139.0},
      {0.22, 159.0}, {0.22, 152.0}, {0.56, 191.0}, {0.56, 201.0}, {1.10, 207.0}, {1.10, 200.0}};
  return rates;
}

MichaelisMenten fitPuromycin()
{
  const std::vector<double> start = {200.0, 0.05};
  const std::vector<double> best = fitLeastSquares(rateResiduals, start).back().parameters;
  return {best[0], best[1]};
}

vtkSmartPointer<vtkTable> puromycinMeans()
{
  vtkSmartPointer<vtkTable> table = floatTable({"concentration", "rate", "error"});
  const std::vector<InitialRate>& rates = puromycinRates();
  for (std::size_t i = 0; i + 1 < rates.size(); i += replicates)
  {
    const double mean = 0.5 * (rates[i].rate + rates[i + 1].rate);
    const double error = 0.5 * std::fabs(rates[i].rate - rates[i + 1].rate);
    append(table, {rates[i].concentration, mean, error});
  }
  return table;
}

vtkSmartPointer<vtkTable> puromycinCurve(int points)
{
  const MichaelisMenten fit = fitPuromycin();
  const double end = curveOvershoot * puromycinRates().back().concentration;
  vtkSmartPointer<vtkTable> table = floatTable({"concentration", "fit"});
  for (int i = 0; i < points; ++i)
  {
    const double concentration = end * i / (points - 1);
    append(table, {concentration, michaelisMenten(concentration, fit.vm, fit.k)});
  }
  return table;
}

} // namespace Talmesh::app
