#include "app/import/Utf16Text.h"

#include <cstddef>

namespace Talmesh::app
{

namespace
{

constexpr std::string_view littleMark = "\xFF\xFE";
constexpr std::string_view bigMark = "\xFE\xFF";
constexpr char32_t replacement = 0xFFFD;

void append(std::string& text, char32_t character)
{
  const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80)
    add(character);
  else if (character < 0x800)
    add(0xC0 | (character >> 6));
  else if (character < 0x10000)
    add(0xE0 | (character >> 12));
  else
    add(0xF0 | (character >> 18));
  if (character >= 0x10000)
    add(0x80 | ((character >> 12) & 0x3F));
  if (character >= 0x800)
    add(0x80 | ((character >> 6) & 0x3F));
  if (character >= 0x80)
    add(0x80 | (character & 0x3F));
}

bool isFirstHalf(char32_t unit)
{
  return unit >= 0xD800 && unit < 0xDC00;
}

bool isSecondHalf(char32_t unit)
{
  return unit >= 0xDC00 && unit < 0xE000;
}

} // namespace

bool isUtf16(std::string_view bytes)
{
  return bytes.substr(0, 2) == littleMark || bytes.substr(0, 2) == bigMark;
}

std::string utf8FromUtf16(std::string_view bytes)
{
  const bool little = bytes.substr(0, 2) == littleMark;
  const auto unitAt = [&](std::size_t at) -> char32_t
  {
    const auto first = static_cast<unsigned char>(bytes[at]);
    const auto second = static_cast<unsigned char>(bytes[at + 1]);
    return little ? first | (second << 8) : (first << 8) | second;
  };
  std::string text;
  text.reserve(bytes.size() / 2);
  for (std::size_t at = littleMark.size(); at + 1 < bytes.size(); at += 2)
  {
    char32_t character = unitAt(at);
    if (isFirstHalf(character) && at + 3 < bytes.size() && isSecondHalf(unitAt(at + 2)))
    {
      character = 0x10000 + ((character - 0xD800) << 10) + (unitAt(at + 2) - 0xDC00);
      at += 2;
    }
    else if (isFirstHalf(character) || isSecondHalf(character))
      character = replacement;
    append(text, character);
  }
  return text;
}

} // namespace Talmesh::app
