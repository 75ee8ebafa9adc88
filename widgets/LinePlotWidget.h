#ifndef LinePlotWidget_h
#define LinePlotWidget_h

#include "../export/TalmeshPlotExport.h"

#include <QWidget>

#include <memory>

struct LinePlotData;
class PlotSelector;
class QLabel;
class Ui_LinePlotWidgetClass;

/// The panel for time series: a chart, the list from which the user picks what it shows, and
/// buttons to export the table, show the legend and switch the left axis to logarithmic scale.
/// Without data it says so.
class TALMESHPLOT_EXPORT LinePlotWidget : public QWidget
{
  Q_OBJECT

public:
  explicit LinePlotWidget(QWidget* parent = nullptr);
  ~LinePlotWidget() override;

  /// Shows a data set, which stays the caller's and is copied. Null is ignored. The selector offers
  /// every item; one whose series is null draws nothing.
  void setData(LinePlotData* series);
  /// Shows that there are no data; the selector and the table are emptied.
  void removeData();

  /// The list from which the user picks, never null.
  PlotSelector* selector() const;

public slots:
  /// Shows or hides the legend.
  void toggleLegend();
  /// Asks for a logarithmic or for a linear left axis, in turn. Data with values of 0 or below are
  /// shown on a linear one all the same, which a line below the buttons tells; the button reads
  /// what is shown.
  void toggleLogScale();
  /// Asks for a file and writes the whole table to it as comma-separated text. A message tells when
  /// that fails.
  void exportPlot();

private:
  void emptyTable();
  void showScale();
  void setScaleNotice(bool shown);

  std::unique_ptr<Ui_LinePlotWidgetClass> form;
  QLabel* scaleNotice = nullptr;
  bool logScale = true;
  bool legendShown = true;
};

#endif
