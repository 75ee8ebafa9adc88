#include "app/import/TextLevels.h"

#include "app/import/Utf8Text.h"

namespace Talmesh::app
{

void TextLevels::add(std::string_view field)
{
  const std::string_view text = withoutOuterBlanks(field);
  // The rows of one run, or of one item, often follow each other.
  const int last = ofRow.empty() ? none : ofRow.back();
  if (last != none && texts[static_cast<std::size_t>(last)] == text)
    ofRow.push_back(last);
  else
    ofRow.push_back(numberOf(toUtf8(text)));
}

int TextLevels::numberOf(const std::string& text)
{
  const auto known = numbers.find(text);
  if (known != numbers.end())
    return known->second;
  const int number = static_cast<int>(texts.size());
  numbers.emplace(text, number);
  texts.push_back(text);
  return number;
}

void TextLevels::clear()
{
  *this = TextLevels();
}

} // namespace Talmesh::app
