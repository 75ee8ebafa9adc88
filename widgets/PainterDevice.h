#ifndef PainterDevice_h
#define PainterDevice_h

#include "vtk/AggregateDevice.h"
#include "vtk/ClipRegion.h"
#include "vtk/VtkCompat.h"
#include "widgets/PainterLayer.h"

#include <vtkContextDevice2D.h>
#include <vtkMatrix3x3.h>
#include <vtkNew.h>
#include <vtkType.h>

#include <QPointF>
#include <QPolygonF>
#include <QSize>

#include <array>
#include <memory>
#include <vector>

class QColor;
class QPainter;
class QPen;
class QRectF;

namespace Talmesh
{
struct MarkerShape;
}

/// Up to how many shapes of a chart become shapes on a page; more of them become a picture.
struct ShapeLimits
{
  vtkIdType bundle = VTK_ID_MAX;     ///< runs
  vtkIdType highlights = VTK_ID_MAX; ///< runs
  vtkIdType points = VTK_ID_MAX; ///< markers with nothing else between them, of one plot or several
  /// Whether everything that charts clip, which is what they show of the data, becomes pictures.
  bool noneOfTheData = false;
};

/// Paints a scene with a QPainter: on a page, in a picture of any resolution. The scene's pixels
/// are the units of the painter's coordinates, in which the upper left corner of the scene is the
/// origin. Nothing passes the edges of a chart; what lies far outside is not handed on.
class PainterDevice : public vtkContextDevice2D, public Talmesh::AggregateDevice
{
public:
  static PainterDevice* New();
  TALMESH_VTK_TYPE(PainterDevice, vtkContextDevice2D);

  /// @param scene its size
  /// @param resolution how many pixels of pictures a unit has
  void Use(QPainter* painter, const QSize& scene, double resolution);
  void SetLimits(const ShapeLimits& limits) { this->Limits = limits; }

  /// Ends what is still drawn as a picture.
  void End() override { this->EndMarkers(); }

  /// What is drawn from one to the other becomes a picture.
  void BeginLayer();
  void EndLayer();

  vtkIdType mostShapes(Shapes kind) const override;
  Talmesh::PixelGrid pixelGrid() const override;

  void DrawPoly(float* points, int n, unsigned char* colors = nullptr, int components = 0) override;
  void DrawLines(float* points, int n, unsigned char* colors = nullptr,
                 int components = 0) override;
  void DrawPoints(float* points, int n, unsigned char* colors = nullptr,
                  int components = 0) override;
  void DrawPointSprites(vtkImageData* sprite, float* points, int n, unsigned char* colors = nullptr,
                        int components = 0) override;
  void DrawMarkers(int shape, bool highlight, float* points, int n, unsigned char* colors = nullptr,
                   int components = 0) override;
  void DrawQuad(float* points, int n) override;
  void DrawQuadStrip(float* points, int n) override;
  void DrawColoredPolygon(float* points, int n, unsigned char* colors = nullptr,
                          int components = 0) override;
  void DrawEllipseWedge(float x, float y, float outRx, float outRy, float inRx, float inRy,
                        float startAngle, float stopAngle) override;
  void DrawEllipticArc(float x, float y, float rX, float rY, float startAngle,
                       float stopAngle) override;
  void DrawImage(float p[2], float scale, vtkImageData* image) override;
  void DrawImage(const vtkRectf& position, vtkImageData* image) override;

  void DrawString(float* point, const vtkStdString& string) override;
  void DrawMathTextString(float* point, const vtkStdString& string) override;
  bool MathTextIsSupported() override { return false; }
  void ComputeStringBounds(const vtkStdString& string, float bounds[4]) override;
  void ComputeJustifiedStringBounds(const char* string, float bounds[4]) override;
#if TALMESH_VTK_HAS_UNICODE_STRING
  void DrawString(float* point, const vtkUnicodeString& string) override;
  void ComputeStringBounds(const vtkUnicodeString& string, float bounds[4]) override;
#endif

  void SetColor4(unsigned char*) override {}
  void SetTexture(vtkImageData*, int) override {}
  void SetPointSize(float) override {}
  void SetLineWidth(float) override {}
  void SetLineType(int) override {}

  void SetMatrix(vtkMatrix3x3* matrix) override;
  void GetMatrix(vtkMatrix3x3* matrix) override;
  void MultiplyMatrix(vtkMatrix3x3* matrix) override;
  void PushMatrix() override;
  void PopMatrix() override;
  void SetClipping(int* rectangle) override;
  void EnableClipping(bool enable) override;

protected:
  PainterDevice();
  ~PainterDevice() override;

private:
  /// Of anything but a marker.
  QPainter& Painter();
  QPainter& Surface();
  void EndMarkers();
  /// Where a point of the current coordinates is on the page.
  QPointF OnPage(double x, double y) const;
  QPolygonF OnPage(const Talmesh::ClippedPoints& piece) const;
  /// What is seen, and so much more around it.
  Talmesh::ClipRegion Region(double more);
  QRectF ClippedArea() const;
  bool DrawsLines(const unsigned char* colors);
  void Stroke(const Talmesh::ClippedPoints& piece, int components, QPen pen);
  void Fill(const QPolygonF& polygon, const QColor& color);
  void DrawShapes(const Talmesh::MarkerShape& marker, const Talmesh::ClippedPoints& places,
                  int components);
  QPolygonF Arc(float x, float y, float rX, float rY, float startAngle, float stopAngle) const;

  QPainter* Page = nullptr;
  QSize Scene;
  double Resolution = 1.0;
  ShapeLimits Limits;
  std::unique_ptr<Talmesh::PainterLayer> Layer;
  vtkIdType MarkersInARow = 0; ///< with nothing else drawn between them
  bool MarkersInLayer = false; ///< whether the layer is that of markers only
  std::vector<std::array<double, 9>> Matrices;
  Talmesh::ClipRectangle Clip;
  bool Clips = false;
};

#endif
