// VTK 9.1 deprecates the only function that outlines more than single bytes.
#define VTK_DEPRECATION_LEVEL 0

#include "widgets/PdfContextDevice.h"

#include <vtkObjectFactory.h>
#include <vtkOpenGLGL2PSHelper.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkPath.h>
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

vtkStandardNewMacro(PdfContextDevice);

namespace
{

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

} // namespace

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
