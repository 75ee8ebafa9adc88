#include "stats/RoundTicks.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace Talmesh::stats
{
namespace
{

/// Of a step: so far a quotient is from a whole number by rounding alone.
constexpr double rounding = 1e-9;
constexpr std::size_t mostTicks = 1000;
constexpr int mostDecimals = 15;
/// The larger end of an axis whose numbers are written without an exponent.
constexpr double smallestPlain = 1e-3;
constexpr double largestPlain = 1e6;

int decadeOf(double number)
{
  return static_cast<int>(std::floor(std::log10(number) + rounding));
}

/// 2.5e6, not 2.5e+06.
std::string withShortExponent(const std::string& text)
{
  const std::size_t e = text.find('e');
  if (e == std::string::npos)
    return text;
  return text.substr(0, e + 1) + std::to_string(std::stoi(text.substr(e + 1)));
}

std::string printed(const char* format, int decimals, double number)
{
  char text[400];
  std::snprintf(text, sizeof text, format, std::clamp(decimals, 0, mostDecimals), number);
  return text;
}

} // namespace

RoundTicks::RoundTicks(double lowEnd, double highEnd)
    : low(lowEnd)
    , high(highEnd)
    , taken(0.0)
{
  take(high - low);
}

void RoundTicks::take(double least)
{
  const double decade = std::pow(10.0, std::floor(std::log10(least)));
  taken = 10.0 * decade;
  for (const double digit : {5.0, 2.0, 1.0})
    if (digit * decade >= least * (1.0 - rounding))
      taken = digit * decade;
}

std::vector<double> RoundTicks::positions() const
{
  std::vector<double> found;
  const double first = std::ceil(low / taken - rounding);
  const double last = std::floor(high / taken + rounding);
  for (double i = first; i <= last && found.size() < mostTicks; ++i)
    found.push_back(i * taken);
  return found;
}

std::string RoundTicks::label(double position) const
{
  const double largest = std::max(std::fabs(low), std::fabs(high));
  const bool isZero = std::fabs(position) < taken / 2;
  if (largest >= smallestPlain && largest < largestPlain)
    return printed("%.*f", -decadeOf(taken), isZero ? 0.0 : position);
  if (isZero)
    return "0";
  return withShortExponent(
      printed("%.*e", decadeOf(std::fabs(position)) - decadeOf(taken), position));
}

std::size_t RoundTicks::longestLabel() const
{
  std::size_t longest = 0;
  for (const double position : positions())
    longest = std::max(longest, label(position).size());
  return longest;
}

} // namespace Talmesh::stats
