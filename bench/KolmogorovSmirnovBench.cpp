#include "stats/KolmogorovSmirnov.h"

#include <algorithm>

#include "BenchStudies.h"

namespace
{

std::vector<double> sortedSample(std::size_t count, unsigned seed)
{
  std::vector<double> sample = normalSample(count, seed);
  std::sort(sample.begin(), sample.end());
  return sample;
}

/// The test of two samples of the given size each: the walk over both and the p-value.
void kolmogorovSmirnovTest(benchmark::State& state)
{
  const auto count = static_cast<std::size_t>(state.range(0));
  const std::vector<double> first = sortedSample(count, 1);
  const std::vector<double> second = sortedSample(count, 2);
  for (auto _ : state)
  {
    const KolmogorovSmirnov test(first.begin(), first.end(), second.begin(), second.end());
    benchmark::DoNotOptimize(test.pValue());
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(kolmogorovSmirnovTest)->RangeMultiplier(10)->Range(100, 100000)->Complexity();

/// The p-value alone, at an effective sample size and n d^2 in hundredths, which together decide
/// the formula that is used.
void kolmogorovSmirnovPValue(benchmark::State& state)
{
  const auto size = static_cast<unsigned long>(state.range(0));
  const double d =
      std::sqrt(static_cast<double>(state.range(1)) / 100.0 / static_cast<double>(size));
  for (auto _ : state)
    benchmark::DoNotOptimize(Talmesh::stats::kolmogorovSmirnovPValue(d, size));
}
BENCHMARK(kolmogorovSmirnovPValue)
    ->ArgNames({"size", "100nd2"})
    ->ArgsProduct({{100, 1000, 10000, 100000}, {20, 70, 150, 600}});

} // namespace
