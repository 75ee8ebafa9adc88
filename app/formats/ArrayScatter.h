#ifndef ArrayScatter_h
#define ArrayScatter_h

#include "app/formats/ArrayMeaning.h"

#include <cstddef>
#include <vector>

namespace Talmesh::app
{

/// Sorts the values of an array, which come in the order of the file, into columns: one per item,
/// whose rows are the times of one run after another.
class ArrayScatter
{
public:
  /// @param columns one per item, each long enough; they must outlive the scatter
  ArrayScatter(const StoredArray& array, const ArrayMeaning& meaning, std::vector<double*> columns);

  void add(const double* values, std::size_t count);

private:
  struct Axis
  {
    std::size_t extent;
    std::size_t rows;    ///< how many rows a step along it goes on
    std::size_t columns; ///< how many columns
    std::size_t place = 0;
  };

  void goOn();

  std::vector<double*> columns;
  /// The one that varies fastest last.
  std::vector<Axis> axes;
  std::size_t row = 0;
  std::size_t column = 0;
};

} // namespace Talmesh::app

#endif
