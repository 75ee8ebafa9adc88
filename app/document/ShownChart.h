#ifndef ShownChart_h
#define ShownChart_h

#include "app/document/OwnChart.h"

#include <QObject>

#include <memory>
#include <string>

class PlotContainer;

namespace Talmesh::app
{

/// A study's own chart in a container, complete in every drawing, whoever asks for it. A title that
/// the user gives it stays until another variant is shown.
class ShownChart : public QObject
{
  Q_OBJECT

public:
  /// @param container what shows the chart and nothing else; the chart's parent
  ShownChart(std::shared_ptr<const OwnChart> chart, PlotContainer& container);

  /// Fills the container with a variant, which the next redraw draws.
  void choose(int variant);
  /// The variant chosen last; the chart's first one before.
  int variant() const { return chosen; }

private:
  void complete();

  std::shared_ptr<const OwnChart> chart;
  PlotContainer& container;
  int chosen;
  ChartSteps steps;
  /// The title that the chart gave itself; another one is the user's.
  std::string ownTitle;
  /// The settings' title when the present drawing began: a style may write its own.
  std::string titleBefore;
};

} // namespace Talmesh::app

#endif
