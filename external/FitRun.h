#ifndef FitRun_h
#define FitRun_h

#include <map>
#include <string>
#include <vector>

/// The result of one fit.
struct FitRun
{
  /// Fitted values by parameter name; the entry "Global Scale" is the fitted global scale.
  std::map<std::string, float> parameters;
  /// Time points of the fitted observations in seconds; empty unless they are time courses.
  std::vector<double> timePoints;
};

#endif
