#ifndef DelimitedText_h
#define DelimitedText_h

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// Reads delimited text record by record.
///
/// A field may stand in double quotes; inside, a doubled quote is one quote, and delimiters and
/// line ends belong to the field. Blanks around the quotes do not. A lone quote inside a quoted
/// field is taken as it stands, as writers that do not double their quotes mean it. Records end
/// with LF, CR LF or CR. Records without any character are skipped.
class DelimitedText
{
public:
  /// @param text the whole text, without a byte-order mark; it must outlive the reader.
  DelimitedText(std::string_view text, char delimiter);

  /// Reads the next record.
  /// @param fields receives its fields; they stay valid until the next call.
  /// @return false at the end of the text, with no fields.
  bool next(std::vector<std::string_view>& fields);

  /// The line, counted from 1, on which the last record starts.
  std::size_t line() const { return recordLine; }
  /// How many bytes are read.
  std::size_t position() const { return cursor; }
  /// Whether the last record ended with the text inside a quoted field.
  bool endedInsideQuotes() const { return openQuotes; }

private:
  bool atLineEnd() const;
  void skipLineEnd();
  void skipEmptyLines();
  bool isBlank(char c) const;
  std::size_t afterBlanks(std::size_t from) const;
  std::string_view plainField();
  std::string_view quotedField();
  bool closesField(std::size_t quote) const;

  std::string_view text;
  char delimiter;
  std::size_t cursor = 0;
  std::size_t currentLine = 1;
  std::size_t recordLine = 1;
  bool openQuotes = false;
  std::deque<std::string> unescaped;
};

/// Whether a record holds nothing but blanks, as spreadsheets leave them.
bool isBlankRecord(const std::vector<std::string_view>& fields);

/// The delimiter among tab, semicolon and comma that splits the first records most evenly: the
/// same number of fields, more than one, in every record that is not blank; among equals the one
/// under which the largest part of the cells below the headers are numbers, then the one with most
/// fields. A text that none of them splits has a single column, and the answer is the semicolon, so
/// that decimal commas can be read.
char detectDelimiter(std::string_view text);

/// The text without a leading UTF-8 byte-order mark.
std::string_view withoutByteOrderMark(std::string_view text);

} // namespace Talmesh::app

#endif
