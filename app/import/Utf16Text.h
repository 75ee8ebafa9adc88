#ifndef Utf16Text_h
#define Utf16Text_h

#include <string>
#include <string_view>

namespace Talmesh::app
{

/// Whether a text starts with the byte-order mark of UTF-16, as spreadsheets write "Unicode text".
bool isUtf16(std::string_view bytes);

/// Such a text as UTF-8, without its mark. Halves of characters become U+FFFD, and an odd last byte
/// is left out.
std::string utf8FromUtf16(std::string_view bytes);

} // namespace Talmesh::app

#endif
