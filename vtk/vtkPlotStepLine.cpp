#include "vtk/vtkPlotStepLine.h"

#include "vtk/PlotItemPainting.h"

#include <vtkContext2D.h>
#include <vtkContextMapper2D.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>

vtkStandardNewMacro(vtkPlotStepLine);

namespace
{
struct Staircase
{
  float* next;

  void to(float x, float y)
  {
    *next++ = x;
    *next++ = y;
  }
};

void fillStaircase(const float* points, vtkIdType count, float* steps)
{
  Staircase staircase{steps};
  staircase.to(points[0], 0.0f);
  staircase.to(points[0], points[1]);
  for (vtkIdType i = 1; i < count; ++i)
  {
    staircase.to(points[2 * i], points[2 * i - 1]);
    staircase.to(points[2 * i], points[2 * i + 1]);
  }
  const float lastX = points[2 * count - 2];
  staircase.to(lastX, points[2 * count - 1]);
  staircase.to(lastX, 1.0f);
}
} // namespace

vtkPlotStepLine::~vtkPlotStepLine()
{
  if (this->StepPoints)
    this->StepPoints->Delete();
}

void vtkPlotStepLine::Update()
{
  this->Superclass::Update();
  vtkTable* table = this->Data->GetInput();
  if (this->Visible && table)
    this->UpdateStepPointsCache(table);
}

bool vtkPlotStepLine::UpdateStepPointsCache(vtkTable* table)
{
  if (!this->Points)
    this->UpdateTableCache(table);
  if (!this->StepPoints)
    this->StepPoints = vtkPoints2D::New();
  this->StepPoints->GetData()->SetNumberOfComponents(2);

  // Without readable x and y columns the base has no cache even now.
  const vtkIdType count = this->Points ? this->Points->GetNumberOfPoints() : 0;
  this->StepPoints->SetNumberOfPoints(count < 1 ? 0 : 2 * count + 2);
  auto* points = this->Points ? vtkFloatArray::SafeDownCast(this->Points->GetData()) : nullptr;
  if (count >= 1 && points)
    fillStaircase(points->GetPointer(0), count,
                  static_cast<float*>(this->StepPoints->GetVoidPointer(0)));
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
  if (!hasBadPoints && this->StepPoints && this->StepPoints->GetNumberOfPoints() >= 2)
    painter->DrawPoly(this->StepPoints);
  return true;
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
