#ifndef IndomethacinStudy_h
#define IndomethacinStudy_h

#include "app/examples/LeastSquaresFit.h"
#include "external/FitRun.h"
#include "external/FitSettings.h"

#include <vtkSmartPointer.h>

#include <memory>
#include <vector>

class vtkTable;

/// Plasma concentrations of indomethacin after an injection into a vein: six subjects, eleven times
/// each (K. C. Kwan and others, Kinetics of indomethacin absorption, elimination, and enterohepatic
/// circulation in man, Journal of Pharmacokinetics and Biopharmaceutics 4, 1976, 255-280; the
/// numbers as in R's `Indometh`), and the decay over two compartments fitted to all of them:
///
///   concentration(t) = A1 exp(-k1 t) + A2 exp(-k2 t)
namespace Talmesh::app
{

/// Sampling times in hours after the injection.
const std::vector<double>& indomethacinTimes();

/// Concentrations in micrograms per millilitre, [subject][time].
const std::vector<std::vector<double>>& indomethacinConcentrations();

/// The decay at the given times.
/// @param parameters A1, k1, A2, k2
std::vector<double> twoCompartmentDecay(const std::vector<double>& parameters,
                                        const std::vector<double>& times);

/// Every step of the fit to all subjects at once.
std::vector<FitStep> fitIndomethacin();

/// The fit as the fit-parameter plot wants it, one row per step: the score (sum of squares), the
/// iteration, and the columns "Parameter: A1", "Parameter: k1", "Parameter: A2", "Parameter: k2".
vtkSmartPointer<vtkTable> indomethacinFitTable();

/// What the residual plot reads: a time course with one output per subject.
struct IndomethacinResiduals
{
  FitRun run;
  std::unique_ptr<FitSettings> settings;
  /// [subject][time], the same for every subject.
  std::vector<std::vector<double>> predictions;
};

/// The errors are the standard deviations of the subjects at each time.
IndomethacinResiduals indomethacinResiduals();

} // namespace Talmesh::app

#endif
