#ifndef SheetText_h
#define SheetText_h

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// Writes the cells of a sheet as the text of a table: fields between tabs, a line for each row, so
/// that a line has the number that the spreadsheet shows.
class SheetText
{
public:
  /// Blank cells, and what a file says by one cell for many, may take so many bytes of the text.
  static constexpr std::size_t mostFilling = std::size_t{64} << 20U;

  /// Cells come row by row, and in a row from the first column on; blank ones need not.
  /// @param row, column counted from 0
  void add(std::size_t row, std::size_t column, const std::string& text, bool isNumber);
  /// Writes the row of the last cell again, so many times.
  void repeatRow(std::size_t times);

  /// Whether there are several rows, and numbers in them.
  bool isTable() const { return rowsFilled > 1 && numbers > 0; }
  /// Whether the sheet is too blank to be written; what is added then is lost.
  bool isTooLarge() const { return filling > mostFilling; }
  std::string take();

private:
  void fill(std::size_t count, char with);

  std::string text;
  std::size_t filling = 0;
  std::size_t rowsFilled = 0;
  std::size_t numbers = 0;
  std::size_t row = 0;
  std::size_t rowStart = 0;
  std::size_t column = 0;
};

/// The text that is made of one of several sheets, as a message tells it.
std::string noteOnSheets(const std::string& shown, const std::vector<std::string>& all);
/// That no sheet is a table.
std::string noSheetIsTable(const std::vector<std::string>& all);
/// Why a sheet is refused that isTooLarge().
std::string sheetTooLarge();
/// That the workbook is damaged.
std::string damagedWorkbook();

} // namespace Talmesh::app

#endif
