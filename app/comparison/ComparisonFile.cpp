#include "app/comparison/ComparisonFile.h"

#include "app/comparison/ComparisonText.h"
#include "app/comparison/TestNames.h"
#include "widgets/FileWriter.h"

#include <cmath>

namespace Talmesh::app
{

namespace
{

/// Every double can be read back from as many digits.
constexpr int allDigits = 17;

QString numberCell(double value)
{
  return std::isnan(value) ? QString() : QString::number(value, 'g', allDigits);
}

QString directionCell(const ComparedParameter& parameter)
{
  if (!parameter.leading.empty())
    return QStringLiteral("more often: ") + QString::fromStdString(parameter.leading);
  switch (parameter.result.direction)
  {
  case stats::Direction::larger:
    return QStringLiteral("larger in selected");
  case stats::Direction::smaller:
    return QStringLiteral("smaller in selected");
  case stats::Direction::bothWays:
    return QStringLiteral("both ways");
  case stats::Direction::none:
    break;
  }
  return {};
}

QString reasonOf(TestObstacle obstacle)
{
  switch (obstacle)
  {
  case TestObstacle::emptyGroup:
    return QStringLiteral("a group without values");
  case TestObstacle::constant:
    return QStringLiteral("constant");
  case TestObstacle::chosenByParameter:
    return QStringLiteral("chosen by this parameter");
  case TestObstacle::tooManyLevels:
    return QStringLiteral("too many values");
  case TestObstacle::tooFewUnits:
    return QStringLiteral("too few sets");
  case TestObstacle::cancelled:
    return QStringLiteral("cancelled");
  case TestObstacle::changingValues:
    return QStringLiteral("changes within a run");
  case TestObstacle::pending:
    return QStringLiteral("under way");
  case TestObstacle::alikeInFirstHalf:
    return QStringLiteral("does not differ in the first half");
  case TestObstacle::label:
    return QStringLiteral("tells replicates apart");
  case TestObstacle::none:
    break;
  }
  return {};
}

/// What is to be known of the numbers beside the test.
QString circumstancesOf(const ComparedParameter& parameter)
{
  const stats::ParameterComparison& result = parameter.result;
  QString text;
  if (result.isOnlyBounded())
    text += QStringLiteral("; ") + log10Text(result);
  if (result.adjustment == stats::Adjustment::holm)
    text += QStringLiteral("; adjusted by Holm");
  else if (result.adjustment == stats::Adjustment::maxT)
    text += QStringLiteral("; adjusted by maxT (%1 permutations; seed %2)")
                .arg(result.adjustingPermutations)
                .arg(result.seed);
  return text;
}

QString methodCell(const ComparedParameter& parameter)
{
  const QString half =
      parameter.seedOfHalf > 0
          ? QStringLiteral("; second half of the runs; seed %1").arg(parameter.seedOfHalf)
          : QString();
  if (parameter.obstacle == TestObstacle::none)
    return methodInFiles(parameter.result) + circumstancesOf(parameter) + half;
  return QStringLiteral("not tested: ") + reasonOf(parameter.obstacle) + half;
}

QString quotedIfNeeded(const QString& cell)
{
  const bool plain = !cell.contains(QLatin1Char(',')) && !cell.contains(QLatin1Char('"')) &&
                     !cell.contains(QLatin1Char('\n')) && !cell.contains(QLatin1Char('\r'));
  if (plain)
    return cell;
  return QLatin1Char('"') + QString(cell).replace(QLatin1Char('"'), QLatin1String("\"\"")) +
         QLatin1Char('"');
}

} // namespace

QStringList comparisonColumns()
{
  return QStringLiteral("parameter selected others D D_low D_high p p_adjusted method direction "
                        "superiority median_difference V")
      .split(QLatin1Char(' '));
}

QStringList comparisonCells(const ComparedParameter& parameter)
{
  const stats::ParameterComparison& result = parameter.result;
  return {QString::fromStdString(parameter.name),
          QString::number(result.selected),
          QString::number(result.others),
          numberCell(result.distance),
          numberCell(result.interval.low),
          numberCell(result.interval.high),
          numberCell(result.p),
          numberCell(result.adjusted),
          methodCell(parameter),
          directionCell(parameter),
          numberCell(result.superiority),
          numberCell(result.medianDifference),
          numberCell(result.association)};
}

QString commaLine(const QStringList& cells)
{
  QStringList written;
  for (const QString& cell : cells)
    written.append(quotedIfNeeded(cell));
  return written.join(QLatin1Char(',')) + QLatin1Char('\n');
}

QString commaText(const std::vector<ComparedParameter>& parameters)
{
  QString text = commaLine(comparisonColumns());
  for (const ComparedParameter& parameter : parameters)
    text += commaLine(comparisonCells(parameter));
  return text;
}

std::string writeText(const QString& path, const QString& text)
{
  const QByteArray bytes = text.toUtf8();
  const QString reason = writeFile(path, bytes.constData(), bytes.size());
  return reason.isEmpty() ? std::string() : (path + QLatin1String(": ") + reason).toStdString();
}

} // namespace Talmesh::app
