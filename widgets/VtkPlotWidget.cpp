#include "widgets/VtkPlotWidget.h"

#include "plot/PlotContainer.h"
#include "vtk/CancelledDrags.h"
#include "widgets/PdfPrinting.h"
#include "widgets/PixelSampling.h"
#include "widgets/PlotContextActor.h"
#include "widgets/PlotInteractorStyle.h"

#include <vtkCallbackCommand.h>
#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkInteractorObserver.h>
#include <vtkNew.h>
#include <vtkRenderWindowInteractor.h>
#include <vtkRenderer.h>

#include <QResizeEvent>

namespace
{

/// Letters mean wireframe, stereo, flying to a point and the like to VTK: nothing to a chart but
/// warnings that there is no renderer. A style that is observed leaves them to its observer.
void ignoreLetters(vtkRenderWindowInteractor* interactor)
{
  const vtkNew<vtkCallbackCommand> nothing;
  interactor->GetInteractorStyle()->AddObserver(vtkCommand::CharEvent, nothing);
}

} // namespace

VtkPlotWidget::VtkPlotWidget(QWidget* parent)
    : QVTKOpenGLNativeWidget(parent)
    , view(vtkSmartPointer<vtkContextView>::New())
    , actor(vtkSmartPointer<PlotContextActor>::New())
    , container(new PlotContainer(this))
{
  surviveFailures();
  view->GetScene()->AddItem(container->getItem());
  container->example();
  container->redraw();
  vtkNew<vtkGenericOpenGLRenderWindow> window;
  setRenderWindow(window);
  view->SetRenderWindow(window);
  view->SetInteractor(interactor());
  // In place of the view's own.
  vtkNew<PlotInteractorStyle> style;
  style->SetScene(view->GetScene());
  interactor()->SetInteractorStyle(style);
  ignoreLetters(interactor());
  window->LineSmoothingOn();
  sampling = std::make_unique<Talmesh::PixelSampling>(window, view->GetScene());
}

VtkPlotWidget::~VtkPlotWidget() = default;

/// Exceptions of items must not pass through a frame of VTK's or an event of Qt's. They leave
/// updatePlot() and printPlot(), or an event of their own after a frame that others have begun.
void VtkPlotWidget::surviveFailures()
{
  vtkRenderer* renderer = view->GetRenderer();
  renderer->RemoveAllViewProps();
  actor->SetScene(view->GetScene());
  renderer->AddActor(actor);
  // The view may be kept beyond the widget.
  actor->SetFailureHandler(
      [widget = QPointer<VtkPlotWidget>(this)]
      {
        if (widget)
          QMetaObject::invokeMethod(
              widget, [widget] { widget->actor->ThrowFailure(); }, Qt::QueuedConnection);
      });
}

void VtkPlotWidget::setPlotContainer(PlotContainer* replacement)
{
  if (!replacement)
    return;
  placePlotContainer(replacement);
  container->redraw();
  updatePlot(true);
}

void VtkPlotWidget::placePlotContainer(PlotContainer* replacement)
{
  if (!replacement)
    return;
  container = replacement;
  container->setScene(view->GetScene());
}

PlotContainer* VtkPlotWidget::plotContainer() const
{
  return container;
}

vtkContextView* VtkPlotWidget::contextView() const
{
  return view;
}

void VtkPlotWidget::updatePlot(bool clear)
{
  if (clear)
  {
    // The item may be held by the scene alone, for example after its container died.
    view->GetScene()->ClearItems();
    if (container && container->getItem())
      view->GetScene()->AddItem(container->getItem());
  }
  view->Render();
  actor->ThrowFailure();
}

bool VtkPlotWidget::cancelDrag()
{
  if (!Talmesh::cancelDrags(*view->GetScene()))
    return false;
  updatePlot(false);
  return true;
}

void VtkPlotWidget::printPlot(QString fileName)
{
  makeFramebufferReady();
  actor->ThrowFailure();
  printPdf(*this, fileName);
  actor->ThrowFailure();
}

void VtkPlotWidget::makeFramebufferReady()
{
  // A widget that was never shown has neither a context nor a size; grabbing makes both.
  if (!isValid())
  {
    grabFramebuffer();
    QResizeEvent resized(size(), QSize());
    resizeEvent(&resized);
  }
  grabFramebuffer();
  makeCurrent();
}
