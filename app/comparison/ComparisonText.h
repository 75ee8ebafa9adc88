#ifndef ComparisonText_h
#define ComparisonText_h

#include "app/comparison/ComparisonResults.h"

#include <QString>

/// What a comparison says, in the user's language. Numbers have a point, as in files.
namespace Talmesh::app
{

/// As many digits as a reader compares. No number is rounded to 1 or to 0 that is not.
QString numberText(double value);

/// "0.0312", "≤ 0.0001 (9,999)" for a p-value that no permutation of so many has reached, "<
/// 1e-300".
QString pText(const stats::ParameterComparison& result);
QString adjustedText(const stats::ParameterComparison& result);

/// "log10 p = -359.2873", for a p that doubles only bound.
QString log10Text(const stats::ParameterComparison& result);

/// "larger in selected"
/// @param selected as the selected runs are called; empty without a name
QString directionText(stats::Direction direction, const std::string& selected = {});
/// The same of a parameter; of a category "aspirin more often".
QString directionText(const ComparedParameter& parameter, const std::string& selected);
/// "0.53 (0.31-0.74)"; without what there is not. "V 0.62" of a category.
QString effectText(const stats::ParameterComparison& result);
/// Why there is no p, in a word or two and in a sentence.
QString obstacleLabel(TestObstacle obstacle);
QString obstacleText(TestObstacle obstacle);

/// "9,999"
QString countText(std::size_t count);

/// What a chart says of its parameter, in a few words.
QString chartTitle(const ComparedParameter& parameter);

} // namespace Talmesh::app

#endif
