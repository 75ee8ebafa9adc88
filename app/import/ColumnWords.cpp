#include "app/import/ColumnWords.h"

#include <utility>

namespace Talmesh::app
{

void ColumnWords::add(const std::string& text, std::size_t rows)
{
  const auto [entry, added] = numbers.emplace(text, static_cast<int>(words.size()));
  if (added)
    words.push_back(text);
  wordOfRow.insert(wordOfRow.end(), rows, entry->second);
}

NamedColumn ColumnWords::take(NamedColumn column)
{
  if (wordOfRow.empty())
    return column;
  column.words = std::move(words);
  column.wordOfRow = std::move(wordOfRow);
  return column;
}

} // namespace Talmesh::app
