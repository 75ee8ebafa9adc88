#ifndef PictureDevice_h
#define PictureDevice_h

#include "support/RecordingDevice.h"
#include "vtk/AggregateDevice.h"

#include <vtkImageData.h>

/// A recording device that takes pictures of many shapes and remembers them.
class PictureDevice : public RecordingDevice, public Talmesh::AggregateDevice
{
public:
  struct Picture
  {
    vtkSmartPointer<vtkImageData> image; ///< a copy
    vtkImageData* original;
    vtkMTimeType time = 0;
    std::array<double, 4> place{}; ///< left, bottom, width and height in coordinates of the device

    /// Of the pixel at a position on the device, 0 to 255; 0 outside.
    int opacityAt(double x, double y) const { return valueAt(x, y, 3); }
    int valueAt(double x, double y, int component) const;
  };

  static PictureDevice* New();
  TALMESH_VTK_TYPE(PictureDevice, RecordingDevice);

  void DrawImage(float p[2], float scale, vtkImageData* image) override;
  void DrawImage(const vtkRectf& pos, vtkImageData* image) override;

  vtkIdType mostShapes(Shapes) const override { return shapes; }
  Talmesh::PixelGrid pixelGrid() const override;

  /// Since forget() was called last.
  std::vector<Picture> pictures;
  vtkIdType shapes = 0;
  double pixelRatio = 1.0; ///< pixels of pictures per unit of the device

  void forget();

protected:
  PictureDevice() = default;
  ~PictureDevice() override = default;
};

#endif
