#ifndef ColumnWords_h
#define ColumnWords_h

#include "app/import/NamedColumn.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace Talmesh::app
{

/// Collects the rows of a column of text.
class ColumnWords
{
public:
  void add(const std::string& text, std::size_t rows = 1);
  std::size_t size() const { return wordOfRow.size(); }

  /// The column with what was collected, if anything was.
  NamedColumn take(NamedColumn column);

private:
  std::unordered_map<std::string, int> numbers;
  std::vector<std::string> words;
  std::vector<int> wordOfRow;
};

} // namespace Talmesh::app

#endif
