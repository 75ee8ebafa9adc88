#ifndef ComparisonSummary_h
#define ComparisonSummary_h

#include "app/comparison/ComparisonResults.h"

#include <QString>

#include <cstddef>

/// What is said of a comparison as a whole, in the user's language.
namespace Talmesh::app
{

/// What is independent: "12 sets of 10 runs".
QString unitsText(const stats::UnitSummary& units);

/// Why nothing is compared, in a sentence or two; empty where something is.
QString explanationText(const Comparison& comparison);

/// What holds for all of a comparison, in a few sentences.
/// @param selections how many selections the user has looked at
QString summaryText(const Comparison& comparison, std::size_t selections);

} // namespace Talmesh::app

#endif
