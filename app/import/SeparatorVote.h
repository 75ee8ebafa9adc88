#ifndef SeparatorVote_h
#define SeparatorVote_h

#include <cstddef>
#include <string>
#include <string_view>

namespace Talmesh::app
{

/// What parts the fields of a text, and why.
struct SeparatorVote
{
  /// A blank stands for any number of blanks and tabs. A semicolon where there is one column, so
  /// that decimal commas can be read.
  char separator = ';';
  /// How many fields most records have.
  std::size_t fields = 1;
  std::string reason;
};

/// The separator among tab, semicolon, comma, bar, blanks and colon under which the largest number
/// of records have the same number of fields, more than one; among equals the one under which the
/// largest part of the cells are numbers, then the one with most fields, then the first of the
/// list. Blank records and comments do not vote.
/// @param comment the mark of comments; may be empty
SeparatorVote voteOnSeparator(std::string_view text, std::string_view comment);

/// The number of fields that most records have under one separator.
SeparatorVote votesFor(std::string_view text, std::string_view comment, char separator);

/// "commas", "tabs", ...
std::string separatorName(char separator);

} // namespace Talmesh::app

#endif
