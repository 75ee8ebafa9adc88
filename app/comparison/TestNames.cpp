#include "app/comparison/TestNames.h"

#include <QCoreApplication>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

class Words
{
  Q_DECLARE_TR_FUNCTIONS(TestNames)
};

/// Of a test by permutations.
QString statisticInFiles(stats::ComparedBy comparedBy)
{
  switch (comparedBy)
  {
  case stats::ComparedBy::distribution:
    break;
  case stats::ComparedBy::rankSum:
    return QStringLiteral("Mann-Whitney");
  case stats::ComparedBy::counts:
    return QStringLiteral("counts");
  }
  return QStringLiteral("Kolmogorov-Smirnov");
}

QString permutedInFiles(const char* format, const stats::ParameterComparison& result)
{
  return QString(QLatin1String(format))
      .arg(statisticInFiles(result.comparedBy))
      .arg(result.permutations)
      .arg(result.seed);
}

} // namespace

QList<ChoiceName> comparedByNames()
{
  return {
      {QStringLiteral("distributions"), Words::tr("KS: distributions"),
       Words::tr("Kolmogorov-Smirnov: any difference of the distributions, also values at both "
                 "ends or in the middle")},
      {QStringLiteral("ranks"), Words::tr("Mann-Whitney: ranks"),
       Words::tr("Whether selected runs tend to larger, or to smaller values; sharper for that, "
                 "blind for differences both ways")},
      {QStringLiteral("counts"), Words::tr("Counts per value"),
       Words::tr("For parameters with few values, taken as names without an order: Fisher's "
                 "exact test, or chi-squared for large tables")}};
}

QList<ChoiceName> adjustmentNames()
{
  return {
      {QStringLiteral("benjaminiHochberg"), Words::tr("BH: false discoveries"),
       Words::tr("Benjamini and Hochberg: the expected part of false ones among all that are "
                 "found")},
      {QStringLiteral("holm"), Words::tr("Holm: any false one"),
       Words::tr("Holm: the probability that any found one is false")},
      {QStringLiteral("maxT"), Words::tr("maxT: any false one"),
       Words::tr("Westfall and Young: the same by permutations, less strict where parameters hang "
                 "together")}};
}

int positionOf(const QString& key, const QList<ChoiceName>& names)
{
  const auto found = std::find_if(names.begin(), names.end(),
                                  [&key](const ChoiceName& name) { return name.key == key; });
  return found == names.end() ? 0 : static_cast<int>(found - names.begin());
}

QString methodText(stats::TestMethod method)
{
  switch (method)
  {
  case stats::TestMethod::exactDistribution:
    return Words::tr("Kolmogorov-Smirnov test, exact for the ties there are");
  case stats::TestMethod::asymptoticDistribution:
    return Words::tr("Kolmogorov-Smirnov test, the limit for large groups");
  case stats::TestMethod::exactRankSum:
    return Words::tr("Mann-Whitney test, exact for the ties there are");
  case stats::TestMethod::normalRankSum:
    return Words::tr("Mann-Whitney test, by the normal distribution with ties");
  case stats::TestMethod::exactCounts:
    return Words::tr("Fisher's exact test of the counts per value");
  case stats::TestMethod::chiSquaredCounts:
    return Words::tr("Chi-squared test of the counts per value");
  case stats::TestMethod::permutedRuns:
    return Words::tr("Permutations of the runs, for the counts per value");
  case stats::TestMethod::permutedSets:
    return Words::tr("Permutations of whole parameter sets");
  case stats::TestMethod::permutedBaseSamples:
    return Words::tr("Permutations of whole base samples");
  case stats::TestMethod::permutedLinkedRuns:
    return Words::tr("Permutations of whole groups of runs that share values");
  case stats::TestMethod::none:
    break;
  }
  return {};
}

QString methodInFiles(const stats::ParameterComparison& result)
{
  switch (result.method)
  {
  case stats::TestMethod::exactDistribution:
    return QStringLiteral("Kolmogorov-Smirnov (exact)");
  case stats::TestMethod::asymptoticDistribution:
    return QStringLiteral("Kolmogorov-Smirnov (asymptotic)");
  case stats::TestMethod::exactRankSum:
    return QStringLiteral("Mann-Whitney (exact)");
  case stats::TestMethod::normalRankSum:
    return QStringLiteral("Mann-Whitney (normal)");
  case stats::TestMethod::exactCounts:
    return QStringLiteral("counts (Fisher)");
  case stats::TestMethod::chiSquaredCounts:
    return QStringLiteral("counts (chi-squared)");
  case stats::TestMethod::permutedRuns:
    return permutedInFiles("%1 (%2 permutations of runs; seed %3)", result);
  case stats::TestMethod::permutedSets:
    return permutedInFiles("%1 (%2 permutations of sets; seed %3)", result);
  case stats::TestMethod::permutedBaseSamples:
    return permutedInFiles("%1 (%2 permutations of base samples; seed %3)", result);
  case stats::TestMethod::permutedLinkedRuns:
    return permutedInFiles("%1 (%2 permutations of groups of runs; seed %3)", result);
  case stats::TestMethod::none:
    break;
  }
  return QStringLiteral("not tested");
}

} // namespace Talmesh::app
