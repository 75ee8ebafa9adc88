#ifndef UnpackLimit_h
#define UnpackLimit_h

#include <cstdint>
#include <string>

namespace Talmesh::app
{

/// Keeps a small file from unpacking to more than it can mean: data of many megabytes
/// compress to a third or a tenth, hardly ever to a hundredth, while what is made to fill memory
/// compresses to a thousandth.
class UnpackLimit
{
public:
  static constexpr std::uint64_t freeBytes = std::uint64_t{64} << 20U;
  static constexpr std::uint64_t largestRatio = 100;

  /// @param packedBytes the size as it is stored
  explicit UnpackLimit(std::uint64_t packedBytes);

  /// Why so many bytes are not taken from the file, in one line; empty when they are.
  std::string objection(std::uint64_t unpackedBytes) const;

private:
  std::uint64_t packed;
};

} // namespace Talmesh::app

#endif
