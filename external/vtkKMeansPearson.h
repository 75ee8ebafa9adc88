#ifndef vtkKMeansPearson_h
#define vtkKMeansPearson_h

#include "../export/TalmeshPlotExport.h"

#include <vtkKMeansDistanceFunctor.h>

/// Distance of two observations by their Pearson correlation r, for vtkKMeansStatistics.
///
/// The distance is 1 - r, clamped to [0, 2]: 0 for the same shape, 1 for unrelated ones, 2 for
/// opposite ones, whatever their level and amplitude. Where r does not exist: two constant
/// observations have distance 0, exactly one constant gives 1, and any value that is not finite
/// gives 2. Observations of different lengths have distance 2; empty ones count as constant.
/// Values that differ by no more than 1e-12 of the largest magnitude are constant: rounding noise
/// is no shape.
class TALMESHPLOT_EXPORT vtkKMeansPearson : public vtkKMeansDistanceFunctor
{
public:
  static vtkKMeansPearson* New();
  vtkTypeMacro(vtkKMeansPearson, vtkKMeansDistanceFunctor)
  void PrintSelf(ostream& os, vtkIndent indent) override;

  void operator()(double& distance, vtkVariantArray* center, vtkVariantArray* observation) override;

  /// Updates the running mean that is the next centre. An observation with a value that is not
  /// finite counts as zeros there: this shrinks the centre but keeps its shape, all that the
  /// distance sees, while a NaN would take the centre away from all other members.
  void PairwiseUpdate(vtkTable* clusterCenters, vtkIdType row, vtkVariantArray* data,
                      vtkIdType dataCardinality, vtkIdType totalCardinality) override;

protected:
  vtkKMeansPearson() = default;
  ~vtkKMeansPearson() override = default;

private:
  vtkKMeansPearson(const vtkKMeansPearson&) = delete;
  void operator=(const vtkKMeansPearson&) = delete;
};

#endif
