#include "app/export/TextForPaper.h"

#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <new>

namespace Talmesh::app
{

TextForPaper::TextForPaper(VtkPlotWidget& of, std::optional<int> size)
    : widget(of)
    , dressed(*of.plotContainer())
    , sizeBefore(dressed.getOptions().look.textSize)
    , roomBefore(room())
{
  if (!size || *size == sizeBefore)
    return;
  Room scaled = roomBefore;
  for (int& width : scaled)
    width = (width * *size + sizeBefore / 2) / sizeBefore;
  apply(*size, scaled);
}

TextForPaper::~TextForPaper()
{
  if (dressed.getOptions().look.textSize == sizeBefore)
    return;
  apply(sizeBefore, roomBefore);
  try
  {
    widget.updatePlot(true);
  }
  catch (const std::bad_alloc&)
  {
    // The next painting lays it out, when there is memory again.
    widget.update();
  }
}

TextForPaper::Room TextForPaper::room() const
{
  return {dressed.getLeftMargin(),   dressed.getTopMargin(),        dressed.getRightMargin(),
          dressed.getBottomMargin(), dressed.getHorizontalGutter(), dressed.getVerticalGutter()};
}

void TextForPaper::apply(int textSize, const Room& room)
{
  PlotOptions options = dressed.getOptions();
  options.look.textSize = textSize;
  dressed.setOptions(options);
  dressed.setLeftMargin(room[0]);
  dressed.setTopMargin(room[1]);
  dressed.setRightMargin(room[2]);
  dressed.setBottomMargin(room[3]);
  dressed.setHorizontalGutter(room[4]);
  dressed.setVerticalGutter(room[5]);
}

} // namespace Talmesh::app
