#include "widgets/ScenePainter.h"

#include "widgets/PainterDevice.h"
#include "widgets/PainterDevice3D.h"

#include <vtkContext2D.h>
#include <vtkContext3D.h>
#include <vtkContextScene.h>
#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkNew.h>
#include <vtkRenderer.h>
#include <vtkSmartPointer.h>

#include <QPainter>

namespace Talmesh
{
namespace
{
ShapeLimits limitsOf(Vectors vectors)
{
  switch (vectors)
  {
  case Vectors::All:
    return {};
  case Vectors::Auto:
    return {mostVectorRuns, mostVectorHighlights, mostVectorPoints, false};
  default:
    return {0, 0, 0, true};
  }
}
/// Items that ask how large the view is are told the size of the window that the scene's renderer
/// belongs to: while this lives, one of the page's size.
class ViewOfPage
{
public:
  ViewOfPage(vtkContextScene& painted, const QSize& size)
      : scene(painted)
      , before(painted.GetRenderer())
  {
    page->SetSize(size.width(), size.height());
    page->AddRenderer(renderer);
    scene.SetRenderer(renderer);
  }
  ~ViewOfPage() { scene.SetRenderer(before); }
  ViewOfPage(const ViewOfPage&) = delete;
  ViewOfPage& operator=(const ViewOfPage&) = delete;

private:
  vtkContextScene& scene;
  const vtkSmartPointer<vtkRenderer> before;
  // Never rendered.
  const vtkNew<vtkGenericOpenGLRenderWindow> page;
  const vtkNew<vtkRenderer> renderer;
};
} // namespace

void paintScene(vtkContextScene& scene, QPainter& painter, const QSize& size, double resolution,
                Vectors vectors)
{
  painter.setRenderHint(QPainter::Antialiasing);
  // Otherwise pages get pictures with the noise of JPEG around every line.
  painter.setRenderHint(QPainter::LosslessImageRendering);
  painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);

  vtkNew<PainterDevice> flat;
  flat->Use(&painter, size, resolution);
  flat->SetLimits(limitsOf(vectors));
  vtkNew<PainterDevice3D> deep;
  deep->Use(flat);
  vtkNew<vtkContext2D> context;
  vtkNew<vtkContext3D> context3D;
  context->Begin(flat);
  context3D->Begin(deep);
  context->SetContext3D(context3D);

  const ViewOfPage view(scene, size);
  scene.SetGeometry(size.width(), size.height());
  scene.Paint(context);
  deep->Finish();
  context3D->End();
  context->End();
}
} // namespace Talmesh
