#include "app/formats/ArrayScatter.h"

#include <algorithm>
#include <utility>

namespace Talmesh::app
{

ArrayScatter::ArrayScatter(const StoredArray& array, const ArrayMeaning& meaning,
                           std::vector<double*> columns_)
    : columns(std::move(columns_))
{
  const std::size_t times = extentOf(array, meaning, ArrayAxis::Time);
  for (std::size_t i = 0; i < array.shape.size(); ++i)
  {
    const ArrayAxis axis = meaning.axes[i];
    const std::size_t rows = axis == ArrayAxis::Run ? times : axis == ArrayAxis::Time ? 1 : 0;
    axes.push_back({array.shape[i], rows, axis == ArrayAxis::Item ? std::size_t{1} : 0});
  }
  if (array.firstIndexFastest)
    std::reverse(axes.begin(), axes.end());
}

void ArrayScatter::add(const double* values, std::size_t count)
{
  for (std::size_t i = 0; i < count; ++i)
  {
    columns[column][row] = values[i];
    goOn();
  }
}

void ArrayScatter::goOn()
{
  for (auto axis = axes.rbegin(); axis != axes.rend(); ++axis)
  {
    row += axis->rows;
    column += axis->columns;
    if (++axis->place < axis->extent)
      return;
    row -= axis->rows * axis->extent;
    column -= axis->columns * axis->extent;
    axis->place = 0;
  }
}

} // namespace Talmesh::app
