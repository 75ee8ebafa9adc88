#ifndef PlotContainer_h
#define PlotContainer_h

#include "../export/TalmeshPlotExport.h"
#include "../external/PlotStyles.h"
#include "../external/TypedConcentrationName.h"
#include "../plot/KsStatistics.h"
#include "../plot/PlotContainerTypes.h"
#include "../plot/PlotOptions.h"
#include "../plot/PlotSeams.h"

#include <vtkSmartPointer.h>

#include <boost/shared_ptr.hpp>

#include <QObject>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// One plot: a table of data, the settings that say how to show it, and the charts that show it.
///
/// The container draws into the scene of the widget that shows it and never renders. Every settings
/// change that the settings object announces draws the plot again. Records passed in as pointers
/// stay the caller's. All calls belong to the GUI thread. Nothing here throws and nothing returns
/// an error code unless an operation says so; missing or mistyped columns give empty plots. What
/// keeps a chart from being drawn, operations that draw among other things report in one line on
/// standard error.
///
/// What a client wants otherwise than the library does stands in PlotSeams.
class TALMESHPLOT_EXPORT PlotContainer : public QObject, public PlotSeams
{
  Q_OBJECT

public:
  using KsStatistics = ::KsStatistics;
  explicit PlotContainer(QObject* parent);
  /// An independent container with deep copies of data, settings, remembered axis windows and
  /// selection, without derived results. It has no parallel-coordinates chart and cannot draw style
  /// 9. The copy draws itself once without a scene, with what that means for redraw().
  PlotContainer(const PlotContainer& other);
  PlotContainer& operator=(const PlotContainer&) = delete;
  ~PlotContainer() override;

  /// Moves the chart now shown into `scene`; the items of the scene that held it are removed.
  /// The scene is not kept alive; one that is gone counts as none.
  void setScene(vtkContextScene* scene);

  /// The chart now shown, which the widget adds to its scene. A drawing may exchange it.
  vtkAbstractContextItem* getItem() const;
  /// The settings, owned by the container.
  PlotMetaData* getMetaData() const;
  /// The plotted data, never null.
  vtkTable* getTable() const;
  /// The XY chart; null while the scatter-plot matrix or the 3-D chart is shown.
  vtkChartXY* getChartXY() const;
  /// The grid of charts of the pages of many charts.
  vtkChartMatrix* getChartMatrix() const;
  /// The selection that all charts share.
  vtkAnnotationLink* getAnnotationLink() const;
  /// Rank, density and further data tables; entries may be null.
  const std::vector<vtkSmartPointer<vtkTable>>& getDerivedTables() const;
  /// Typed names of the data columns.
  const std::vector<Talmesh::TypedConcentrationName>& getColumnItems() const;
  /// Quartiles of the runs per time point; null before the first computation.
  vtkTable* getQuartileTable() const;
  /// Cluster number of each run; null before the first clustering.
  vtkIntArray* getClusterMembership() const;
  /// One test result per parameter; empty before the first test.
  const std::vector<KsStatistics>& getKsResults() const;
  /// The samples of the tests that followed a selection; empty after other tests and before any.
  const std::vector<TestedSamples>& getTestedSamples() const;

  /// Whether the row index stands in for the x series; false at first.
  bool getUseIndexForXSeries() const;
  /// Where a style knows that. Marks the scene for painting.
  void setUseIndexForXSeries(bool use);

  const PlotOptions& getOptions() const;
  void setOptions(const PlotOptions& options);

  /// Draws the decoration lines, here and below, with the next redraw. Its last column is their
  /// common x. Null draws none. `show` switches them on or off.
  void setDecorations(vtkSmartPointer<vtkTable> decorations, bool show);
  bool getShowDecorations() const;
  void setShowDecorations(bool show);

