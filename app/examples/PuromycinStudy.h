#ifndef PuromycinStudy_h
#define PuromycinStudy_h

#include <vtkSmartPointer.h>

#include <vector>

class vtkTable;

/// Initial rates of an enzymatic reaction in cells treated with puromycin (D. M. Bates and
/// D. G. Watts, Nonlinear Regression Analysis and Its Applications, Wiley 1988, appendix A1.3; the
/// numbers as in R's `Puromycin`), with the Michaelis-Menten curve fitted to them:
///
///   rate(concentration) = Vm concentration / (K + concentration)
namespace Talmesh::app
{

struct InitialRate
{
  double concentration; ///< parts per million
  double rate;          ///< counts per minute, squared
};

/// The treated cells: two replicates at each of six concentrations.
const std::vector<InitialRate>& puromycinRates();

struct MichaelisMenten
{
  double vm = 0.0; ///< units of the rate
  double k = 0.0;  ///< units of the concentration
};

MichaelisMenten fitPuromycin();

/// The scatter plot with error bars: "concentration" and "rate" are the means of the replicates and
/// "error" the half distance of the two, which is their standard deviation divided by sqrt(2), the
/// standard error of the mean. Single-precision columns.
vtkSmartPointer<vtkTable> puromycinMeans();

/// The fitted curve from zero to beyond the highest concentration: "concentration" and "fit",
/// single precision. `points` at least 2.
vtkSmartPointer<vtkTable> puromycinCurve(int points);

} // namespace Talmesh::app

#endif
