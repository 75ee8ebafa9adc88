#include "app/import/LineNumbers.h"

#include <algorithm>

namespace Talmesh::app
{

void LineNumbers::push_back(std::size_t line)
{
  if (stretches.empty() || line - stretches.back().line != rows - stretches.back().row)
    stretches.push_back({rows, line});
  ++rows;
}

void LineNumbers::clear()
{
  *this = LineNumbers();
}

std::size_t LineNumbers::operator[](std::size_t row) const
{
  const auto behind = std::upper_bound(stretches.begin(), stretches.end(), row,
                                       [](std::size_t wanted, const Stretch& stretch)
                                       { return wanted < stretch.row; });
  const Stretch& stretch = *(behind - 1);
  return stretch.line + (row - stretch.row);
}

} // namespace Talmesh::app
