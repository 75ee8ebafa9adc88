#include "app/import/Utf8Text.h"

#include <cstddef>

namespace Talmesh::app
{

namespace
{

constexpr std::string_view nonBreakingSpace = "\xC2\xA0";

bool isContinuationByte(char c)
{
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// The length of the UTF-8 sequence at `at`, 0 when there is no valid one.
std::size_t sequenceLength(std::string_view text, std::size_t at)
{
  const auto lead = static_cast<unsigned char>(text[at]);
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  if (length == 0 || at + length > text.size())
    return 0;
  for (std::size_t i = 1; i < length; ++i)
    if (!isContinuationByte(text[at + i]))
      return 0;
  return length;
}

bool isUtf8(std::string_view text)
{
  for (std::size_t at = 0; at < text.size();)
  {
    const std::size_t length = sequenceLength(text, at);
    if (length == 0)
      return false;
    at += length;
  }
  return true;
}

bool isBlank(char c)
{
  return c == ' ' || c == '\t' || c == '\v' || c == '\f';
}

/// How many bytes of blank the text starts with.
std::size_t blankAtStart(std::string_view text)
{
  if (text.substr(0, nonBreakingSpace.size()) == nonBreakingSpace)
    return nonBreakingSpace.size();
  return !text.empty() && isBlank(text.front()) ? 1 : 0;
}

std::size_t blankAtEnd(std::string_view text)
{
  const std::size_t size = nonBreakingSpace.size();
  if (text.size() >= size && text.substr(text.size() - size) == nonBreakingSpace)
    return size;
  return !text.empty() && isBlank(text.back()) ? 1 : 0;
}

} // namespace

std::string toUtf8(std::string_view text)
{
  if (isUtf8(text))
    return std::string(text);
  std::string utf8;
  for (const char c : text)
  {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80)
      utf8 += c;
    else
    {
      utf8 += static_cast<char>(0xC0U | (byte >> 6U));
      utf8 += static_cast<char>(0x80U | (byte & 0x3FU));
    }
  }
  return utf8;
}

std::string_view withoutOuterBlanks(std::string_view text)
{
  while (const std::size_t blank = blankAtStart(text))
    text.remove_prefix(blank);
  while (const std::size_t blank = blankAtEnd(text))
    text.remove_suffix(blank);
  return text;
}

std::string quotedForMessage(std::string_view text)
{
  constexpr std::size_t longest = 40;
  std::string shown = toUtf8(text);
  if (shown.size() > longest)
  {
    std::size_t cut = longest;
    while (cut > 0 && isContinuationByte(shown[cut]))
      --cut;
    shown = shown.substr(0, cut) + "...";
  }
  for (char& c : shown)
    if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
      c = ' ';
  return '"' + shown + '"';
}

} // namespace Talmesh::app
