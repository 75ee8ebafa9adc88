#ifndef TextSample_h
#define TextSample_h

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// A line or a quoted record of several lines.
struct SampledRecord
{
  std::vector<std::string> fields;
  /// The line on which it starts, from 1; 0 for one from within the text.
  std::size_t line = 0;
  /// Where it starts and what follows it, in bytes.
  std::size_t begin = 0;
  std::size_t end = 0;
  /// Whether a quote in it is never closed.
  bool isOpen = false;
  /// A line behind a mark of comments, without that mark.
  bool isComment = false;
  /// Whether the mark stood apart from the words behind it.
  bool isApart = false;
};

/// The first records of a text, comments among them.
std::vector<SampledRecord> headOf(std::string_view text, char separator, std::string_view mark);

/// Records from a hundred places between the head and the end.
std::vector<SampledRecord> placesOf(std::string_view text, char separator, std::string_view mark);

/// The mark that starts lines of comment: #, % or //; empty without such lines.
std::string_view commentMarkOf(std::string_view text);

/// The part of the text in which head and header are looked for.
std::string_view headText(std::string_view text);

} // namespace Talmesh::app

#endif
