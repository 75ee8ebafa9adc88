#include "support/PlotFixture.h"
#include "support/RecordingDevice.h"
#include "vtk/vtkSelectableScatterPlotMatrix.h"

#include <vtkAbstractContextItem.h>
#include <vtkContext2D.h>
#include <vtkObjectFactory.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

class UnpaintableItem : public vtkAbstractContextItem
{
public:
  static UnpaintableItem* New();
  TALMESH_VTK_TYPE(UnpaintableItem, vtkAbstractContextItem);

  bool Paint(vtkContext2D*) override { throw std::runtime_error("no memory"); }
};

vtkStandardNewMacro(UnpaintableItem);

TEST(MatrixPainting, LeavesTheMatrixInItsSceneWhenItFails)
{
  const PlotScene scene;
  vtkNew<vtkSelectableScatterPlotMatrix> matrix;
  scene.scene()->AddItem(matrix);
  matrix->SetInput(plainTable());
  RecordingPainter recording;
  recording.device->setSize(640, 480);
  EXPECT_TRUE(matrix->Paint(recording.painter));
  matrix->AddItem(vtkNew<UnpaintableItem>());
  EXPECT_THROW(matrix->Paint(recording.painter), std::runtime_error);
  EXPECT_EQ(matrix->GetScene(), scene.scene());
}

} // namespace
