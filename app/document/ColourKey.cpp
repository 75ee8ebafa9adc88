#include "app/document/ColourKey.h"

#include "plot/PlotLook.h"

#include <vtkBrush.h>
#include <vtkChart.h>
#include <vtkContext2D.h>
#include <vtkContextScene.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkScatterPlotMatrix.h>
#include <vtkTextProperty.h>

namespace Talmesh::app
{

namespace
{

/// In parts of the size of the text.
constexpr float besidePageOfText = 1.0F;
constexpr float squareOfText = 0.75F;
constexpr float gapOfText = 0.42F;
constexpr float betweenNamesOfText = 1.33F;
constexpr float lineHeightOfText = 1.33F;

ColourKey* keyOf(vtkAbstractContextItem* item)
{
  for (unsigned int i = 0; i < item->GetNumberOfItems(); ++i)
    if (auto* key = dynamic_cast<ColourKey*>(item->GetItem(i)))
      return key;
  return nullptr;
}

/// That of the chart's own text.
int textSizeOf(vtkAbstractContextItem* item)
{
  if (auto* chart = vtkChart::SafeDownCast(item))
    return chart->GetTitleProperties()->GetFontSize();
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(item);
  return matrix ? matrix->GetTitleProperties()->GetFontSize() : PlotLook::usualTextSize;
}

void applyColour(vtkContext2D* painter, const QColor& colour)
{
  painter->GetPen()->SetLineType(vtkPen::NO_PEN);
  painter->GetBrush()->SetColor(
      static_cast<unsigned char>(colour.red()), static_cast<unsigned char>(colour.green()),
      static_cast<unsigned char>(colour.blue()), static_cast<unsigned char>(colour.alpha()));
}

/// Numbers of axes reach up to there.
const QColor background(255, 255, 255, 230);

} // namespace

vtkStandardNewMacro(ColourKey);

void ColourKey::placeIn(vtkAbstractContextItem* item, const Entries& entries)
{
  if (ColourKey* before = keyOf(item))
    item->RemoveItem(before);
  if (entries.empty())
    return;
  const vtkNew<ColourKey> key;
  key->shown = entries;
  item->AddItem(key);
}

bool ColourKey::Paint(vtkContext2D* painter)
{
  if (!Scene)
    return false;
  vtkNew<vtkTextProperty> text;
  text->SetColor(0.0, 0.0, 0.0);
  text->SetFontFamilyToArial();
  const int textSize = textSizeOf(GetParent());
  text->SetFontSize(textSize);
  text->SetJustificationToLeft();
  text->SetVerticalJustificationToCentered();
  const auto unit = static_cast<float>(textSize);
  const float besidePage = besidePageOfText * unit;
  const float square = squareOfText * unit;
  const float gap = gapOfText * unit;
  const float betweenNames = betweenNamesOfText * unit;
  const float lineHeight = lineHeightOfText * unit;
  const auto width = static_cast<float>(Scene->GetViewWidth());
  float x = besidePage;
  float y = static_cast<float>(Scene->GetViewHeight()) - besidePage;
  for (const auto& [name, colour] : shown)
  {
    painter->ApplyTextProp(text);
    float bounds[4];
    painter->ComputeStringBounds(name.c_str(), bounds);
    const float wide = square + gap + bounds[2];
    if (x > besidePage && x + wide > width - besidePage)
    {
      x = besidePage;
      y -= lineHeight;
    }
    applyColour(painter, background);
    painter->DrawRect(x - gap, y - lineHeight / 2, wide + 2 * gap, lineHeight);
    applyColour(painter, colour);
    painter->DrawRect(x, y - square / 2, square, square);
    painter->DrawString(x + square + gap, y, name.c_str());
    x += wide + betweenNames;
  }
  return true;
}

} // namespace Talmesh::app
