#include "app/import/NameParts.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace Talmesh::app
{

namespace
{

bool isDigit(char c)
{
  return c >= '0' && c <= '9';
}

/// The digits at `at` without zeros in front.
std::string_view numberAt(std::string_view text, std::size_t& at)
{
  while (at < text.size() && text[at] == '0')
    ++at;
  const std::size_t begin = at;
  while (at < text.size() && isDigit(text[at]))
    ++at;
  return text.substr(begin, at - begin);
}

bool isNumber(const std::string& text)
{
  return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

/// How many characters all names have alike in front, or, of reversed names, behind.
std::size_t commonLength(const std::vector<std::string>& names)
{
  std::size_t length = names.front().size();
  for (const std::string& name : names)
  {
    const auto differ =
        std::mismatch(names.front().begin(), names.front().end(), name.begin(), name.end());
    length = std::min(length, static_cast<std::size_t>(differ.first - names.front().begin()));
  }
  while (length > 0 && isDigit(names.front()[length - 1]))
    --length;
  return length;
}

std::vector<std::string> withoutCommonStart(std::vector<std::string> names)
{
  const std::size_t length = commonLength(names);
  for (std::string& name : names)
    name.erase(0, length);
  return names;
}

std::vector<std::string> reversed(std::vector<std::string> names)
{
  for (std::string& name : names)
    std::reverse(name.begin(), name.end());
  return names;
}

} // namespace

std::string stemOf(const std::string& fileName)
{
  const std::size_t dot = fileName.find('.', 1);
  return fileName.substr(0, dot);
}

std::vector<std::string> distinctParts(const std::vector<std::string>& names)
{
  if (names.size() < 2)
  {
    std::vector<std::string> stems;
    for (const std::string& name : names)
      stems.push_back(stemOf(name));
    return stems;
  }
  std::vector<std::string> parts =
      reversed(withoutCommonStart(reversed(withoutCommonStart(names))));
  const bool empty =
      std::any_of(parts.begin(), parts.end(), [](const std::string& part) { return part.empty(); });
  const bool different = std::set<std::string>(parts.begin(), parts.end()).size() == names.size();
  return empty || !different ? names : parts;
}

bool areNumbered(const std::vector<std::string>& names)
{
  const std::vector<std::string> parts = distinctParts(names);
  return names.size() > 1 && std::all_of(parts.begin(), parts.end(), isNumber);
}

bool comesBeforeInNumbers(const std::string& a, const std::string& b)
{
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < a.size() && j < b.size())
  {
    if (isDigit(a[i]) && isDigit(b[j]))
    {
      const std::string_view first = numberAt(a, i);
      const std::string_view second = numberAt(b, j);
      if (first.size() != second.size())
        return first.size() < second.size();
      if (first != second)
        return first < second;
    }
    else if (a[i] != b[j])
      return a[i] < b[j];
    else
    {
      ++i;
      ++j;
    }
  }
  const bool aEnds = i == a.size();
  const bool bEnds = j == b.size();
  return aEnds != bEnds ? aEnds : a < b;
}

} // namespace Talmesh::app
