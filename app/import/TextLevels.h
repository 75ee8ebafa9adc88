#ifndef TextLevels_h
#define TextLevels_h

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Talmesh::app
{

/// The different texts of a column, numbered in the order in which they appear.
class TextLevels
{
public:
  static constexpr int none = -1;

  /// Adds the text of the next row, without blanks around it.
  void add(std::string_view text);
  /// Adds a row without a text.
  void addNone() { ofRow.push_back(none); }
  /// Gives a row that has no text one.
  void set(std::size_t row, const std::string& text) { ofRow[row] = numberOf(text); }
  /// The number of a text, a new one if it has none.
  int numberOf(const std::string& text);
  void reserve(std::size_t rows) { ofRow.reserve(rows); }
  /// Rows without a text in front of the first one.
  void startAt(std::size_t row) { ofRow.assign(row, none); }
  void clear();

  /// The number of each row's text; `none` without one.
  const std::vector<int>& rows() const { return ofRow; }
  /// The same, which is nobody else's then.
  std::vector<int> takeRows() { return std::move(ofRow); }
  const std::vector<std::string>& names() const { return texts; }
  bool isEmpty() const { return texts.empty(); }

private:
  std::vector<int> ofRow;
  std::vector<std::string> texts;
  std::unordered_map<std::string, int> numbers;
};

} // namespace Talmesh::app

#endif
