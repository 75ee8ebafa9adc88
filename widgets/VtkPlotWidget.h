#ifndef VtkPlotWidget_h
#define VtkPlotWidget_h

#include "../export/TalmeshPlotExport.h"

#include <QVTKOpenGLNativeWidget.h>
#include <vtkSmartPointer.h>

#include <QPointer>
#include <QString>

#include <memory>

class PlotContainer;
class PlotContextActor;
class vtkContextView;
namespace Talmesh
{
class PixelSampling;
}

/// Shows one plot container and exports its picture. A new widget shows the example plot. The
/// window's samples of a pixel are taken for charts that need them to look smooth.
///
/// What an item throws while it is painted, as for want of memory, leaves updatePlot() and
/// printPlot(); of other frames it leaves an event of its own, for QCoreApplication::notify() to
/// catch. The widget can be painted again, and destroyed, at any time.
///
/// The program must set QVTKOpenGLNativeWidget::defaultFormat() as QSurfaceFormat's default before
/// it makes its QApplication.
class TALMESHPLOT_EXPORT VtkPlotWidget : public QVTKOpenGLNativeWidget
{
  Q_OBJECT

public:
  explicit VtkPlotWidget(QWidget* parent = nullptr);
  ~VtkPlotWidget() override;

  /// Shows another container, which stays its owner's and must be replaced here before it dies.
  /// The container that the widget made stays the widget's child. Null is ignored.
  void setPlotContainer(PlotContainer* container);
  /// The same without drawing it, for a container that is still to be filled: it is drawn by its
  /// next redraw, and seen after `updatePlot`.
  void placePlotContainer(PlotContainer* container);
  /// The container shown; null after it died.
  PlotContainer* plotContainer() const;
  /// The view whose scene holds the chart.
  vtkContextView* contextView() const;

  /// Takes away what the mouse is drawing to select or to enlarge: the release of its button then
  /// does nothing. Paints.
  /// @return whether there was anything
  bool cancelDrag();

  /// Writes the picture as a vector PDF named `fileName` without its last ".pdf", followed by
  /// ".pdf". A ".pdf" that starts at position 0 or 1 stays in the name. A failure is reported
  /// through VTK's error output only. Works for a widget that was never shown.
  void printPlot(QString fileName);

public slots:
  /// Renders; with `clear` the scene first gets the container's current chart as its only item,
  /// which is how a chart that a redraw exchanged reaches the screen.
  void updatePlot(bool clear = true);

private:
  void surviveFailures();
  void makeFramebufferReady();

  vtkSmartPointer<vtkContextView> view;
  vtkSmartPointer<PlotContextActor> actor;
  QPointer<PlotContainer> container;
  std::unique_ptr<Talmesh::PixelSampling> sampling;
};

#endif
