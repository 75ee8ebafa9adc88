#ifndef ColumnValues_h
#define ColumnValues_h

#include "app/import/TextLevels.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// A cell that a message may have to name.
struct NotedCell
{
  /// The line, counted from 1; 0 for none.
  std::size_t line = 0;
  std::string text;

  /// Keeps the first cell that is noted.
  void note(std::string_view field, std::size_t at);
};

/// The values of one column as read.
struct ColumnValues
{
  /// Columns of more different texts hold no categories, and their texts are not kept.
  static constexpr std::size_t mostLevels = 10000;

  /// Of texts NaN, of dates the seconds since 1970, of times of day those since midnight. Where
  /// the texts of all cells are kept, only completeValues() makes them.
  std::vector<double> values;
  std::size_t numbers = 0;
  /// Cells that are neither numbers nor dates nor missing.
  std::size_t texts = 0;
  std::size_t dates = 0;
  /// Dates without a time of day, and times of day without a date.
  std::size_t bareDates = 0;
  std::size_t bareTimes = 0;
  /// Values beyond what could be measured, which are missing: "<BLQ".
  std::size_t censored = 0;
  /// Numbers with a decimal comma, and those of them that could be thousands: 1,234.
  std::size_t commas = 0;
  std::size_t thousands = 0;
  /// The texts, from the first one on, or of all cells where the text counts.
  TextLevels levels;
  /// Whether the text of each cell counts, also of numbers, as in names of runs.
  bool keepsTexts = false;
  /// Whether that is no more than a guess, which very many different numbers with fractions prove
  /// wrong.
  bool mayBeQuantity = false;
  bool hasTooManyTexts = false;
  NotedCell firstText;
  NotedCell firstFraction;
  NotedCell firstDecimalPoint;
  NotedCell firstDecimalComma;
  NotedCell firstCensored;
  /// The first cell without anything in it; noted where texts are kept.
  NotedCell firstEmpty;

  /// Reads the next cell.
  void read(std::string_view field, bool mayHaveCommas, std::size_t line);
  void reserve(std::size_t rows);
  /// Keeps the text of each cell from here on.
  void keepTexts(bool guessed)
  {
    keepsTexts = true;
    mayBeQuantity = guessed;
  }
  /// The value of a cell, also where there are only texts.
  double valueAt(std::size_t row) const;
  std::size_t rows() const { return values.empty() ? levels.rows().size() : values.size(); }
  /// Makes the values of the texts, where there are none yet.
  void completeValues();
  /// Gives every number a text, the shortest one that is read as that number.
  void completeTexts();

  /// Whether the column is one of numbers: of several, or of nothing at all.
  bool isNumeric() const { return texts == 0 && dates == 0; }
  /// Whether its cells are dates or times of day.
  bool isDates() const { return dates > 0 && texts == 0 && numbers == 0; }
  /// Whether it holds texts, at least more of them than numbers.
  bool isText() const { return texts + dates > numbers && !isDates(); }

private:
  void keepName(std::string_view field, double value);

  /// What the first texts are read as.
  std::vector<double> valueOfLevel;
};

/// A column of numbers that a reader of another format has.
ColumnValues columnOfNumbers(std::vector<double> values);

/// Some rows of a column, in their order.
ColumnValues gatheredColumn(const ColumnValues& column, const std::vector<std::size_t>& rows);

/// A column of texts; numbers among them are read as such.
ColumnValues columnOfTexts(const std::vector<std::string>& texts);

} // namespace Talmesh::app

#endif
