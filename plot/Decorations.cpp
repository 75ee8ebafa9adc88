#include "plot/Decorations.h"

#include "plot/PlotFeed.h"
#include "plot/PlotState.h"

#include <vtkPlot.h>

namespace Talmesh::plot
{

namespace
{

constexpr std::array<PaletteColor, 12> palette = {{{0.6, 0.9, 0.9, 1.0},
                                                   {0.9, 0.9, 0.6, 1.0},
                                                   {0.6, 0.6, 0.9, 1.0},
                                                   {0.9, 0.6, 0.3, 1.0},
                                                   {0.3, 0.6, 0.9, 1.0},
                                                   {0.9, 0.3, 0.6, 1.0},
                                                   {0.6, 0.9, 0.3, 1.0},
                                                   {0.9, 0.6, 0.9, 1.0},
                                                   {0.9, 0.9, 0.9, 1.0},
                                                   {0.6, 0.3, 0.6, 1.0},
                                                   {0.6, 0.9, 0.6, 1.0},
                                                   {0.9, 0.9, 0.3, 1.0}}};

/// Below 255, so that the lines stand out darker than the palette.
constexpr double decorationBrightness = 200.0;
constexpr unsigned char decorationAlpha = 230;
constexpr float lineWidth = 4.0F;

void addDecoration(PlotState& state, int line, int xColumn)
{
  vtkPlot* plot = state.chartXY->AddPlot(vtkChart::LINE);
  dressPaletteLine(plot, static_cast<std::size_t>(line), decorationBrightness, decorationAlpha);
  feedPlot(plot, state.decorationTable, xColumn, line);
  makeUnselectable(plot);
  state.decorationPlots.emplace_back(plot);
}

} // namespace

const PaletteColor& paletteColor(std::size_t index)
{
  return palette[index % palette.size()];
}

void dressPaletteLine(vtkPlot* plot, std::size_t index, double brightness, unsigned char alpha)
{
  const PaletteColor& color = paletteColor(index);
  const auto component = [&](std::size_t i)
  { return static_cast<unsigned char>(color[i] * brightness); };
  plot->SetColor(component(0), component(1), component(2), alpha);
  plot->SetWidth(lineWidth);
}

void removeDecorations(PlotState& state)
{
  for (const auto& plot : state.decorationPlots)
  {
    if (plot && state.chartXY)
      state.chartXY->RemovePlotInstance(plot);
  }
  state.decorationPlots.clear();
}

void drawDecorations(PlotState& state)
{
  if (!state.showDecorations || !state.decorationTable || !state.chartXY)
    return;
  const int lines = static_cast<int>(state.decorationTable->GetNumberOfColumns()) - 1;
  for (int line = 0; line < lines; ++line)
    addDecoration(state, line, lines);
}

} // namespace Talmesh::plot
