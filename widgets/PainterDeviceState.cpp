// VTK 9.1 deprecates functions that a device must nevertheless define.
#define VTK_DEPRECATION_LEVEL 0

#include "widgets/PainterDevice.h"
#include "widgets/PainterText.h"

#include <vtkStdString.h>
#include <vtkTextProperty.h>

#if TALMESH_VTK_HAS_UNICODE_STRING
#include <vtkUnicodeString.h>
#endif

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

void PainterDevice::DrawString(float* point, const vtkStdString& string)
{
  const Talmesh::PainterText text(string, this->TextProp);
  const QPointF anchor = this->OnPage(point[0], point[1]);
  // Charts of constant columns put labels nowhere or so far away that no page can say where.
  const QRectF place = text.bounds();
  const QRectF inked(anchor.x() + place.left(), anchor.y() - place.bottom(), place.width(),
                     place.height());
  if (std::isfinite(anchor.x()) && std::isfinite(anchor.y()) &&
      inked.intersects(QRectF(QPointF(0.0, 0.0), QSizeF(this->Scene))))
    text.draw(this->Painter(), anchor);
}

void PainterDevice::DrawMathTextString(float* point, const vtkStdString& string)
{
  this->DrawString(point, string);
}

void PainterDevice::ComputeStringBounds(const vtkStdString& string, float bounds[4])
{
  this->ComputeJustifiedStringBounds(string.c_str(), bounds);
  bounds[0] = 0.0f;
  bounds[1] = 0.0f;
}

void PainterDevice::ComputeJustifiedStringBounds(const char* string, float bounds[4])
{
  const QRectF around = Talmesh::PainterText(string, this->TextProp).bounds();
  const std::array<double, 9>& matrix = this->Matrices.back();
  bounds[0] = static_cast<float>(around.x() / matrix[0]);
  bounds[1] = static_cast<float>(around.y() / matrix[4]);
  bounds[2] = static_cast<float>(around.width() / matrix[0]);
  bounds[3] = static_cast<float>(around.height() / matrix[4]);
}

#if TALMESH_VTK_HAS_UNICODE_STRING
void PainterDevice::DrawString(float* point, const vtkUnicodeString& string)
{
  this->DrawString(point, vtkStdString(string.utf8_str()));
}

void PainterDevice::ComputeStringBounds(const vtkUnicodeString& string, float bounds[4])
{
  this->ComputeStringBounds(vtkStdString(string.utf8_str()), bounds);
}
#endif

void PainterDevice::SetMatrix(vtkMatrix3x3* matrix)
{
  std::copy_n(matrix->GetData(), 9, this->Matrices.back().begin());
}

void PainterDevice::GetMatrix(vtkMatrix3x3* matrix)
{
  matrix->DeepCopy(this->Matrices.back().data());
}

void PainterDevice::MultiplyMatrix(vtkMatrix3x3* matrix)
{
  std::array<double, 9>& current = this->Matrices.back();
  const std::array<double, 9> before = current;
  vtkMatrix3x3::Multiply3x3(before.data(), matrix->GetData(), current.data());
}

void PainterDevice::PushMatrix()
{
  this->Matrices.push_back(std::array<double, 9>(this->Matrices.back()));
}

void PainterDevice::PopMatrix()
{
  if (this->Matrices.size() > 1)
    this->Matrices.pop_back();
}

void PainterDevice::SetClipping(int* rectangle)
{
  this->Clip = {double(rectangle[0]), double(rectangle[1]), double(rectangle[0]) + rectangle[2],
                double(rectangle[1]) + rectangle[3]};
}

void PainterDevice::EnableClipping(bool enable)
{
  this->EndMarkers();
  if (this->Clips && this->Limits.noneOfTheData)
    this->EndLayer();
  this->Clips = enable;
  if (!enable)
  {
    this->Page->setClipping(false);
    return;
  }
  // Pixels are inside or outside: at the edge of whole ones no line gets lighter.
  const QRect pixels = this->Page->transform().mapRect(this->ClippedArea()).toRect();
  const QTransform transform = this->Page->transform();
  this->Page->resetTransform();
  this->Page->setClipRect(pixels);
  this->Page->setTransform(transform);
  if (this->Limits.noneOfTheData)
    this->BeginLayer();
}

void PainterDevice::BeginLayer()
{
  if (this->MarkersInLayer)
    this->EndLayer();
  this->Layer = std::make_unique<Talmesh::PainterLayer>(this->ClippedArea(), this->Resolution,
                                                        this->Scene.height());
}

void PainterDevice::EndLayer()
{
  if (!this->Layer)
    return;
  this->MarkersInLayer = false;
  const auto finished = std::move(this->Layer);
  finished->putOn(*this->Page);
}
