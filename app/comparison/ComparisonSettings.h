#ifndef ComparisonSettings_h
#define ComparisonSettings_h

#include "app/comparison/ComparisonChoice.h"
#include "external/PlotStyles.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QToolButton;

namespace Talmesh::app
{

class DesignBox;
class SeedBox;
class SideBoxes;
class ThresholdBox;
struct NamedSide;

/// The controls of a comparison of runs: which page shows it, what counts as a difference, and how
/// it is drawn. A control is enabled where it has an effect.
class ComparisonSettings : public QWidget
{
  Q_OBJECT

public:
  explicit ComparisonSettings(QWidget* parent = nullptr);

  /// Shows a choice, and enables what a plot of `style` with or without parameters reads of it.
  /// Emits nothing.
  void setChoice(const ComparisonChoice& choice, plotStyles style, bool parameters);
  /// Offers the kept selections to be compared. Emits nothing.
  void setKept(const std::vector<NamedSide>& kept);
  /// Whether what is compared draws anything at random, beside halves and maxT.
  void setPermutes(bool permutes);
  /// The choice shown, with what the user has changed of it: what no control was used for is as it
  /// was, also where a control cannot show it.
  const ComparisonChoice& choice() const { return chosen; }

signals:
  /// The user changed something.
  void choiceChanged();
  /// The user wants one of the pages that compare runs.
  void styleChosen(plotStyles style);

private:
  void addPages(QGridLayout* layout);
  void addSides(QGridLayout* layout);
  void addThresholds(QGridLayout* layout);
  void addTests(QGridLayout* layout);
  void addSwitches(QGridLayout* layout);
  void addHalves(QGridLayout* layout);
  void writeSwitch(QCheckBox* box, bool ComparisonChoice::*value);
  QToolButton* addPage(const QString& text, const QString& toolTip, plotStyles style);
  void enableControls();

  QToolButton* distributions = nullptr;
  QToolButton* pairs = nullptr;
  ThresholdBox* pThreshold = nullptr;
  ThresholdBox* ksThreshold = nullptr;
  QComboBox* comparedBy = nullptr;
  QComboBox* adjustment = nullptr;
  QCheckBox* halves = nullptr;
  SideBoxes* sides = nullptr;
  SeedBox* seed = nullptr;
  DesignBox* design = nullptr;
  QCheckBox* density = nullptr;
  QCheckBox* commonDensityScale = nullptr;
  QCheckBox* logParameterAxes = nullptr;
  QCheckBox* bands = nullptr;
  ComparisonChoice chosen;
  plotStyles shownStyle = xyPlot;
  bool hasParameters = false;
  bool drawsUnits = false;
};

} // namespace Talmesh::app

#endif
