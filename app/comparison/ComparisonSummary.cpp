#include "app/comparison/ComparisonSummary.h"

#include "app/comparison/ComparisonText.h"

#include <QCoreApplication>
#include <QStringList>

namespace Talmesh::app
{

namespace
{

class Words
{
  Q_DECLARE_TR_FUNCTIONS(ComparisonText)
};

/// Which runs are compared, unless it is the present selection with the others.
QStringList sentencesOnSides(const Comparison& comparison)
{
  QStringList sentences;
  const ComparedNames& sides = comparison.sides;
  if (!sides.selected.empty() || !sides.others.empty())
    sentences.append(Words::tr("%1 compared with %2.", "two groups of runs")
                         .arg(sides.selected.empty() ? Words::tr("The present selection")
                                                     : QString::fromStdString(sides.selected),
                              sides.others.empty() ? Words::tr("the others")
                                                   : QString::fromStdString(sides.others)));
  if (comparison.inBoth > 0)
    sentences.append(
        Words::tr("Runs in both, which count for neither: %1.").arg(comparison.inBoth));
  return sentences;
}

QString sentenceOnHalves(const Comparison& comparison)
{
  const QString text =
      comparison.byWords
          ? Words::tr("Tested is one half, drawn at random (seed %1): what differs in the other "
                      "half. The same words select the runs in both.")
          : Words::tr("Tested is one half, drawn at random (seed %1): what differs in the other "
                      "half. No words select the runs, so the selection itself was split.");
  return text.arg(comparison.seedOfHalves);
}

QString unitsOf(const stats::UnitSummary& units, const QString& one, const QString& range)
{
  if (units.fewestRuns == units.mostRuns)
    return one.arg(units.units).arg(units.mostRuns);
  return range.arg(units.units).arg(units.fewestRuns).arg(units.mostRuns);
}

} // namespace

QString unitsText(const stats::UnitSummary& units)
{
  switch (units.kind)
  {
  case stats::IndependentUnit::parameterSet:
    return unitsOf(units, Words::tr("%1 sets of %2 runs"), Words::tr("%1 sets of %2 to %3 runs"));
  case stats::IndependentUnit::baseSample:
    return unitsOf(units, Words::tr("%1 base samples of %2 runs"),
                   Words::tr("%1 base samples of %2 to %3 runs"));
  case stats::IndependentUnit::linkedRuns:
    return unitsOf(units, Words::tr("%1 groups of %2 runs that share values"),
                   Words::tr("%1 groups of %2 to %3 runs that share values"));
  case stats::IndependentUnit::run:
    break;
  }
  return Words::tr("%1 runs").arg(units.units);
}

QString explanationText(const Comparison& comparison)
{
  const auto hasNone = [](const std::string& name)
  { return Words::tr("%1 has no runs.").arg(QString::fromStdString(name)); };
  switch (comparison.state)
  {
  case Comparison::State::noParameters:
    return Words::tr("This table has no parameters to compare.");
  case Comparison::State::nothingSelected:
    return comparison.sides.selected.empty()
               ? Words::tr("Nothing is selected. Drag a rectangle over some runs with the right "
                           "mouse button to compare their parameters with those of the other runs.")
               : hasNone(comparison.sides.selected);
  case Comparison::State::noOthers:
    if (!comparison.sides.others.empty())
      return hasNone(comparison.sides.others);
    return comparison.sides.selected.empty()
               ? Words::tr("All runs are selected; there are none to compare them with.")
               : Words::tr("%1 has all runs; there are none to compare them with.")
                     .arg(QString::fromStdString(comparison.sides.selected));
  case Comparison::State::onlyInBoth:
    return Words::tr(
        "Runs that are in both selections count for neither, and without them there is "
        "nothing to compare.");
  case Comparison::State::compared:
    break;
  }
  return {};
}

QString summaryText(const Comparison& comparison, std::size_t selections)
{
  if (comparison.state != Comparison::State::compared)
    return {};
  QStringList sentences = sentencesOnSides(comparison);
  if (comparison.halved)
    sentences.append(sentenceOnHalves(comparison));
  if (comparison.units.units > 0)
    sentences.append(Words::tr("Independent: %1.").arg(unitsText(comparison.units)));
  if (comparison.units.contradictsDesign)
    sentences.append(Words::tr("The runs are no Saltelli design of so many parameters, which has k "
                               "+ 2 or 2 k + 2 runs for each base sample."));
  if (comparison.permutations > 0)
    sentences.append(Words::tr("%1 permutations, seed %2.")
                         .arg(countText(comparison.permutations))
                         .arg(comparison.seed));
  if (comparison.pending)
    sentences.append(Words::tr("The test is under way."));
  if (!comparison.halved && !comparison.pending)
    sentences.append(
        Words::tr("p-values found after looking are exploratory; selections looked at so "
                  "far: %1; check in halves.")
            .arg(selections));
  return sentences.join(QLatin1Char(' '));
}

} // namespace Talmesh::app
