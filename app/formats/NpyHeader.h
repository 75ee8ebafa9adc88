#ifndef NpyHeader_h
#define NpyHeader_h

#include "app/import/Result.h"

#include <cstddef>
#include <string>
#include <vector>

class QIODevice;

namespace Talmesh::app
{

/// How one value of a NumPy array is stored.
struct NpyType
{
  enum class Kind
  {
    Float,
    Signed,
    Unsigned,
    /// Bytes of text, padded with zeros.
    Bytes,
    /// Letters of four bytes each, padded with zeros.
    Letters,
    /// Bytes between fields.
    Padding
  };
  Kind kind = Kind::Float;
  std::size_t bytes = 8;
  bool bigEndian = false;

  bool isText() const { return kind == Kind::Bytes || kind == Kind::Letters; }
};

/// A field of a structured array.
struct NpyField
{
  std::string name;
  NpyType type;
  /// How many values of the type the field has.
  std::size_t count = 1;
};

/// What stands in front of the values of a `.npy` file.
struct NpyHeader
{
  /// The fields of a structured array; one without a name of any other.
  std::vector<NpyField> fields;
  bool structured = false;
  bool fortranOrder = false;
  std::vector<std::size_t> shape;

  /// The bytes of one element.
  std::size_t elementBytes() const;
};

/// Reads the header; afterwards the device stands at the first value.
Result<NpyHeader> readNpyHeader(QIODevice& device);

/// The number that is stored at `bytes`, of a type that is no text.
double npyNumber(const char* bytes, const NpyType& type);

/// The text that is stored at `bytes`, as UTF-8.
std::string npyText(const char* bytes, const NpyType& type);

} // namespace Talmesh::app

#endif
