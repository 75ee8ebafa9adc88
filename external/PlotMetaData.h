#ifndef PlotMetaData_h
#define PlotMetaData_h

#include "../export/TalmeshPlotExport.h"
#include "../external/CoordinateWindow.h"
#include "../external/PlotStyles.h"

#include <QObject>

#include <array>
#include <string>
#include <vector>

/// The settings that are plain data: whoever writes them asks for the redraw. Column numbers are
/// 0-based columns of the plotted table.
struct PlotMetaDataValues
{
  /// Columns of the x axis; the first is plotted.
  std::vector<int> xColumns{0};
  /// Columns of the y axis; the first is plotted, parallel coordinates show all of three or more.
  std::vector<int> yColumns{1};
  /// Columns of the third axis of the 3-D chart; the first is the error column of error bars.
  std::vector<int> zColumns{2};
  /// Marker of point plots, a value of vtkPlotPoints' marker enumeration (4 is the circle).
  int markerStyle = 4;
  /// Marker size of point plots in pixels.
  double pointSize = 4.0;
  /// Chart title, UTF-8.
  std::string title;
  /// Bottom-axis title, UTF-8.
  std::string xLabel;
  /// Left-axis title, UTF-8.
  std::string yLabel;
  /// Column whose values colour the lines of parallel coordinates and, unless solidColor is set,
  /// points; negative for none.
  int colorColumn = -1;
  /// Columns that hold parameters, in the order in which they are shown.
  std::vector<int> parameterColumns;
  /// An axis window kept with the settings; taken over by a plot that is restored from a dump.
  CoordinateWindow storedCoordinateWindow;
  /// Red, green, blue, alpha (0 to 255) of single-coloured points and lines.
  std::array<int, 4> color{0, 0, 0, 255};
  /// True: everything has the one colour; false: the plot's own colours.
  bool solidColor = true;
  /// True while the ranked values and densities belong to the present table and settings.
  bool rankedDataCurrent = false;
  /// Name of the data that is plotted; copied into selections so that they can be traced back.
  std::string sourceName;
  /// Number of the data that is plotted; copied into selections beside sourceName.
  int sourceId = 0;
};

/// The settings of one plot: the public values above, and options that announce their changes.
///
/// Setters emit redrawNeeded() once if, and only if, the value changes; a NaN that replaces a NaN
/// is no change. No value is rejected.
class TALMESHPLOT_EXPORT PlotMetaData : public QObject, public PlotMetaDataValues
{
  Q_OBJECT

public:
  explicit PlotMetaData(QObject* parent = nullptr);

  /// Copies every value and option, but nothing of the QObject: the copy has no parent, no
  /// connections and unblocked signals. Its owner sets the parent.
  PlotMetaData(const PlotMetaData& other);
  PlotMetaData& operator=(const PlotMetaData&) = delete;
  ~PlotMetaData() override;

  /// The chart to build; xyPlot at first.
  plotStyles getPlotStyle() const { return options.plotStyle; }
  void setPlotStyle(plotStyles plotStyle);

  /// Consecutive table rows per run; 1 at first. Values below 1 mean that there are no whole runs.
  int getStride() const { return options.stride; }
  void setStride(int stride);

  /// Lines instead of points in style xyPlot.
  bool getPlotLine() const { return options.plotLine; }
  void setPlotLine(bool on);

  /// Logarithmic bottom axis.
  bool getLogX() const { return options.logX; }
  void setLogX(bool on);

  /// Logarithmic parameter axes.
  bool getLogParameterAxes() const { return options.logParameterAxes; }
  void setLogParameterAxes(bool on);

  /// Densities instead of empirical distribution functions in the selection CDF plot.
  bool getUseDensity() const { return options.useDensity; }
  void setUseDensity(bool on);

  /// One scale for all densities instead of one per chart.
  bool getCommonDensityScale() const { return options.commonDensityScale; }
  void setCommonDensityScale(bool on);

  /// Quartile bands behind the runs.
  bool getShowQuantiles() const { return options.showQuantiles; }
  void setShowQuantiles(bool on);

  /// Smallest Kolmogorov-Smirnov statistic (0 to 1) that counts as a difference; 0 at first.
  double getKsThreshold() const { return options.ksThreshold; }
  void setKsThreshold(double threshold);

  /// Largest p-value (0 to 1) that counts as significant; 0.05 at first.
  double getPThreshold() const { return options.pThreshold; }
  void setPThreshold(double threshold);

  /// The scatter-plot matrix shows only the chosen columns.
  bool getLimitColumVisibility() const { return options.limitColumVisibility; }
  void setLimitColumVisibility(bool on);

  /// Line width in pixels; 1 at first.
  double getLineWidth() const { return options.lineWidth; }
  void setLineWidth(double width);

signals:
  /// An option changed and the picture is out of date.
  void redrawNeeded();

private:
  struct Options
  {
    plotStyles plotStyle = xyPlot;
    int stride = 1;
    bool plotLine = false;
    bool logX = false;
    bool logParameterAxes = false;
    bool useDensity = false;
    bool commonDensityScale = false;
    bool showQuantiles = false;
    bool limitColumVisibility = false;
    double ksThreshold = 0.0;
    double pThreshold = 0.05;
    double lineWidth = 1.0;
  };

  template <typename T>
  void change(T& option, T value);

  Options options;
};

#endif
