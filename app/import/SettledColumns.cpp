#include "app/import/RoleChoice.h"
#include "app/import/RoleNames.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"
#include "plot/SelectionFlags.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Talmesh::app
{

namespace
{

constexpr double secondsOfDay = 86400.0;

class ColumnSettler
{
public:
  ColumnSettler(TableText& text_, ImportReport& report_)
      : text(text_)
      , report(report_)
  {
  }

  void settle()
  {
    for (std::size_t i = 0; i < text.columns.size(); ++i)
    {
      tellCensored(i);
      if (text.uses[i] == ColumnUse::Ignored)
        report.ignored.push_back(name(i));
      else if (text.columns[i].isDates() && !has(text.roles.askedRuns, i))
        makeTime(i);
      else if (isFree(i))
        setAside(i);
    }
    if (!text.columns.empty() && isFree(0) && countsRows(text.columns.front()))
      ignore(0,
             text.roles.headers.front().unnamed
                 ? translated("RunTableImport",
                              "The first column has no name and counts the rows; it is left out.")
                 : withValues(translated("SettledColumns",
                                         "The column %1 counts the rows; it is left out."),
                              {quotedForMessage(name(0))}));
  }

private:
  const std::string& name(std::size_t column) const { return text.roles.headers[column].name; }

  static bool has(const std::vector<int>& columns, std::size_t column)
  {
    return std::find(columns.begin(), columns.end(), static_cast<int>(column)) != columns.end();
  }

  bool isFree(std::size_t column) const
  {
    const ColumnRoles& roles = text.roles;
    const int index = static_cast<int>(column);
    return text.uses[column] == ColumnUse::Open && !roles.headers[column].typed &&
           index != roles.timeColumn && index != roles.itemColumn && index != roles.valueColumn &&
           !has(roles.askedRuns, column) && !has(roles.runCandidates, column);
  }

  void ignore(std::size_t column, const std::string& warning)
  {
    text.uses[column] = ColumnUse::Ignored;
    report.ignored.push_back(name(column));
    report.warnings.push_back(warning);
  }

  void setAside(std::size_t i)
  {
    const ColumnValues& column = text.columns[i];
    const std::string shown = quotedForMessage(name(i));
    if (plot::isSelectionMark(name(i)))
      ignore(i, withValues(translated("RunTableImport",
                                      "The column %1 marks a former selection and is left out."),
                           {shown}));
    else if (!column.isText() && isErrorOfAnother(name(i)))
    {
      text.uses[i] = ColumnUse::Ignored;
      report.ignored.push_back(name(i));
      report.reasons.push_back(withValues(
          translated("LongTable", "the column %1 tells how exact the values are, which is not "
                                  "shown"),
          {shown}));
    }
    else if (i == 0 && column.isText() && namesRows(column))
      ignore(i, translated("SettledColumns",
                           "The first column holds names of the rows and is left out."));
    else if (column.hasTooManyTexts)
      ignore(i, withValues(translated("SettledColumns",
                                      "The column %1 holds more than %2 different texts and is "
                                      "left out."),
                           {shown, std::to_string(ColumnValues::mostLevels)}));
  }

  /// Whether a name is that of another column, or of its mean, with a word for errors: A_sd beside
  /// A or A_mean.
  bool isErrorOfAnother(const std::string& error) const
  {
    const std::size_t cut = error.find_last_of("_. ");
    if (cut == std::string::npos || cut == 0 || !isErrorName(error))
      return false;
    const std::string stem = error.substr(0, cut);
    return std::any_of(text.roles.headers.begin(), text.roles.headers.end(),
                       [&stem](const ColumnHeader& header)
                       {
                         return header.name == stem ||
                                (header.name.compare(0, stem.size(), stem) == 0 &&
                                 isMeanName(header.name.substr(stem.size())));
                       });
  }

  /// Whether a column without a name, or with one for row numbers, holds another text in each row.
  bool namesRows(const ColumnValues& column) const
  {
    const ColumnHeader& header = text.roles.headers.front();
    return (header.unnamed || isRowNumberName(header.name)) && text.rows > 1 &&
           (column.hasTooManyTexts || column.levels.names().size() == text.rows);
  }

  /// Whether the first column is the one that pandas and R put before a table unless told
  /// otherwise: without a name, or with one that they make up, it counts the rows.
  bool countsRows(const ColumnValues& first) const
  {
    const ColumnHeader& header = text.roles.headers.front();
    if ((!header.unnamed && !isRowNumberName(header.name)) || first.numbers != text.rows)
      return false;
    const double start = first.values.front();
    // Rows that were taken out of a longer table keep their numbers.
    const bool counts = header.unnamed || !namesRowsOnly(header.name);
    for (std::size_t row = 0; row < text.rows && counts; ++row)
      if (first.values[row] != start + static_cast<double>(row))
        return false;
    const bool otherNumbers = std::any_of(text.columns.begin() + 1, text.columns.end(),
                                          [](const ColumnValues& column)
                                          { return column.numbers > 0 || column.isDates(); });
    return otherNumbers && (!counts || start == 0.0 || start == 1.0);
  }

  void tellCensored(std::size_t i)
  {
    const ColumnValues& column = text.columns[i];
    if (column.censored == 0 || text.uses[i] == ColumnUse::Ignored)
      return;
    report.warnings.push_back(withValues(
        translated("SettledColumns", "Line %1: %2 in the column %3 is beyond what could "
                                     "be measured, and counts as missing (%4 in all)."),
        {std::to_string(column.firstCensored.line), quotedForMessage(column.firstCensored.text),
         quotedForMessage(name(i)), std::to_string(column.censored)}));
  }

  /// Dates become days, dates with a time of day seconds since the first of them.
  void makeTime(std::size_t i)
  {
    ColumnValues& column = text.columns[i];
    double first = std::numeric_limits<double>::infinity();
    for (const double value : column.values)
      if (!std::isnan(value))
        first = std::min(first, value);
    const bool days = column.bareDates == column.dates;
    for (double& value : column.values)
      value = (value - first) / (days ? secondsOfDay : 1.0);
    const std::string was = name(i);
    ColumnHeader& header = text.roles.headers[i];
    header.name += days ? " [d]" : " [s]";
    column.numbers = column.dates;
    column.dates = 0;
    column.levels.clear();
    // Names of columns differ, and dates that are no time are quantities like others.
    if (text.roles.timeColumn < 0)
      text.roles.timeColumn = static_cast<int>(i);
    report.reasons.push_back(withValues(
        days ? translated("SettledColumns", "the dates of %1 are days since the first of them")
             : translated("SettledColumns", "the times of %1 are seconds since the first of them"),
        {quotedForMessage(was)}));
  }

  TableText& text;
  ImportReport& report;
};

} // namespace

void settleColumns(TableText& text, ImportReport& report)
{
  ColumnSettler(text, report).settle();
}

} // namespace Talmesh::app
