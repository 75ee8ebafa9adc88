#ifndef TranslatedText_h
#define TranslatedText_h

#include <string>
#include <vector>

namespace Talmesh::app
{

/// A text in the user's language as UTF-8, for the parts of the viewer that keep plain strings. May
/// be called in any thread; before the application exists it gives the English text.
/// @param context what the translation files call the unit
std::string translated(const char* context, const char* text);

/// A text with `values` in the places %1, %2, ... up to %9, whatever they hold themselves. Places
/// without a value stay as they are.
std::string withValues(const std::string& text, const std::vector<std::string>& values);

} // namespace Talmesh::app

#endif
