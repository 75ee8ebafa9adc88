#include "app/comparison/ComparisonText.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

#include <cmath>

namespace Talmesh::app
{

namespace
{

class Words
{
  Q_DECLARE_TR_FUNCTIONS(ComparisonText)
};

/// Below, numbers are told by their power of ten.
constexpr double smallestFixed = 0.001;
/// Below, p-values lose digits.
constexpr double smallestP = 1e-300;
/// What three digits can tell from 1.
constexpr double largestFixed = 0.9995;

/// With commas between thousands, which the point of other numbers asks for.
QString countText(std::size_t count)
{
  return QLocale(QLocale::English).toString(static_cast<qulonglong>(count));
}

QString atMost(const QString& number)
{
  return QStringLiteral("\u2264 ") + number;
}

/// Whether no permutation reached what was observed.
bool isBound(const stats::ParameterComparison& result)
{
  return result.permutations > 0 &&
         result.p * (static_cast<double>(result.permutations) + 1.0) < 1.5;
}

QString probabilityText(double p)
{
  if (p < smallestP)
    return QStringLiteral("< 1e-300");
  if (p < 1.0 && p >= largestFixed)
    return QStringLiteral("> 0.999");
  return numberText(p);
}

QString unitsOf(const stats::UnitSummary& units, const QString& one, const QString& range)
{
  if (units.fewestRuns == units.mostRuns)
    return one.arg(units.units).arg(units.mostRuns);
  return range.arg(units.units).arg(units.fewestRuns).arg(units.mostRuns);
}

} // namespace

QString numberText(double value)
{
  if (std::isnan(value))
    return {};
  const double size = std::abs(value);
  if (size != 0.0 && (size < smallestFixed || size >= 1e6))
    return QString::number(value, 'e', 2);
  return size < 10.0 ? QString::number(value, 'f', 3) : QString::number(value, 'g', 4);
}

QString pText(const stats::ParameterComparison& result)
{
  if (std::isnan(result.p))
    return {};
  if (result.permutations == 0)
    return probabilityText(result.p);
  const QString p = QString::number(result.p, 'g', 3);
  return (isBound(result) ? atMost(p) : p) +
         QStringLiteral(" (%1)").arg(countText(result.permutations));
}

QString adjustedText(const stats::ParameterComparison& result)
{
  if (std::isnan(result.adjusted))
    return {};
  const QString adjusted = result.permutations > 0 ? QString::number(result.adjusted, 'g', 3)
                                                   : probabilityText(result.adjusted);
  return isBound(result) && result.adjusted < 1.0 ? atMost(adjusted) : adjusted;
}

QString directionText(stats::Direction direction)
{
  switch (direction)
  {
  case stats::Direction::larger:
    return Words::tr("larger in selected");
  case stats::Direction::smaller:
    return Words::tr("smaller in selected");
  case stats::Direction::bothWays:
    return Words::tr("larger and smaller");
  case stats::Direction::none:
    break;
  }
  return {};
}

QString distanceText(const stats::ParameterComparison& result)
{
  const QString distance = numberText(result.distance);
  if (std::isnan(result.interval.low))
    return distance;
  return QStringLiteral("%1 (%2\u2013%3)")
      .arg(distance)
      .arg(result.interval.low, 0, 'f', 2)
      .arg(result.interval.high, 0, 'f', 2);
}

QString obstacleLabel(TestObstacle obstacle)
{
  switch (obstacle)
  {
  case TestObstacle::emptyGroup:
    return Words::tr("no values");
  case TestObstacle::constant:
    return Words::tr("constant");
  case TestObstacle::chosenByParameter:
    return Words::tr("chosen by this");
  case TestObstacle::tooManyLevels:
    return Words::tr("too many values");
  case TestObstacle::tooFewUnits:
    return Words::tr("too few sets");
  case TestObstacle::cancelled:
    return Words::tr("cancelled");
  case TestObstacle::changingValues:
    return Words::tr("changes in a run");
  case TestObstacle::pending:
    return QString(QChar(0x2026)); // dots
  case TestObstacle::alikeInFirstHalf:
    return Words::tr("alike in first half");
  case TestObstacle::none:
    break;
  }
  return {};
}

QString obstacleText(TestObstacle obstacle)
{
  switch (obstacle)
  {
  case TestObstacle::emptyGroup:
    return Words::tr("Not tested. No selected run, or no other one, has a value.");
  case TestObstacle::constant:
    return Words::tr("Not tested. All runs have the same value.");
  case TestObstacle::chosenByParameter:
    return Words::tr(
        "Chosen by this parameter: the selection asks for its values, so a test would only "
        "say so.");
  case TestObstacle::tooManyLevels:
    return Words::tr("Not tested. Counts need a parameter of at most 50 different values.");
  case TestObstacle::tooFewUnits:
    return Words::tr(
        "Not tested. There are too few parameter sets with as many runs: no p below 0.05 "
        "exists.");
  case TestObstacle::cancelled:
    return Words::tr("Not tested. The test was cancelled.");
  case TestObstacle::changingValues:
    return Words::tr(
        "Not tested. Values change within a run: the test needs one value for every run.");
  case TestObstacle::pending:
    return Words::tr("The test is under way.");
  case TestObstacle::alikeInFirstHalf:
    return Words::tr("Not tested. It does not differ in the first half.");
  case TestObstacle::none:
    break;
  }
  return {};
}

QString unitsText(const stats::UnitSummary& units)
{
  switch (units.kind)
  {
  case stats::IndependentUnit::parameterSet:
    return unitsOf(units, Words::tr("%1 sets of %2 runs"), Words::tr("%1 sets of %2 to %3 runs"));
  case stats::IndependentUnit::baseSample:
    return unitsOf(units, Words::tr("%1 base samples of %2 runs"),
                   Words::tr("%1 base samples of %2 to %3 runs"));
  case stats::IndependentUnit::run:
    break;
  }
  return Words::tr("%1 runs").arg(units.units);
}

QString summaryText(const Comparison& comparison, std::size_t selections)
{
  if (comparison.state != Comparison::State::compared)
    return {};
  QStringList sentences;
  if (comparison.halved)
    sentences.append(Words::tr("Tested is one half, drawn at random (seed %1): what differs in the "
                               "other half.")
                         .arg(comparison.seedOfHalves));
  if (comparison.units.units > 0)
    sentences.append(Words::tr("Independent: %1.").arg(unitsText(comparison.units)));
  if (comparison.permutations > 0)
    sentences.append(Words::tr("%1 permutations, seed %2.")
                         .arg(countText(comparison.permutations))
                         .arg(comparison.seed));
  if (comparison.pending)
    sentences.append(Words::tr("The test is under way."));
  if (!comparison.halved)
    sentences.append(
        Words::tr("p-values found after looking are exploratory; selections looked at so "
                  "far: %1.")
            .arg(selections));
  return sentences.join(QLatin1Char(' '));
}

QString chartTitle(const ComparedParameter& parameter)
{
  if (parameter.obstacle != TestObstacle::none)
    return obstacleLabel(parameter.obstacle);
  const QString adjusted = adjustedText(parameter.result);
  const bool isRelation = !adjusted.isEmpty() && !adjusted.front().isDigit();
  return Words::tr("adjusted p %1", "a number behind =, or an unequal sign and a number")
      .arg(isRelation ? adjusted : QStringLiteral("= ") + adjusted);
}

} // namespace Talmesh::app
