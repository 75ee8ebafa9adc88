// VTK 9.1 deprecates the only function that outlines more than single bytes.
#define VTK_DEPRECATION_LEVEL 0

#include "widgets/PdfPrinting.h"

#include "vtk/ClippedDrawing.h"
#include "vtk/VtkCompat.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkContext2D.h>
#include <vtkContext3D.h>
#include <vtkContextActor.h>
#include <vtkContextView.h>
#include <vtkGL2PSExporter.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLContextDevice2D.h>
#include <vtkOpenGLContextDevice3D.h>
#include <vtkOpenGLGL2PSHelper.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkPath.h>
#include <vtkPropCollection.h>
#include <vtkRenderer.h>
#include <vtkSmartPointer.h>
#include <vtkTextProperty.h>
#include <vtkTextRenderer.h>

#if TALMESH_VTK_HAS_UNICODE_STRING
#include <vtkUnicodeString.h>
#else
#include <vtkStdString.h>
#endif

#include <algorithm>
#include <cmath>
#include <string>

namespace
{

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

vtkStandardNewMacro(PdfContextDevice);

#if TALMESH_VTK_HAS_UNICODE_STRING
std::string lettersOf(const vtkUnicodeString& text)
{
  return text.utf8_str();
}
#else
const std::string& lettersOf(const vtkStdString& text)
{
  return text;
}
#endif

/// The writer copies letters between parentheses, which is how a string starts and ends in a PDF: a
/// parenthesis without its partner, or a backslash, would spoil the rest of the page.
bool isWrittenAsText(const std::string& text)
{
  int open = 0;
  for (const char letter : text)
  {
    open += letter == '(' ? 1 : letter == ')' ? -1 : 0;
    if (open < 0 || letter == '\\' || static_cast<unsigned char>(letter) >= 0x80)
      return false;
  }
  return open == 0;
}

void PdfContextDevice::DrawString(float* point, const VtkDrawnText& text)
{
  vtkOpenGLGL2PSHelper* writer = vtkOpenGLGL2PSHelper::GetInstance();
  vtkTextRenderer* renderer = vtkTextRenderer::GetInstance();
  const std::string letters = lettersOf(text);
  const bool writes = writer && writer->GetActiveState() == vtkOpenGLGL2PSHelper::Capture;
  if (!writes || !renderer || isWrittenAsText(letters))
  {
    this->Superclass::DrawString(point, text);
    return;
  }
  vtkNew<vtkPath> outline;
  renderer->StringToPath(this->TextProp, text, outline, this->RenderWindow->GetDPI());
  float x = point[0];
  float y = point[1];
  this->TransformPoint(x, y);
  double position[3] = {x, y, 0.0};
  double color[3];
  this->TextProp->GetColor(color);
  unsigned char rgba[4];
  std::transform(color, color + 3, rgba,
                 [](double part) { return static_cast<unsigned char>(std::lround(255.0 * part)); });
  rgba[3] = static_cast<unsigned char>(std::lround(255.0 * this->TextProp->GetOpacity()));
  writer->DrawPath(outline, position, position, rgba);
}

vtkContext2D* contextOf(VtkPlotWidget& widget)
{
  vtkPropCollection* props = widget.contextView()->GetRenderer()->GetViewProps();
  for (int i = 0; i < props->GetNumberOfItems(); ++i)
    if (auto* actor = vtkContextActor::SafeDownCast(props->GetItemAsObject(i)))
      return actor->GetContext();
  return nullptr;
}

/// The painter of three dimensions takes its matrices from the one of two.
void use(VtkPlotWidget& widget, vtkContext2D* context, vtkContextDevice2D* device)
{
  context->Begin(device);
  auto* flat = vtkOpenGLContextDevice2D::SafeDownCast(device);
  auto* deep = context->GetContext3D()
                   ? vtkOpenGLContextDevice3D::SafeDownCast(context->GetContext3D()->GetDevice())
                   : nullptr;
  if (flat && deep)
    deep->Initialize(widget.contextView()->GetRenderer(), flat);
}

/// Exchanges the device with which a plot widget paints while it lives. A widget that was never
/// painted has no device yet and keeps it so.
class TemporaryContextDevice
{
public:
  TemporaryContextDevice(VtkPlotWidget& widget, vtkOpenGLContextDevice2D* device);
  ~TemporaryContextDevice();
  TemporaryContextDevice(const TemporaryContextDevice&) = delete;
  TemporaryContextDevice& operator=(const TemporaryContextDevice&) = delete;

  /// Whether the device is in use.
  bool exchanged() const { return context != nullptr; }

private:
  VtkPlotWidget& widget;
  vtkContext2D* context;
  vtkOpenGLContextDevice2D* device;
  vtkSmartPointer<vtkContextDevice2D> before;
};

TemporaryContextDevice::TemporaryContextDevice(VtkPlotWidget& widget_,
                                               vtkOpenGLContextDevice2D* device_)
    : widget(widget_)
    , context(contextOf(widget_))
    , device(device_)
    , before(context ? context->GetDevice() : nullptr)
{
  if (before)
    use(widget, context, device);
  else
    context = nullptr;
}

TemporaryContextDevice::~TemporaryContextDevice()
{
  if (!exchanged())
    return;
  widget.makeCurrent();
  device->ReleaseGraphicsResources(widget.renderWindow());
  use(widget, context, before);
}

} // namespace

QString exportPrefix(const QString& fileName)
{
  static const QString suffix = QStringLiteral(".pdf");
  const int position = fileName.lastIndexOf(suffix);
  QString prefix = fileName;
  if (position > 1)
    prefix.remove(position, suffix.size());
  return prefix;
}

void printPdf(VtkPlotWidget& widget, const QString& fileName)
{
  vtkNew<PdfContextDevice> device;
  const TemporaryContextDevice exchanged(widget, device);
  vtkNew<vtkGL2PSExporter> exporter;
  exporter->SetRenderWindow(widget.renderWindow());
  exporter->SetFileFormatToPDF();
  exporter->SetSortToOff();
  exporter->CompressOff();
  exporter->SimpleLineOffsetOff();
  exporter->SilentOn();
  exporter->SetFilePrefix(exportPrefix(fileName).toLocal8Bit().constData());
  exporter->Write();
}
