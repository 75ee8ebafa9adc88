#ifndef ComparisonDock_h
#define ComparisonDock_h

#include "app/comparison/ComparisonChoice.h"
#include "external/PlotStyles.h"

#include <QDockWidget>

#include <cstddef>
#include <vector>

namespace Talmesh::app
{

struct Comparison;
struct NamedSide;
class ComparisonSettings;
class ComparisonTable;

/// The panel that compares the selected runs with the others: its controls and its results.
class ComparisonDock : public QDockWidget
{
  Q_OBJECT

public:
  explicit ComparisonDock(QWidget* parent = nullptr);

  /// Shows settings of a container and a comparison of its runs. Emits nothing.
  /// @param selections how many selections the user has looked at
  /// @param kept selections that can be compared
  void refresh(const PlotContainer& container, const Comparison& comparison, std::size_t selections,
               const std::vector<NamedSide>& kept = {});
  /// What the controls say.
  ComparisonChoice choice() const;
  ComparisonTable* table() const { return results; }

signals:
  /// The user changed something.
  void choiceChanged();
  /// The user wants one of the pages that compare runs.
  void styleChosen(plotStyles style);
  /// What has become of a step with the table, in one line.
  void said(const QString& message);
  /// Why a step with the table could not be done, in one line.
  void failed(const QString& message);

private:
  ComparisonSettings* settings;
  ComparisonTable* results;
};

} // namespace Talmesh::app

#endif
