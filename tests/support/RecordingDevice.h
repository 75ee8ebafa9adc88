#ifndef RecordingDevice_h
#define RecordingDevice_h

#include "vtk/VtkCompat.h"

#include <vtkContextDevice2D.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>

#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

class vtkContext2D;
class vtkMatrix3x3;

/// A painting surface that draws nothing and remembers every drawing call together with the pen
/// and the brush at that moment. Coordinates are recorded as the painter passes them on, before
/// any transformation. Rectangles arrive as VTK paints them: a Quad, then its outline as a Poly.
class RecordingDevice : public vtkContextDevice2D
{
public:
  enum class Kind
  {
    Poly,
    Lines,
    Points,
    PointSprites,
    Markers,
    Quad,
    QuadStrip,
    Polygon,
    EllipseWedge,
    EllipticArc,
    String,
    MathText,
    Image
  };

  using Point = std::pair<float, float>;
  using Color = std::array<int, 4>;

  struct Call
  {
    Kind kind;
    std::vector<Point> points; ///< of shapes; the position of texts and images
    std::string text;          ///< of texts
    int marker = 0;            ///< shape of markers
    bool highlight = false;    ///< of markers
    std::size_t colors = 0;    ///< colour components passed along, 0 if none
    Color penColor{};          ///< red, green, blue, alpha
    float penWidth = 0;
    int penType = 0;
    Color brushColor{};
  };

  static RecordingDevice* New();
  TALMESH_VTK_TYPE(RecordingDevice, vtkContextDevice2D);

  /// Everything recorded so far, in order.
  const std::vector<Call>& calls() const { return recorded; }
  /// The calls of one kind, in order.
  std::vector<Call> calls(Kind kind) const;
  void clear() { recorded.clear(); }

  void setSize(int width, int height);

  void DrawPoly(float* points, int n, unsigned char* colors, int components) override;
  void DrawLines(float* points, int n, unsigned char* colors, int components) override;
  void DrawPoints(float* points, int n, unsigned char* colors, int components) override;
  void DrawPointSprites(vtkImageData* sprite, float* points, int n, unsigned char* colors,
                        int components) override;
  using vtkContextDevice2D::DrawMarkers;
  void DrawMarkers(int shape, bool highlight, float* points, int n, unsigned char* colors,
                   int components) override;
  void DrawQuad(float* points, int n) override;
  void DrawQuadStrip(float* points, int n) override;
  void DrawColoredPolygon(float* points, int n, unsigned char* colors, int components) override;
  void DrawEllipseWedge(float x, float y, float outRx, float outRy, float inRx, float inRy,
                        float startAngle, float stopAngle) override;
  void DrawEllipticArc(float x, float y, float rX, float rY, float startAngle,
                       float stopAngle) override;
  void DrawString(float* point, const vtkStdString& string) override;
  void DrawMathTextString(float* point, const vtkStdString& string) override;
  void DrawImage(float p[2], float scale, vtkImageData* image) override;
  void DrawImage(const vtkRectf& pos, vtkImageData* image) override;

  ///@{
  /// Every character is 6 wide and every line 12 high.
  void ComputeStringBounds(const vtkStdString& string, float bounds[4]) override;
  void ComputeJustifiedStringBounds(const char* string, float bounds[4]) override;
  ///@}

#if TALMESH_VTK_HAS_UNICODE_STRING
  void DrawString(float* point, const vtkUnicodeString& string) override;
  void ComputeStringBounds(const vtkUnicodeString& string, float bounds[4]) override;
#endif

  void SetColor4(unsigned char color[4]) override;
  void SetTexture(vtkImageData* image, int properties) override;
  void SetPointSize(float size) override;
  void SetLineWidth(float width) override;
  void SetLineType(int type) override;
  void SetMatrix(vtkMatrix3x3* matrix) override;
  void GetMatrix(vtkMatrix3x3* matrix) override;
  void MultiplyMatrix(vtkMatrix3x3* matrix) override;
  void PushMatrix() override;
  void PopMatrix() override;
  void SetClipping(int* rectangle) override;
  void EnableClipping(bool enable) override;

protected:
  RecordingDevice();
  ~RecordingDevice() override;

private:
  Call& record(Kind kind, const float* points, int n, const unsigned char* colors = nullptr,
               int components = 0);

  std::vector<Call> recorded;
  std::vector<vtkSmartPointer<vtkMatrix3x3>> matrices;
};

/// A painter on a recording device of its own.
class RecordingPainter
{
public:
  RecordingPainter();
  ~RecordingPainter();
  RecordingPainter(const RecordingPainter&) = delete;
  RecordingPainter& operator=(const RecordingPainter&) = delete;

  vtkNew<RecordingDevice> device;
  vtkNew<vtkContext2D> painter;
};

#endif
