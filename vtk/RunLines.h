#ifndef RunLines_h
#define RunLines_h

#include "vtk/CachedPicture.h"
#include "vtk/RunTracer.h"

#include <vtkType.h>

#include <optional>
#include <vector>

class vtkContext2D;
class vtkIdTypeArray;
class vtkPen;
class vtkPoints2D;

namespace Talmesh
{
class AggregateTarget;

/// The points of a line set as lines of its runs, for as long as neither changes.
class RunLines
{
public:
  /// @param badPoints null for none
  /// @param stride points of a run, at least 1
  /// @param breakAtGaps see vtkPlotLineSet::SetBreakAtGaps
  RunLines(vtkPoints2D* points, vtkIdTypeArray* badPoints, vtkIdType stride, bool breakAtGaps);

  vtkIdType runCount() const;
  /// The lines that stand for all runs.
  std::vector<CountedRun> all() const;

  /// Draws lines one by one, without regard to their weight.
  void draw(vtkContext2D* painter, const std::vector<CountedRun>& lines);

  /// Lines as a picture.
  CachedPicture::Pixels count(const std::vector<CountedRun>& lines, vtkPen* pen,
                              const AggregateTarget& target);

  /// What tells these points and how lines lead through them from others.
  PictureStore::Key content() const;

private:
  float* coordinates() const;
  const unsigned char* gaps();
  void drawPieces(vtkContext2D* painter, const std::vector<CountedRun>& lines);
  void drawLine(vtkContext2D* painter, const CountedRun& line) const;

  vtkPoints2D* points;
  vtkIdTypeArray* badPoints;
  vtkIdType stride;
  bool breakAtGaps;
  std::optional<std::vector<unsigned char>> mask; ///< of bad points, once it was asked for
};
} // namespace Talmesh

#endif
