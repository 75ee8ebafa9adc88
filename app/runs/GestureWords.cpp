#include "app/runs/GestureWords.h"

#include "app/runs/FilterSyntax.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Talmesh::app
{

namespace
{

/// What tells all doubles apart.
constexpr int allDigits = 17;

/// @param step what the number may differ by
std::string roundedText(double value, double step)
{
  // Down to the decimal place of the step's first digit.
  const double places = std::floor(std::log10(std::abs(value))) - std::floor(std::log10(step)) + 1;
  const int digits = std::isfinite(places)
                         ? static_cast<int>(std::clamp(places, 1.0, double{allDigits}))
                         : allDigits;
  std::array<char, 64> text{};
  const auto* const end = std::to_chars(text.data(), text.data() + text.size(), value,
                                        std::chars_format::scientific, digits - 1)
                              .ptr;
  double rounded = 0;
  std::from_chars(text.data(), end, rounded);
  if (std::abs(rounded) < step)
    rounded = 0;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), rounded).ptr};
}

struct Texts
{
  explicit Texts(const DrawnGesture& gesture)
  {
    for (const DrawnPoint& point : gesture.points)
    {
      x.push_back(placeWords(point.x, gesture.unitsX, gesture.scale.logX));
      y.push_back(placeWords(point.y, gesture.unitsY, gesture.scale.logY));
    }
  }

  std::vector<std::string> x;
  std::vector<std::string> y;
};

const char* functionOf(const DrawnGesture& gesture, GestureRule rule)
{
  if (gesture.kind == DrawnGesture::Kind::Lasso)
    return rule == GestureRule::Points ? "dotlasso" : "lasso";
  if (gesture.kind == DrawnGesture::Kind::Line)
    return "crosses";
  return rule == GestureRule::Inside ? "inside" : rule == GestureRule::Points ? "dot" : "through";
}

std::string numbersOf(const DrawnGesture& gesture)
{
  const Texts texts(gesture);
  const DrawnPoint& a = gesture.points.front();
  const DrawnPoint& b = gesture.points.back();
  if (gesture.kind == DrawnGesture::Kind::Rectangle)
  {
    const bool right = a.x <= b.x;
    const bool up = a.y <= b.y;
    return ", " + texts.x[right ? 0 : 1] + ", " + texts.x[right ? 1 : 0] + ", " +
           texts.y[up ? 0 : 1] + ", " + texts.y[up ? 1 : 0];
  }
  std::string numbers;
  for (std::size_t i = 0; i < texts.x.size(); ++i)
    numbers += ", " + texts.x[i] + ", " + texts.y[i];
  return numbers;
}

std::string scaleText(const DrawnScale& scale)
{
  if (!scale.logX && !scale.logY)
    return {};
  return std::string(", log") + (scale.logX ? "x" : "") + (scale.logY ? "y" : "");
}

} // namespace

std::string placeWords(double value, double units, bool logarithmic)
{
  constexpr double tenth = 0.1;
  const double step = logarithmic ? std::abs(value) * std::log(10.0) * units : units;
  return roundedText(value, step * tenth);
}

std::string gestureWords(const DrawnGesture& gesture, GestureRule rule,
                         const std::vector<std::string>& items, const std::string& over)
{
  const std::string what = numbersOf(gesture) + scaleText(gesture.scale) + ')';
  const std::string where = over.empty() ? std::string() : " over " + filterName(over);
  std::string words;
  for (const std::string& item : items)
    words += (words.empty() ? "" : " or ") + std::string(functionOf(gesture, rule)) + '(' +
             filterName(item) + where + what;
  return words;
}

} // namespace Talmesh::app
