#ifndef SelectionComparison_h
#define SelectionComparison_h

#include "app/comparison/ComparisonResults.h"
#include "app/document/ComparedSides.h"
#include "app/document/LevelBars.h"
#include "plot/DistributionGroup.h"
#include "plot/KsStatistics.h"

#include <QObject>
#include <QPointer>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// The comparison of two groups of a container's runs, at first of the selected ones with the
/// others, brought up to date whenever
/// somebody asks and before every drawing, and handed to the container, so that table and charts
/// say the same.
///
/// Nobody else hands tests to the container. Belongs to the GUI thread.
class SelectionComparison : public QObject
{
  Q_OBJECT

public:
  /// Compares, in any thread.
  /// @param progress told the part done; false gives up
  using Work = std::function<Comparison(const std::function<bool(double)>& progress)>;
  /// Does long work elsewhere: `start` takes work, in place of the one before, and delivers its
  /// result in the GUI thread, from the event loop; nothing if it was given up.
  struct Background
  {
    std::function<void(const Work&, const std::function<void(const Comparison&)>&)> start;
    std::function<void()> cancel;
  };

  using QObject::QObject;
  ~SelectionComparison() override;

  /// Without it, all is done at once.
  void setBackground(const Background& elsewhere) { background = elsewhere; }
  /// What says by which words the runs are selected; empty where nobody knows.
  void setWords(const std::function<std::string()>& said) { words = said; }
  /// What says by which conditions runs came into the selection, whatever became of its words.
  void setConditions(const std::function<std::vector<std::string>()>& said) { conditions = said; }
  /// What says which selections are kept for the container that is followed.
  void setKept(const std::function<std::vector<KeptSelection>()>& known) { kept = known; }

  /// Turns to another container, not owned, or to none.
  void follow(PlotContainer* container);

  /// What can be said now; tests that take long may follow. Announces by `found` where the charts
  /// say something else, as when the words of a selection are known only after it was drawn.
  const Comparison& current();
  /// How many selections of the container have been compared; none counts twice.
  std::size_t selections() const { return lookedBefore + seen.size(); }
  /// How many have been compared before the container was followed, its present one among them.
  void setLookedBefore(std::size_t count);
  /// The user gives up what is under way.
  void giveUp();

signals:
  /// There is something to say that the charts do not.
  void found();

private:
  bool update();
  void begin();
  void take(const Comparison& found);
  bool handOver();
  bool handOverGroups();
  bool showsDistributions() const;

  QPointer<PlotContainer> followed;
  Background background;
  std::function<std::string()> words;
  std::function<std::vector<std::string>()> conditions;
  std::function<std::vector<KeptSelection>()> kept;
  std::optional<ComparedStudy> compared;
  ComparisonChoice choice;
  ComparedSides sides;
  Comparison comparison;
  std::vector<ParameterTest> handed;
  std::vector<DistributionGroup> drawn;
  std::vector<LevelShares> bars;
  /// Fingerprints of selections.
  std::set<std::size_t> seen;
  std::size_t lookedBefore = 0;
  /// The next selection has been counted before.
  bool isRestored = false;
  bool underWay = false;
};

} // namespace Talmesh::app

#endif
