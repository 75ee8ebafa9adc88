#ifndef Utf8Text_h
#define Utf8Text_h

#include <string>
#include <string_view>

namespace Talmesh::app
{

/// The text itself when it is valid UTF-8, else the text read as Latin-1.
std::string toUtf8(std::string_view text);

/// The text without blanks, tabs and non-breaking spaces (U+00A0) at either end.
std::string_view withoutOuterBlanks(std::string_view text);

/// A text from a file as it can stand inside a message of one line: quoted, without line breaks
/// and control characters, cut to some forty bytes.
std::string quotedForMessage(std::string_view text);

} // namespace Talmesh::app

#endif
