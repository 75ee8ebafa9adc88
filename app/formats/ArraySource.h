#ifndef ArraySource_h
#define ArraySource_h

#include "app/import/ImportProgress.h"
#include "app/import/NamedColumn.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// An array of a file, without its values. Texts are UTF-8.
struct StoredArray
{
  enum class Kind
  {
    Numbers,
    Texts,
    /// Records with named fields; such an array is a table by itself.
    Records
  };
  std::string name;
  Kind kind = Kind::Numbers;
  /// The extents, the one that writers in C vary last in front. No extent for a single value.
  std::vector<std::size_t> shape;
  /// Whether the file varies the first index fastest, as Fortran does.
  bool firstIndexFastest = false;
  /// What the file calls the axes, one name for each; empty where it says nothing.
  std::vector<std::string> axes;
  /// What the file calls the places along the last axis; empty where it says nothing.
  std::vector<std::string> labels;
};

/// How many values an array of that shape has; without bound when it is not to be told.
std::size_t numberOfValues(const std::vector<std::size_t>& shape);

/// A shape for a message: "300 x 200 x 2".
std::string shapeText(const std::vector<std::size_t>& shape);

/// Gets the values of an array piece by piece, in the order of the file; returning false cancels.
using NumberSink = std::function<bool(const double* values, std::size_t count)>;

/// The arrays of one file or of one part of it.
class ArraySource
{
public:
  ArraySource() = default;
  ArraySource(const ArraySource&) = delete;
  ArraySource& operator=(const ArraySource&) = delete;
  virtual ~ArraySource() = default;

  virtual const std::vector<StoredArray>& arrays() const = 0;

  /// The following return why they cannot, in one line; empty on success. An array that is no more
  /// than a promise of values is not read, nor is there memory to be had for it.
  virtual std::string objectionTo(std::size_t array) const = 0;
  /// Reads an array of numbers: as many values as its shape says, or an error.
  virtual std::string readNumbers(std::size_t array, const NumberSink& sink) = 0;
  /// Reads an array of texts of one axis.
  virtual std::string readTexts(std::size_t array, std::vector<std::string>& texts) = 0;
  /// Reads an array of records of one axis, a column for each field. What was cancelled leaves no
  /// column behind.
  virtual std::string readRecords(std::size_t array, std::vector<NamedColumn>& columns,
                                  const ImportProgress& progress) = 0;
};

} // namespace Talmesh::app

#endif
