#include "vtk/vtkPlotStepLine.h"

#include "vtk/CurvePicture.h"
#include "vtk/PlotItemPainting.h"

#include <vtkContext2D.h>
#include <vtkContextMapper2D.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkRect.h>
#include <vtkTable.h>

vtkStandardNewMacro(vtkPlotStepLine);

namespace
{
// Heights of the staircase's ends, as the cached points have them.
struct Ends
{
  float bottom;
  float top;
};

struct Staircase
{
  float* next;

  void to(float x, float y)
  {
    *next++ = x;
    *next++ = y;
  }
};

void fillStaircase(const float* points, vtkIdType count, const Ends& ends, float* steps)
{
  Staircase staircase{steps};
  staircase.to(points[0], ends.bottom);
  staircase.to(points[0], points[1]);
  for (vtkIdType i = 1; i < count; ++i)
  {
    staircase.to(points[2 * i], points[2 * i - 1]);
    staircase.to(points[2 * i], points[2 * i + 1]);
  }
  const float lastX = points[2 * count - 2];
  staircase.to(lastX, points[2 * count - 1]);
  staircase.to(lastX, ends.top);
}
} // namespace

vtkPlotStepLine::vtkPlotStepLine()
    : Curve(std::make_unique<Talmesh::CurvePicture>())
{
}

vtkPlotStepLine::~vtkPlotStepLine()
{
  if (this->StepPoints)
    this->StepPoints->Delete();
}

void vtkPlotStepLine::Update()
{
  vtkTable* table = this->Data->GetInput();
  this->Superclass::Update();
  if (!this->Visible)
    return;
  // Without an input newer versions of VTK leave it.
  if (!table)
    this->ValidPointMask = nullptr;
  else
    this->UpdateStepPointsCache(table);
}

bool vtkPlotStepLine::UpdateStepPointsCache(vtkTable* table)
{
  if (!this->Points)
    this->ReadPoints(table);
  if (!this->StepPoints)
    this->StepPoints = vtkPoints2D::New();
  this->StepPoints->GetData()->SetNumberOfComponents(2);

  // Without readable x and y columns the base has no cache even now.
  const vtkIdType count = this->Points ? this->Points->GetNumberOfPoints() : 0;
  this->StepPoints->SetNumberOfPoints(count < 1 ? 0 : 2 * count + 2);
  auto* points = this->Points ? vtkFloatArray::SafeDownCast(this->Points->GetData()) : nullptr;
  this->IsFilled = count >= 1 && points;
  if (this->IsFilled)
  {
    // A chart with extreme ranges shifts and scales the points that it shows.
    const vtkRectd shift = this->GetShiftScale();
    const Ends ends{static_cast<float>(shift.GetY() * shift.GetHeight()),
                    static_cast<float>((1.0 + shift.GetY()) * shift.GetHeight())};
    fillStaircase(points->GetPointer(0), count, ends,
                  static_cast<float*>(this->StepPoints->GetVoidPointer(0)));
  }
  this->StepPoints->Modified();
  this->BuildTime.Modified();
  return true;
}

bool vtkPlotStepLine::Paint(vtkContext2D* painter)
{
  if (!this->Visible || !this->Points || this->Points->GetNumberOfPoints() == 0)
    return false;
  painter->ApplyPen(this->Pen);
  const bool hasBadPoints = this->BadPoints && this->BadPoints->GetNumberOfTuples() > 0;
  if (!hasBadPoints && this->IsFilled)
    this->DrawStaircase(painter);
  return true;
}

// The staircase is modified at every update, the points it is made of only when they change.
void vtkPlotStepLine::DrawStaircase(vtkContext2D* painter)
{
  const vtkRectd shift = this->GetShiftScale();
  const Talmesh::CachedPicture::Key key{double(this->Points->GetMTime()), double(this->LogY),
                                        shift.GetY(), shift.GetHeight()};
  if (!this->Curve->paint(painter, this, this->StepPoints, nullptr, key))
    painter->DrawPoly(this->StepPoints);
}

bool vtkPlotStepLine::PaintLegend(vtkContext2D* painter, const vtkRectf& rect, int)
{
  Talmesh::paintLegendLine(painter, this->Pen, rect);
  this->Superclass::PaintLegend(painter, rect, 0);
  return true;
}

void vtkPlotStepLine::PrintSelf(ostream& os, vtkIndent indent)
{
  this->Superclass::PrintSelf(os, indent);
}
