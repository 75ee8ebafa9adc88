#ifndef ParameterStudy_h
#define ParameterStudy_h

#include "external/LinePlotTable.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include <string>

/// A run-stacked table for tests: `runs` runs of `points` rows with one molecule, the time, the run
/// index and `parameters` parameters k1, k2, .... In run r parameter p is (r * (p + 1)) modulo
/// `runs`, plus 1; the molecule grows over time with the first parameter as its slope.
inline boost::shared_ptr<LinePlotTable> parameterStudy(int runs, int points, int parameters)
{
  auto table = boost::make_shared<LinePlotTable>();
  table->numberOfTrajectories = static_cast<std::size_t>(runs);
  table->pointsPerTrajectory = static_cast<std::size_t>(points);
  const auto add = [&](Talmesh::DataType kind, const std::string& name, auto&& value)
  {
    table->items.emplace_back(kind, name);
    auto* values = new double[static_cast<std::size_t>(runs * points)];
    for (int run = 0; run < runs; ++run)
    {
      for (int point = 0; point < points; ++point)
        values[run * points + point] = value(run, point);
    }
    table->values.push_back(values);
  };
  const auto parameter = [runs](int run, int p) { return 1.0 + (run * (p + 1)) % runs; };
  add(Talmesh::Molecule, "A", [&](int run, int point) { return parameter(run, 0) * point; });
  add(Talmesh::TimeOrValue, "Time [s]", [](int, int point) { return 10.0 + point; });
  add(Talmesh::TimeOrValue, "Run Index", [](int run, int) { return 1.0 * run; });
  for (int p = 0; p < parameters; ++p)
  {
    add(Talmesh::Parameter, "k" + std::to_string(p + 1),
        [&](int run, int) { return parameter(run, p); });
    table->parameterRanges.emplace_back(1.0, runs);
  }
  return table;
}

#endif
