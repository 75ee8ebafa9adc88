#ifndef PythonLiteral_h
#define PythonLiteral_h

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// A value as Python writes it into a source: what the headers of NumPy's files consist of.
struct PythonLiteral
{
  enum class Kind
  {
    Text,
    /// A whole number that is not negative.
    Number,
    /// True or False.
    Flag,
    /// A list or a tuple.
    List,
    /// Keys and values in turn.
    Dictionary
  };
  Kind kind = Kind::Flag;
  std::string text;
  std::size_t number = 0;
  bool flag = false;
  std::vector<PythonLiteral> parts;

  /// The value of a dictionary's key; null without one.
  const PythonLiteral* find(std::string_view key) const;
};

/// Reads one literal that is all of `source` but for blanks; none when it is no such literal.
std::optional<PythonLiteral> readPythonLiteral(std::string_view source);

} // namespace Talmesh::app

#endif
