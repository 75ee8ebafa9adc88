#ifndef NamedColumn_h
#define NamedColumn_h

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// A column of a file that holds its values as such, rather than as the text of a table: of numbers
/// or, with words, of text. Texts are UTF-8.
struct NamedColumn
{
  /// As a header of a delimited table would say it: "Parameter: k1", "time".
  std::string name;
  /// Empty in a column of text.
  std::vector<double> values;
  /// The different texts in order of first appearance; empty in a column of numbers.
  std::vector<std::string> words;
  /// For each row its place in `words`.
  std::vector<int> wordOfRow;

  bool isText() const { return !words.empty(); }
  std::size_t rows() const { return isText() ? wordOfRow.size() : values.size(); }
};

} // namespace Talmesh::app

#endif
