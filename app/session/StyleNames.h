#ifndef StyleNames_h
#define StyleNames_h

#include "external/PlotStyles.h"

#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

/// One plot style as the viewer offers it.
struct StyleName
{
  plotStyles style;
  /// The enumerator, which the command line takes and gallery files are named by.
  const char* name;
  /// What the window calls it, in English.
  const char* title;
};

/// All plot styles in the order of their values.
const std::vector<StyleName>& styleNames();

/// The style of an enumerator's name, or null.
const StyleName* findStyle(std::string_view name);

/// The entry of a style, or null for a value that is no enumerator.
const StyleName* findStyle(plotStyles style);

/// What the window calls a style, in the user's language.
QString titleOf(const StyleName& style);

} // namespace Talmesh::app

#endif
