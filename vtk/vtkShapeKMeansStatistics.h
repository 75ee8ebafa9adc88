#ifndef vtkShapeKMeansStatistics_h
#define vtkShapeKMeansStatistics_h

#include "vtk/VtkCompat.h"

#include <vtkKMeansStatistics.h>

/// k-means of long observations by their shape: what vtkKMeansStatistics does with the distance of
/// vtkKMeansPearson, in a time that grows linearly with the number of values.
///
/// Ports, requests, model and assessment are those of the base. An observation is a row of the
/// requested columns; a column of several components is as many coordinates, so that a thousand
/// positions can be one column. A request for one vtkDoubleArray is read in place.
///
/// Differing from the base, the first centres are the first observations that differ in shape, no
/// more than there are, and nothing is written about clusters that lost all members: their centres
/// are 0, as the base leaves them. Equal input gives equal clusters. Progress is told before each
/// iteration, and whoever then has execution aborted gets the model found so far.
///
/// Another distance functor, centres given on the port LEARN_PARAMETERS, requested columns that are
/// not numeric and a request that names no column are left to the base, which knows only columns of
/// one component.
class vtkShapeKMeansStatistics : public vtkKMeansStatistics
{
public:
  static vtkShapeKMeansStatistics* New();
  TALMESH_VTK_TYPE(vtkShapeKMeansStatistics, vtkKMeansStatistics);

protected:
  vtkShapeKMeansStatistics() = default;
  ~vtkShapeKMeansStatistics() override = default;

  void Learn(vtkTable* inData, vtkTable* inParameters, vtkMultiBlockDataSet* outMeta) override;
  void Assess(vtkTable* inData, vtkMultiBlockDataSet* inMeta, vtkTable* outData) override;

private:
  vtkShapeKMeansStatistics(const vtkShapeKMeansStatistics&) = delete;
  void operator=(const vtkShapeKMeansStatistics&) = delete;
};

#endif
