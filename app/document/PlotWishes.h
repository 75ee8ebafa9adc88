#ifndef PlotWishes_h
#define PlotWishes_h

#include "app/import/ImportRequest.h"
#include "external/PlotStyles.h"
#include "stats/ParameterComparison.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// What a plot should show, by name, and which runs should be selected. All is UTF-8; empty for the
/// default.
struct PlotWishes
{
  std::optional<plotStyles> style;
  std::string x;
  std::vector<std::string> y;
  std::string z;
  /// Conditions in words; the runs that meet any of them are selected.
  std::vector<std::string> select;
  /// The runs that they are compared with: a condition, or the name of a kept selection; empty for
  /// all others.
  std::string with;
  /// What the test compares, and for what its p is adjusted.
  std::optional<Talmesh::stats::ComparedBy> comparedBy;
  std::optional<Talmesh::stats::Adjustment> adjustment;
  /// Checks the comparison in halves.
  bool halves = false;
  /// Of what a comparison draws at random.
  std::optional<std::uint64_t> seed;
  /// What is known of the design of the parameter sets.
  std::optional<Talmesh::stats::KnownDesign> design;
};

/// What the viewer should open first.
struct OpeningWishes : PlotWishes
{
  /// The table to open, named by the bytes that the system knows it by; empty for the example
  /// study.
  std::string file;
  /// Further files that belong to it, as openStudyFiles() puts them together.
  std::vector<std::string> moreFiles;
  /// How it is to be read.
  ImportRequest import;
  /// Width and height of the picture in pixels; 0 for the default.
  int width = 0;
  int height = 0;
};

} // namespace Talmesh::app

#endif
