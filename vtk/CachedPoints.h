#ifndef CachedPoints_h
#define CachedPoints_h

#include "../export/TalmeshPlotExport.h"
#include "../vtk/VtkCompat.h"

#include <vtkPlotPoints.h>

#include <memory>
#include <vector>

namespace Talmesh
{
class PictureStore;

/// A vtkPlotPoints, by class name too, that reads its table again only if something has changed
/// that its points are made of. On logarithmic axes its points lie where the chart's axes have
/// their values, whatever shift or magnitude (vtk/CachedLogarithms.h).
class TALMESHPLOT_EXPORT CachedPoints : public vtkPlotPoints
{
public:
  /// Updates the cached points and their colours, without colours if their column is missing.
  /// Does nothing when the item is invisible or has no input table.
  void Update() override;

  /// As VTK's, with the location right in a chart that scales its points.
  vtkIdType GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                            vtkVector2f* location, vtkIdType* segmentId) override;
  using vtkPlotPoints::GetNearestPoint;

#if TALMESH_VTK_CHARTS_READ_COLUMNS
  bool UpdateCache() override;
#endif

  ///@{
  /// Of the points, which are looked through only once they have changed.
  void GetBounds(double bounds[4]) override;
  void GetUnscaledInputBounds(double bounds[4]) override;
  ///@}

  ///@{
  /// Where points and pictures are looked for that an earlier item of the same data has made, and
  /// where this one's go. Null, which is the default, for nowhere.
  void SetPictureStore(std::shared_ptr<Talmesh::PictureStore> store);
  const std::shared_ptr<Talmesh::PictureStore>& GetPictureStore() const;
  ///@}

  ///@{
  /// Selects the points that VTK selects, in its order, without sorting them first.
  /// @return whether there are any
  bool SelectPoints(const vtkVector2f& min, const vtkVector2f& max) override;
  bool SelectPointsInPolygon(const vtkContextPolygon& polygon) override;
  ///@}

protected:
  CachedPoints();
  ~CachedPoints() override;

  /// What tells the points of the item from others by their content; empty where nobody shares
  /// them.
  const std::vector<double>& SharedKey() const;

  /// Reads the points from `table` whether or not they are current.
  void ReadPoints(vtkTable* table);

private:
  CachedPoints(const CachedPoints&) = delete;
  void operator=(const CachedPoints&) = delete;

  struct Sharing;

  std::vector<double> InputsOfPoints() const;
  /// The same with those of the colours.
  std::vector<double> Inputs() const;
  std::vector<double> ContentOfInputs();
  void Refresh();
  void KnowBounds();
  bool TakeShared(const std::vector<double>& key);
  void Share(const std::vector<double>& key);
  void LetGoOfShared();
  bool IsCurrent() const;
  vtkIdTypeArray* OwnSelection();
  void CacheLogarithms();

  std::vector<double> CachedInputs; ///< what the cached points were made of
  std::unique_ptr<Sharing> Shared;
};
} // namespace Talmesh

#endif
