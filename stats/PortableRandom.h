#ifndef PortableRandom_h
#define PortableRandom_h

#include <cstddef>
#include <cstdint>
#include <random>
#include <utility>
#include <vector>

namespace Talmesh::stats
{
/// Random numbers that are the same with every standard library: generators are specified to the
/// last bit, distributions are not.
class PortableRandom
{
public:
  /// @param stream tells apart the sequences of one seed
  PortableRandom(std::uint64_t seed, std::uint64_t stream)
  {
    std::seed_seq words{static_cast<std::uint32_t>(seed), static_cast<std::uint32_t>(seed >> 32U),
                        static_cast<std::uint32_t>(stream),
                        static_cast<std::uint32_t>(stream >> 32U)};
    generator.seed(words);
  }

  /// 0, 1, ... or count - 1, each equally likely (D. Lemire, Fast random integer generation in an
  /// interval, ACM Transactions on Modeling and Computer Simulation 29, 2019, 3).
  /// @param count at least 1
  std::uint32_t below(std::uint32_t count)
  {
    std::uint64_t product = (generator() >> 32U) * count;
    if (static_cast<std::uint32_t>(product) < count)
    {
      const std::uint32_t unfair = (0U - count) % count;
      while (static_cast<std::uint32_t>(product) < unfair)
        product = (generator() >> 32U) * count;
    }
    return static_cast<std::uint32_t>(product >> 32U);
  }

  /// Uniform on [0, 1), in steps of 2^-53.
  double unit() { return static_cast<double>(generator() >> 11U) * 0x1p-53; }

  /// By Fisher and Yates: every order equally likely. @param values fewer than 2^32
  template <class T>
  void shuffle(std::vector<T>& values)
  {
    for (std::size_t left = values.size(); left > 1; --left)
      std::swap(values[left - 1], values[below(static_cast<std::uint32_t>(left))]);
  }

private:
  std::mt19937_64 generator;
};
} // namespace Talmesh::stats

#endif
