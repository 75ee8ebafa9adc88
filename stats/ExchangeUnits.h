#ifndef ExchangeUnits_h
#define ExchangeUnits_h

#include "stats/ParameterSets.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Talmesh::stats
{
/// The runs of a study as units that stay together when a selection is permuted.
///
/// A unit is made of cells in an order that means the same in all units of its class: a run, or the
/// runs of one set of parameters.
struct ExchangeUnits
{
  IndependentUnit kind = IndependentUnit::run;
  std::vector<std::uint32_t> cellOfRun;
  std::vector<std::uint32_t> runsOfCell;
  /// First cell of each unit, then the number of cells.
  std::vector<std::uint32_t> firstCell;
  /// Whether the runs cannot be of the design that they are said to be of.
  bool contradictsDesign = false;
  /// Units that may change places: those of as many cells of as many runs. In order of their size.
  std::vector<std::vector<std::uint32_t>> classes;

  std::size_t units() const { return firstCell.empty() ? 0 : firstCell.size() - 1; }
  std::size_t runs() const { return cellOfRun.size(); }
  std::size_t runsOfUnit(std::size_t unit) const;
  /// Ways to permute the units within their classes; infinite for many.
  double arrangements() const;
};

/// The units of the runs for which `isKept` is not 0, of each unit all or none.
ExchangeUnits partOfUnits(const ExchangeUnits& units, const std::vector<char>& isKept);

/// The units without those in their classes that have no run for which `leftOut` is 0: such units
/// change no places and do not count.
/// @param leftOut an entry per run, or empty for none
ExchangeUnits onlyCompared(ExchangeUnits units, const std::vector<char>& leftOut);

/// With fewer arrangements no p below 0.05 exists, and permuting tells nothing.
constexpr double fewestArrangements = 20.0;

/// Base samples where the runs, or the sets of as many runs each in the order of their first runs,
/// are a Saltelli design, or are known to be one that their number allows; else groups of runs that
/// share values (stats/LinkedRuns.h); else sets where some set has several runs; else single runs.
/// @throws as runsIn() does
ExchangeUnits exchangeUnits(const ParameterColumns& columns, const KnownDesign& design = {});
} // namespace Talmesh::stats

#endif
