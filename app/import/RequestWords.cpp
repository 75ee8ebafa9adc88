#include "app/import/RequestWords.h"

#include <algorithm>
#include <cctype>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

namespace
{

/// A shell takes these as they are, whatever stands beside them.
bool isPlain(char c)
{
  return std::isalnum(static_cast<unsigned char>(c)) != 0 ||
         std::string_view("_-+./,:@%^=").find(c) != std::string_view::npos;
}

/// Names between commas; a comma of a name stands behind a backslash.
std::string listOf(const std::vector<std::string>& names)
{
  std::string list;
  for (const std::string& name : names)
  {
    list += list.empty() ? "" : ",";
    for (const char c : name)
      list += c == ',' || c == '\\' ? std::string{'\\', c} : std::string(1, c);
  }
  return list;
}

std::string wordOf(std::optional<char> mark)
{
  if (!mark)
    return {};
  if (*mark == '\t')
    return "tab";
  return *mark == ' ' ? "blank" : std::string(1, *mark);
}

std::string wordOf(std::optional<UnequalRuns> unequal)
{
  if (!unequal)
    return {};
  return *unequal == UnequalRuns::Union ? "union" : "interpolate";
}

} // namespace

std::string quotedForShell(const std::string& word)
{
  if (!word.empty() && std::all_of(word.begin(), word.end(), isPlain))
    return word;
  std::string quoted = "'";
  for (const char c : word)
    quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + '\'';
}

std::string optionsOf(const ImportRequest& request)
{
  std::string options;
  const auto add = [&options](const char* name, const std::string& value)
  {
    if (!value.empty())
      options += (options.empty() ? "--" : " --") + std::string(name) + ' ' + quotedForShell(value);
  };
  add("layout", request.layout);
  add("time", request.time);
  add("run", listOf(request.run));
  add("item", request.item);
  add("value", request.value);
  add("measured", listOf(request.measured));
  add("parameter", listOf(request.parameters));
  add("condition", listOf(request.conditions));
  add("error", listOf(request.errors));
  add("ignore", listOf(request.ignored));
  add("separator", wordOf(request.separator));
  add("decimal", wordOf(request.decimalMark));
  add("unequal", wordOf(request.unequal));
  add("sheet", request.sheet);
  add("files", request.files);
  add("parameter-table", request.parameterTable);
  add("join", request.join);
  return options;
}

} // namespace Talmesh::app
