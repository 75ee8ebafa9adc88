#ifndef FilterSyntax_h
#define FilterSyntax_h

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The words by which runs are selected, as text: `max(TetR) > 150 and alpha < 50`. The grammar
/// stands in docs/selecting-runs.md.
namespace Talmesh::app
{

/// A piece of a filter and all that it consists of.
///
/// What is joined by like operators is one node with many children, so that long filters are no
/// deep ones: `a - b + c` has three, marked '+', '-', '+'.
struct FilterNode
{
  enum class Kind
  {
    Number,
    Name,
    /// `name(children)`
    Call,
    /// One item drawn over another one: two names.
    Over,
    /// Each but the last one is raised to what follows it; one marked '-' is negated after that.
    Power,
    /// Marked '*' or '/'.
    Product,
    /// Marked '+' or '-'.
    Sum,
    /// Each is compared with the one before as it is marked: '<', '>', '=', '!' (not equal), 'l'
    /// (at most), 'g' (at least).
    Comparison,
    Not,
    And,
    /// Met where an odd number of them is.
    Xor,
    Or
  };
  Kind kind = Kind::Number;
  /// Where it begins in the text, in bytes.
  std::size_t position = 0;
  double number = 0;
  std::string name;
  std::vector<FilterNode> children;
  /// A sign for each child, of nodes whose children are marked.
  std::string marks;
};

/// What is wrong with a filter, and where.
struct FilterFault
{
  /// The byte of the text that it begins at.
  std::size_t position = 0;
  /// One line of UTF-8, translated; empty for nothing.
  std::string text;
};

/// Parentheses may be nested that deep.
constexpr int deepestFilter = 100;

/// Reads a filter; says nothing of what its names mean.
/// @param text UTF-8, of any bytes
/// @return what is wrong with it; `filter` is then undefined
FilterFault parseFilter(std::string_view text, FilterNode& filter);

/// A name as a filter writes it: in double quotes, which are doubled within, unless it is a plain
/// word.
std::string filterName(std::string_view name);

} // namespace Talmesh::app

#endif
