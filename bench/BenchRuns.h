#ifndef BenchRuns_h
#define BenchRuns_h

#include <cmath>
#include <cstdint>
#include <vector>

/// The runs that this program and others draw, by closed forms, so that every side draws the same:
/// waves with a frequency, an amplitude, a phase and noise of their own.

/// Of the plot, in pixels.
constexpr int windowWidth = 800;
constexpr int windowHeight = 600;

/// Every run takes this time.
constexpr double timeSpan = 20.0;
constexpr double noise = 0.05;

/// A number from [0, 1) for each pair: the mixing function of splitmix64.
inline double fraction(std::uint64_t run, std::uint64_t number)
{
  std::uint64_t bits = (run << 32) + number + 0x9e3779b97f4a7c15ULL;
  bits = (bits ^ (bits >> 30)) * 0xbf58476d1ce4e5b9ULL;
  bits = (bits ^ (bits >> 27)) * 0x94d049bb133111ebULL;
  return static_cast<double>((bits ^ (bits >> 31)) >> 11) / 9007199254740992.0;
}

inline double timeOf(int point, int points)
{
  return timeSpan * point / points;
}

/// The parameter `p`, from 0, of a run. The first three shape its wave.
inline double parameterOf(int run, int p)
{
  return fraction(static_cast<std::uint64_t>(run), static_cast<std::uint64_t>(p));
}

inline std::vector<double> waveOf(int run, int points)
{
  const double frequency = 1.0 + 0.3 * parameterOf(run, 0);
  const double amplitude = 1.0 + parameterOf(run, 1);
  const double phase = 6.0 * parameterOf(run, 2);
  std::vector<double> wave(static_cast<std::size_t>(points));
  for (int point = 0; point < points; ++point)
    wave[static_cast<std::size_t>(point)] =
        amplitude * std::sin(frequency * timeOf(point, points) + phase) +
        noise * fraction(static_cast<std::uint64_t>(run), 1000U + static_cast<unsigned>(point));
  return wave;
}

/// Every tenth run is selected: the `choice`-th of ten, so that 5000 runs give 500.
inline bool isSelected(int run, int choice)
{
  return run % 10 == choice % 10;
}

/// The part of the plane after zoom `step`: each a little smaller, so that nothing can be reused.
struct ZoomWindow
{
  double xMin, xMax, yMin, yMax;
};

inline ZoomWindow zoomWindow(int step)
{
  const double part = 0.9 * std::pow(0.97, step % 30);
  return {10.0 - 10.0 * part, 10.0 + 10.0 * part, -2.0 * part, 2.0 * part};
}

#endif
