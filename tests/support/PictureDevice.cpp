#include "support/PictureDevice.h"

#include <vtkMatrix3x3.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkRect.h>

#include <cmath>

vtkStandardNewMacro(PictureDevice);

int PictureDevice::Picture::valueAt(double x, double y, int component) const
{
  int size[3];
  image->GetDimensions(size);
  const int column = static_cast<int>(std::floor((x - place[0]) / place[2] * size[0]));
  const int row = static_cast<int>(std::floor((y - place[1]) / place[3] * size[1]));
  if (column < 0 || row < 0 || column >= size[0] || row >= size[1])
    return 0;
  return static_cast<unsigned char*>(image->GetScalarPointer(column, row, 0))[component];
}

void PictureDevice::DrawImage(float p[2], float scale, vtkImageData* image)
{
  RecordingDevice::DrawImage(p, scale, image);
}

void PictureDevice::DrawImage(const vtkRectf& pos, vtkImageData* image)
{
  RecordingDevice::DrawImage(pos, image);
  Picture picture;
  picture.original = image;
  picture.time = image->GetMTime();
  picture.image = vtkSmartPointer<vtkImageData>::New();
  picture.image->DeepCopy(image);
  vtkNew<vtkMatrix3x3> matrix;
  GetMatrix(matrix);
  picture.place = {matrix->GetElement(0, 2) + pos.GetX() * matrix->GetElement(0, 0),
                   matrix->GetElement(1, 2) + pos.GetY() * matrix->GetElement(1, 1),
                   pos.GetWidth() * matrix->GetElement(0, 0),
                   pos.GetHeight() * matrix->GetElement(1, 1)};
  pictures.push_back(picture);
}

Talmesh::PixelGrid PictureDevice::pixelGrid() const
{
  Talmesh::PixelGrid grid;
  grid.scaleX = grid.scaleY = pixelRatio;
  grid.width = static_cast<int>(Geometry[0] * pixelRatio);
  grid.height = static_cast<int>(Geometry[1] * pixelRatio);
  return grid;
}

void PictureDevice::forget()
{
  clear();
  pictures.clear();
}
