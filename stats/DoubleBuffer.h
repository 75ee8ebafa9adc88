#ifndef DoubleBuffer_h
#define DoubleBuffer_h

#include <cstddef>
#include <memory>

namespace Talmesh::stats
{
/// A fixed number of doubles, all 0 at first, in memory from array-new that can be handed over
/// without copying to an owner that frees it with array-delete.
class DoubleBuffer
{
public:
  DoubleBuffer() = default;
  /// @throws std::bad_alloc when there is no memory for `size` values
  explicit DoubleBuffer(std::size_t size)
      : storage(new double[size]())
      , length(size)
  {
  }

  std::size_t size() const { return length; }
  double* data() { return storage.get(); }
  const double* data() const { return storage.get(); }
  double& operator[](std::size_t i) { return storage[i]; }
  double operator[](std::size_t i) const { return storage[i]; }
  double* begin() { return storage.get(); }
  double* end() { return storage.get() + length; }
  const double* begin() const { return storage.get(); }
  const double* end() const { return storage.get() + length; }

  /// Gives up the memory, to be freed by the caller with `delete[]`; the buffer is empty
  /// afterwards.
  double* release()
  {
    length = 0;
    return storage.release();
  }

private:
  std::unique_ptr<double[]> storage;
  std::size_t length = 0;
};
} // namespace Talmesh::stats

#endif
