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
/// with LF, CR LF or CR. Records without any character are skipped, and so are lines of comment.
/// Where a blank parts the fields, any number of blanks and tabs is one.
class DelimitedText
{
public:
  /// @param text the whole text, without a byte-order mark; it must outlive the reader.
  /// @param comment what lines of comment begin with, behind blanks; empty without such lines.
  DelimitedText(std::string_view text, char delimiter, std::string_view comment = {});

  /// Goes on at `position`, which is where the given line starts.
  void skipTo(std::size_t position, std::size_t line);

  /// Reads the next record.
  /// @param fields receives its fields; they stay valid until the next call.
  /// @return false at the end of the text, with no fields.
  bool next(std::vector<std::string_view>& fields);

  /// The line, counted from 1, on which the last record starts.
  std::size_t line() const { return recordLine; }
  /// The line behind the last record.
  std::size_t followingLine() const { return currentLine; }
  /// How many bytes are read.
  std::size_t position() const { return cursor; }
  /// Whether the last record ended with the text inside a quoted field.
  bool endedInsideQuotes() const { return openQuotes; }

private:
  bool atLineEnd() const;
  void skipLineEnd();
  void skipEmptyLines();
  bool skipComment();
  void readFields(std::vector<std::string_view>& fields);
  void readWords(std::vector<std::string_view>& fields);
  bool isBlank(char c) const;
  std::size_t afterBlanks(std::size_t from) const;
  std::string_view plainField();
  std::string_view quotedField();
  bool closesField(std::size_t quote) const;

  std::string_view text;
  char delimiter;
  std::string_view comment;
  std::size_t cursor = 0;
  std::size_t currentLine = 1;
  std::size_t recordLine = 1;
  bool openQuotes = false;
  std::deque<std::string> unescaped;
};

/// Whether a record holds nothing but blanks, as spreadsheets leave them.
bool isBlankRecord(const std::vector<std::string_view>& fields);

/// The text without a leading UTF-8 byte-order mark.
std::string_view withoutByteOrderMark(std::string_view text);

} // namespace Talmesh::app

#endif