  // Data input
  /// Appends a table over the arrays of `table`, which stays the caller's and must outlive it.
  void setLinePlotTableAsAdditionalData(LinePlotTable* table);
  /// Shows a shared line-plot table, whose arrays are used in place, and chooses its time column.
  /// Null is ignored. `quartiles`, here and below, asks for generateQuartiles() as well.
  void setLinePlotTable(boost::shared_ptr<LinePlotTable> table, bool quartiles);
  /// Fills the table from the line-plot table last set. Does nothing without one.
  void updateFromLinePlotTable(bool quartiles);
  /// Makes the typed items of kind Parameter the settings' parameter columns.
  void findParameterColumns();
  /// Forgets the typed names of the data columns, for a caller that loads new data.
  void clearColumnItems();
  /// Chooses the plotted columns at position `index` of the column lists and draws.
  void setPlotCols(int x, int y, int index, bool quartiles);
  /// As above by column name; a name that the table does not have changes nothing.
  void setPlotCols(const std::string& x, const std::string& y, int index, bool quartiles);
  /// Adds one double column. One of another length than the table's is refused, as VTK does.
  void addColumn(const std::vector<double>& values, const std::string& name);
  /// Fills the container with the example plot and draws it.
  void example();
  /// Shows y over x, with error bars when `error` has as many values as x. When x and y differ in
  /// length the chart's title says so and the settings stay silenced.
  void setSimpleXYPlot(std::vector<double>& x, std::vector<double>& y, std::vector<double>& error);
  QStringList getLabels() const;
  /// Replaces the table by a comma-separated file with names in its first line. Does not draw.
  void loadData(std::string fileName);
  /// Writes the table comma-separated; when `keepAll` is false, after reducing it to the columns
  /// that the settings use.
  /// @return for an empty file name the text, allocated with new[] and the caller's; otherwise null
  char* saveData(std::string fileName, bool keepAll);
  /// Gets a piece of a text, and the part of it that is then written, from 0 to 1; false ends the
  /// writing.
  using TextTaker = std::function<bool(const char* bytes, std::size_t size, double done)>;
  /// Writes a table as saveData() does, a few thousand rows at a time. Needs no container, and may
  /// run in any thread that alone uses the table.
  /// @return whether all of it was taken
  static bool writeTable(vtkTable* table, const TextTaker& take);

  // Appearance
  /// Solid colour of point plots, components 0 to 255. Like all setters up to setYLabel it stores
  /// the value in the settings and applies it to the charts now shown, if they have such a thing.
  void setColor(int r, int g, int b, int a);
  /// Colours by the solid colour or by the column of that name.
  void setColorScheme(std::string column, bool solid);
  /// Colours `plot`, or for null the XY chart's first plot, as the settings say.
  void useColors(vtkPlot* plot);
  /// A value of vtkPlotPoints' marker enumeration.
  void setMarkerStyle(int style);
  /// In pixels, as the width.
  void setPointSize(double size);
  void setLineWidth(double width);
  void setPlotTitle(std::string title);
  void setXLabel(std::string label);
  void setYLabel(std::string label);
  /// Texts in place of the bottom axis's numbers, from the next drawing on; none restores those.
  void setXTickLabels(std::vector<std::string> labels);
  /// Where they stand, in units of x; at 0, 1, 2, ... without positions.
  void setXTickPosition(const std::vector<double>& positions);
  /// Makes the bottom axis logarithmic exactly when the settings say so.
  void LogScaleX();
  /// Whether the picture has that axis logarithmic: it is asked for, and nothing plotted along it
  /// is 0 or below. Otherwise it is linear.
  bool showsLogScaleX() const;
  bool showsLogScaleY() const;
  /// Adds the decoration lines to the XY chart; `scene` is ignored.
  void drawDecorations(vtkContextScene* scene);
  /// Margins and gutters are in pixels; setting one calls updateMargins(), which applies them to
  /// the chart of the current style.
  int getLeftMargin() const;
  int getTopMargin() const;
  int getBottomMargin() const;
  int getRightMargin() const;
  int getHorizontalGutter() const;
  int getVerticalGutter() const;
  void setLeftMargin(int pixels);
  void setTopMargin(int pixels);
  void setBottomMargin(int pixels);
  void setRightMargin(int pixels);
  void setHorizontalGutter(int pixels);
  void setVerticalGutter(int pixels);
  void updateMargins();

  // Selection
  /// A new array named "selected points" with 1 for every selected table row and 0 otherwise, the
  /// caller's; null when nothing can be said of the rows.
  vtkIntArray* getCurrentSelection() const;
  /// Selects the rows whose entry is 1 in the table's last column, if that is an int column.
  void selectionFromFlagColumn();
  /// Selects one row of each run of `runs`: the one at position `offset` within the run.
  void setSelection(ParameterSelection* runs, int offset);
  /// The runs selected now, a new record that is the caller's; null when the table does not tell.
  ParameterSelection* getSelection();
  /// Ranks the parameters of the given runs as a further data set and draws. An exception from the
  /// ranking leaves everything as it was.
  void setExternalSelection(ParameterSelection* runs);

  // Statistics
  /// Builds the rank and density tables of the settings' parameter columns of `source` in slots
  /// `tableIndex` and `tableIndex` + 1 of the derived tables.
  void generateRankedParameters(vtkSmartPointer<vtkTable> source, std::size_t tableIndex);
  /// Compares the parameters of two rank tables of the derived tables; fills the test results.
  /// Where either table is missing, the results are empty. Draws nothing.
  void ksTestSelection(unsigned long first, unsigned long second);
  /// Rebuilds the table of quartiles per time point from the first y column. A stride below 1
  /// leaves the old one in place.
  void generateQuartiles();
  /// As above, unless the table is that of the present first x and y column and stride.
  void refreshQuartiles();
  /// Groups the runs into `clusters` clusters by the shape of the first y column. `mode` 2 compares
  /// phase spectra, 3 magnitude spectra, any other value the time series.
  void clusterTimeSeries(int clusters, int mode);
  /// Appends one new selection per cluster, labelled `prefix` and the cluster's number. The records
  /// are the caller's. The list is expected to be empty: runs go to its entry of their number.
  void selectionsFromClusters(std::string const& prefix,
                              std::vector<ParameterSelection*>& selections);

