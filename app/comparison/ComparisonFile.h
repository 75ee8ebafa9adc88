#ifndef ComparisonFile_h
#define ComparisonFile_h

#include "app/comparison/ComparisonResults.h"

#include <QStringList>

#include <string>

/// A comparison as a table for other programs: the same columns, words and digits in every
/// language. docs/statistics.md tells what they mean.
namespace Talmesh::app
{

/// parameter, selected, others, D, ...
QStringList comparisonColumns();

/// One parameter in these columns. Numbers have 17 digits; what does not exist is empty.
QStringList comparisonCells(const ComparedParameter& parameter);

/// Lines of such cells, commas between them, quoted where they need it.
QString commaLine(const QStringList& cells);

/// The whole table below a line of the columns' names, in the order of the parameters.
QString commaText(const std::vector<ComparedParameter>& parameters);

/// Writes a text; the file appears complete or not at all.
/// @return why that failed, in one line of UTF-8 that begins with the file's name; empty on success
std::string writeText(const QString& path, const QString& text);

} // namespace Talmesh::app

#endif
