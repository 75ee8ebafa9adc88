#ifndef Distribution_h
#define Distribution_h

#include "../export/TalmeshPlotExport.h"

#include <utility>

/// A probability distribution of one parameter.
class TALMESHPLOT_EXPORT Distribution
{
public:
  /// The kinds provided here. Other subclasses may return any other int.
  enum Kind : int
  {
    Uniform = 0,
    LogUniform = 1,
    Normal = 2,
    PointMass = 5
  };

  virtual ~Distribution();

  /// PointMass (5) marks a fixed value; any other value a continuous distribution.
  virtual int kind() const = 0;

  /// The density at x, 0 outside the support, NaN for a NaN.
  virtual double density(double x) const = 0;

  /// The interval (lo, hi) to draw.
  /// @param extent how far to follow unbounded tails, in units of the usual view: a normal
  ///   distribution spans three standard deviations to each side per unit. Values below 1 count as
  ///   1. Distributions with bounded support return their support and ignore it.
  virtual std::pair<double, double> range(int extent) const = 0;

protected:
  Distribution() = default;
  Distribution(const Distribution&) = default;
  Distribution& operator=(const Distribution&) = default;
};

/// Constant density on [lo, hi].
class TALMESHPLOT_EXPORT UniformDistribution : public Distribution
{
public:
  /// @throws std::invalid_argument unless lo < hi and both bounds and their distance are finite.
  UniformDistribution(double lo, double hi);

  int kind() const override { return Uniform; }
  double density(double x) const override;
  std::pair<double, double> range(int extent) const override;

private:
  double lower;
  double upper;
};

/// The logarithm is uniform: density 1 / (x ln(hi / lo)) on [lo, hi].
class TALMESHPLOT_EXPORT LogUniformDistribution : public Distribution
{
public:
  /// @throws std::invalid_argument unless 0 < lo, hi is finite and ln lo < ln hi as doubles.
  LogUniformDistribution(double lo, double hi);

  int kind() const override { return LogUniform; }
  double density(double x) const override;
  std::pair<double, double> range(int extent) const override;

private:
  double lower;
  double upper;
};

/// The normal distribution with the given mean and standard deviation.
class TALMESHPLOT_EXPORT NormalDistribution : public Distribution
{
public:
  /// @throws std::invalid_argument unless mean is finite and sd is finite and positive.
  NormalDistribution(double mean, double sd);

  int kind() const override { return Normal; }
  double density(double x) const override;
  /// mean - 3 sd extent to mean + 3 sd extent.
  std::pair<double, double> range(int extent) const override;

private:
  double mean;
  double sd;
};

/// All probability on one value.
class TALMESHPLOT_EXPORT PointMassDistribution : public Distribution
{
public:
  /// @throws std::invalid_argument unless value is finite.
  explicit PointMassDistribution(double value);

  int kind() const override { return PointMass; }
  /// Infinite at the value and 0 elsewhere.
  double density(double x) const override;
  /// (value, value).
  std::pair<double, double> range(int extent) const override;

private:
  double value;
};

#endif
