#ifndef PdfContextDevice_h
#define PdfContextDevice_h

#include "vtk/ClippedDrawing.h"
#include "vtk/VtkCompat.h"

#include <vtkOpenGLContextDevice2D.h>

/// Paints a scene into a PDF file as the screen shows it: nothing passes the edges of a chart, and
/// every letter appears. The writer has only the letters of ASCII and cannot write every text of
/// those; other texts become outlines.
class PdfContextDevice : public ClippedDrawing<vtkOpenGLContextDevice2D>
{
public:
  static PdfContextDevice* New();
  TALMESH_VTK_TYPE(PdfContextDevice, ClippedDrawing<vtkOpenGLContextDevice2D>);

  using vtkOpenGLContextDevice2D::DrawString;
  void DrawString(float* point, const VtkDrawnText& text) override;

protected:
  PdfContextDevice() = default;
  ~PdfContextDevice() override = default;
};

#endif