  // Changes of the data in place
  /// Multiplies run t of a double column by factors[t], one per whole run; null scales nothing.
  void scaleColumn(double* factors, int column);
  /// Divides each run of a double column by its own maximum, which counts as at least 0.
  void scaleRelativeToMaxWithinTrajectory(int column);
  /// Multiplies, or divides, a double column by another row by row. Does not draw.
  void scaleColumnByColumn(int column, int byColumn, bool divide);
  /// Reduces the table to the columns that the settings use and adds flags of the selected rows.
  void shrinkToColumnSelection();

  // Pages and special plots
  /// Draw the page of style 5, 6 or 8, or the chart of style 7, into `scene` in any present style.
  /// @throws std::out_of_range, the first two, when the column of a parameter that would be shown
  ///   has a name shorter than 11 characters
  void drawMulitPlot(vtkContextScene* scene);
  void drawSelectionCdfPlot(vtkContextScene* scene);
  void drawFitParameterDistributionPlot(vtkContextScene* scene);
  void drawScatterPlotWithErrorBars(vtkContextScene* scene);
  /// Replaces the table by the first-order or `total` sensitivity indices: of all outputs at one
  /// time point, or of one output over time. Shows them as style 1 or 2 does. Null is ignored.
  void setSobolPostprocessResult(SobolPostProcessResult* result, bool atTimePoint, bool total,
                                 unsigned long timePointIndex, unsigned long outputIndex);
  /// Builds the chart of the indices that are in the table.
  void setupStackedSobol(bool total);
  /// Replaces the table by residuals, divided by the errors if `scaled`, or by predictions and
  /// observations if `sideBySide`, and plots it. `predictions`, [output][observation], are
  /// normalised in place as the settings say. Null records are ignored.
  void setResidualPlot(FitRun* run, FitSettings* settings,
                       std::vector<std::vector<double>>& predictions, bool scaled, bool sideBySide);
  /// Shows the density of a distribution, whose values become the table. Null is ignored. An
  /// exception from the distribution leaves everything as it was.
  void setDistribution(Distribution* distribution);

  // Binary dump
  /// A new byte array, the caller's, that holds the typed items and the table.
  QByteArray* binaryDump();
  /// Replaces items and table by those of a dump, which is only read; null is ignored. However
  /// damaged it is, then flags in the last column become the current selection, the settings'
  /// stored window is remembered, the quartiles are computed anew and no selection update is
  /// pending. It does not draw, but a selection that it restores is a change like any other: with
  /// parameter columns in the settings the runs are split, ranked by the bounds known before, and
  /// redraw() is called; without a scene that writes its line and leaves the settings silenced.
  void readDump(QByteArray* data);

public slots:
  /// Uses `data` as the table, shared and not copied. Does not draw. Null is ignored.
  void setPlotData(vtkSmartPointer<vtkTable> data);
  /// Replaces the table by a copy of time series. Does not draw. Null is ignored.
  void setLinePlotData(LinePlotData* data);
  /// Appends a table of time series to the derived tables. Null is ignored.
  void setLinePlotDataAsAdditionalData(LinePlotData* data);
  /// Draws one line per item; the list is only read. Null is ignored.
  void setLinePlotItems(std::vector<Talmesh::TypedConcentrationName>*);
  /// Hands the style to the settings, whose announcement draws.
  void setPlotStyle(plotStyles plotStyle);
  /// Logarithmic left axis of the XY chart, which the settings do not keep. Styles with an XY chart
  /// keep it through redraws; error bars, distributions, residuals and styles without an XY chart
  /// end it. Data with values of 0 or below are drawn on a linear axis all the same.
  void setLogScaleY(bool log);
  /// Legend of the XY chart, which the settings do not keep. Styles with an XY chart keep it
  /// through redraws, the others end it.
  void setShowLegend(bool legend);
  /// Builds the chart of the current style. Started by the settings' signal it reports an exception
  /// in one line on standard error; called directly it throws what the style's builder throws.
  /// Without a scene it writes one line to standard output and leaves the settings silenced, so
  /// that they announce nothing until a redraw within a scene.
  void redraw();
  /// Asks the scene, if any, to paint again.
  void dirty();
  /// Runs the reaction to a changed selection.
  void annotationUpdate();

private:
  friend struct Talmesh::plot::ContainerAccess;

  void connectParts();
  void drawOrReport();
};

#endif
