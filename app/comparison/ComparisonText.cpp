#include "app/comparison/ComparisonText.h"

#include <QCoreApplication>
#include <QLocale>

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

QString atMost(const QString& number)
{
  return QStringLiteral("\u2264 ") + number;
}

/// Whether no permutation reached what was observed.
bool isBound(double p, std::size_t permutations)
{
  return permutations > 0 && p * (static_cast<double>(permutations) + 1.0) < 1.5;
}

/// A share of permutations, which has few digits.
QString permutedText(double p)
{
  return p < 1.0 && p >= largestFixed ? QStringLiteral("> 0.999") : QString::number(p, 'g', 3);
}

QString probabilityText(double p)
{
  if (p < smallestP)
    return QStringLiteral("< 1e-300");
  if (p < 1.0 && p >= largestFixed)
    return QStringLiteral("> 0.999");
  return numberText(p);
}

} // namespace

/// With commas between thousands, which the point of other numbers asks for.
QString countText(std::size_t count)
{
  return QLocale(QLocale::English).toString(static_cast<qulonglong>(count));
}

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
  const QString p = permutedText(result.p);
  return (isBound(result.p, result.permutations) ? atMost(p) : p) +
         QStringLiteral(" (%1)").arg(countText(result.permutations));
}

QString adjustedText(const stats::ParameterComparison& result)
{
  if (std::isnan(result.adjusted))
    return {};
  const bool byPermutations = result.adjustingPermutations > 0;
  const QString adjusted = byPermutations || result.permutations > 0
                               ? permutedText(result.adjusted)
                               : probabilityText(result.adjusted);
  const bool bound = byPermutations ? isBound(result.adjusted, result.adjustingPermutations)
                                    : isBound(result.p, result.permutations);
  return bound && result.adjusted < 1.0 ? atMost(adjusted) : adjusted;
}

QString log10Text(const stats::ParameterComparison& result)
{
  return QStringLiteral("log10 p = %1").arg(result.logP / std::log(10.0), 0, 'f', 4);
}

QString directionText(const ComparedParameter& parameter, const std::string& selected)
{
  if (parameter.leading.empty())
    return directionText(parameter.result.direction, selected);
  return Words::tr("%1 more often", "a text of a category")
      .arg(QString::fromStdString(parameter.leading));
}

QString directionText(stats::Direction direction, const std::string& selected)
{
  const QString name = QString::fromStdString(selected);
  switch (direction)
  {
  case stats::Direction::larger:
    return name.isEmpty() ? Words::tr("larger in selected") : Words::tr("larger in %1").arg(name);
  case stats::Direction::smaller:
    return name.isEmpty() ? Words::tr("smaller in selected") : Words::tr("smaller in %1").arg(name);
  case stats::Direction::bothWays:
    return Words::tr("larger and smaller");
  case stats::Direction::none:
    break;
  }
  return {};
}

QString effectText(const stats::ParameterComparison& result)
{
  if (result.isUnordered)
    return std::isnan(result.association) ? QString()
                                          : QStringLiteral("V ") + numberText(result.association);
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
    return Words::tr("chosen by this parameter");
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
  case TestObstacle::label:
    return Words::tr("number of a replicate");
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
    return Words::tr(
        "Not tested. The test was cancelled; another selection, test or seed starts it "
        "again.");
  case TestObstacle::changingValues:
    return Words::tr(
        "Not tested. Values change within a run: the test needs one value for every run.");
  case TestObstacle::pending:
    return Words::tr("The test is under way.");
  case TestObstacle::alikeInFirstHalf:
    return Words::tr("Not tested. It does not differ in the first half.");
  case TestObstacle::label:
    return Words::tr(
        "Not tested. By its name it tells replicates apart: without it, runs have equal "
        "parameters and are compared as sets.");
  case TestObstacle::none:
    break;
  }
  return {};
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
