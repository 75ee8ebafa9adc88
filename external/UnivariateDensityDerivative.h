#ifndef UnivariateDensityDerivative_h
#define UnivariateDensityDerivative_h

#include "../export/TalmeshPlotExport.h"

/// Gaussian kernel density estimate of scalar samples.
///
/// At each target t the estimate is sum_i exp(-(t - s_i)^2 / (2 h^2)) / (n h sqrt(2 pi)) over the n
/// sources s_i with bandwidth h, so that it integrates to 1 (Silverman, Density Estimation for
/// Statistics and Data Analysis, 1986, section 2.4). The sum is evaluated exactly: of ascending
/// sources only the terms that reach its last bit are computed, which changes no bit of it.
class TALMESHPLOT_EXPORT UnivariateDensityDerivative
{
public:
  /// All arrays stay the caller's and must outlive the object.
  /// @param sources sourceCount values; with none of them the estimate is NaN everywhere.
  /// @param targets targetCount values.
  /// @param bandwidth in the units of the sources; NaN gives NaN everywhere.
  /// @param order derivative order; only 0, the density itself, is provided.
  /// @param epsilon allowed relative error; the exact sum satisfies any.
  /// @param output targetCount values, written by Evaluate().
  /// @throws std::invalid_argument for another order, a negative count, or a bandwidth that is zero
  ///   or negative.
  UnivariateDensityDerivative(int sourceCount, int targetCount, double* sources, double* targets,
                              double bandwidth, int order, double epsilon, double* output);

  /// Writes the estimate at every target into the output array.
  void Evaluate();

private:
  double term(double target, int source) const;
  double sumOfAll(double target) const;
  double sumOfAscending(double target) const;

  int sourceCount;
  int targetCount;
  const double* sources;
  const double* targets;
  double bandwidth;
  double* output;
};

#endif
