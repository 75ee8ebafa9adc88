#ifndef ParallelLines_h
#define ParallelLines_h

#include "vtk/CachedPicture.h"

#include <vtkPlotParallelCoordinates.h>

#include <memory>

namespace Talmesh
{
class AggregateTarget;
class RowLines;

/// A vtkPlotParallelCoordinates, by class name too, whose lines go as pictures to devices that take
/// them of so many (vtk/AggregateDevice.h). Rows that follow each other with the same values, as
/// those of a run over its parameters do, are then one line that counts as many times. Lines that
/// such a device wants as shapes are drawn once each, with the opacity of all like ones.
class ParallelLines : public vtkPlotParallelCoordinates
{
public:
  static ParallelLines* New();

  bool Paint(vtkContext2D* painter) override;

  /// As vtkPlotLineSet::SetPictureStore.
  void SetPictureStore(std::shared_ptr<PictureStore> store);

protected:
  ParallelLines() = default;
  ~ParallelLines() override = default;

private:
  ParallelLines(const ParallelLines&) = delete;
  void operator=(const ParallelLines&) = delete;

  struct Layer;

  bool HasLines();
  vtkUnsignedCharArray* LineColors();
  CachedPicture::Pixels Count(RowLines& rows, bool coloured, vtkPen* pen,
                              const AggregateTarget& target);
  /// @param merged whether like lines are one wherever they stand
  RowLines Gathered(const Layer& layer, bool merged);
  void PaintLayer(vtkContext2D* painter, const AggregateTarget& target, CachedPicture& layer,
                  const CachedPicture::Key& key, const Layer& content);
  void PaintAll(vtkContext2D* painter, const AggregateTarget& target);
  void PaintSelected(vtkContext2D* painter, const AggregateTarget& target);

  std::shared_ptr<PictureStore> Store;
  CachedPicture Lines;
  CachedPicture SelectedLines;
};
} // namespace Talmesh

#endif
