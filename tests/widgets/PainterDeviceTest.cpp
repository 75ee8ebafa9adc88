#include "widgets/PainterDevice.h"

#include <vtkBrush.h>
#include <vtkContext2D.h>
#include <vtkImageData.h>
#include <vtkNew.h>
#include <vtkPen.h>
#include <vtkRect.h>
#include <vtkRenderingCoreEnums.h>
#include <vtkStdString.h>
#include <vtkTextProperty.h>
#include <vtkTransform2D.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace
{

constexpr QSize scene(120, 90);

/// A picture of a scene at a resolution, painted by a context on the device.
class PainterDeviceOnAPicture : public ::testing::Test
{
protected:
  PainterDeviceOnAPicture() { start(1.0); }

  ~PainterDeviceOnAPicture() override { context->End(); }

  void start(double scale)
  {
    if (painter.isActive())
      painter.end();
    resolution = scale;
    picture = QImage(scene * scale, QImage::Format_RGB32);
    picture.fill(Qt::white);
    painter.begin(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    device->Use(&painter, scene, scale);
    context->Begin(device);
    context->GetPen()->SetColor(0, 0, 0, 255);
    context->GetPen()->SetWidth(1.0f);
    context->GetBrush()->SetColor(0, 0, 0, 255);
  }

  void clip(int x, int y, int width, int height)
  {
    int rectangle[] = {x, y, width, height};
    device->SetClipping(rectangle);
    device->EnableClipping(true);
  }

  /// The grey of the pixel whose centre has these coordinates in the scene, 0 for black.
  int greyAt(double x, double y) const
  {
    return qGray(picture.pixel(
        static_cast<int>(std::lround((x - 0.5) * resolution - 0.5)),
        static_cast<int>(std::lround(picture.height() - (y - 0.5) * resolution - 0.5))));
  }

  /// How many units of the scene the ink would cover in black.
  double area() const
  {
    double ink = 0.0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        ink += 1.0 - qGray(picture.pixel(x, y)) / 255.0;
    return ink / (resolution * resolution);
  }

  /// The rectangle around all ink, in coordinates of the scene.
  QRectF inked() const
  {
    QRect found;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        if (qGray(picture.pixel(x, y)) < 128)
          found |= QRect(x, y, 1, 1);
    return {found.x() / resolution + 0.5,
            (picture.height() - found.y() - found.height()) / resolution + 0.5,
            found.width() / resolution, found.height() / resolution};
  }

  double resolution = 1.0;
  QImage picture;
  QPainter painter;
  vtkNew<PainterDevice> device;
  vtkNew<vtkContext2D> context;
};

} // namespace

TEST_F(PainterDeviceOnAPicture, DrawsOnThePixelsOfTheScreen)
{
  context->DrawLine(20, 10, 40, 10);
  EXPECT_EQ(greyAt(30, 10), 0);
  EXPECT_EQ(greyAt(30, 11), 255);
  EXPECT_EQ(greyAt(30, 9), 255);
}

TEST_F(PainterDeviceOnAPicture, EnlargesPlacesAndWidthsAlike)
{
  for (const double scale : {1.0, 2.0, 300.0 / 72.0})
  {
    start(scale);
    context->GetPen()->SetWidth(3.0f);
    context->DrawLine(20, 20, 80, 20);
    EXPECT_NEAR(area(), 180.0, 2.0) << scale;
    EXPECT_NEAR(inked().center().y(), 20.0, 0.6) << scale;
  }
}

TEST_F(PainterDeviceOnAPicture, FollowsMatrices)
{
  vtkNew<vtkTransform2D> half;
  half->Translate(10.0, 20.0);
  half->Scale(2.0, 0.5);
  context->PushMatrix();
  context->AppendTransform(half);
  context->DrawRect(5, 20, 20, 40);
  context->PopMatrix();
  EXPECT_NEAR(inked().left(), 20.0, 1.1);
  EXPECT_NEAR(inked().right(), 60.0, 1.1);
  EXPECT_NEAR(inked().top(), 30.0, 1.1);
  EXPECT_NEAR(inked().bottom(), 50.0, 1.1);
}

TEST_F(PainterDeviceOnAPicture, LeavesNothingOutsideOfTheClippedPart)
{
  for (const double scale : {1.0, 2.5})
  {
    start(scale);
    clip(20, 10, 60, 40);
    context->GetPen()->SetWidth(9.0f);
    float far[] = {-3.0e7f, -3.0e7f, 50, 30, 3.0e7f, 2.0e7f, 60, 12, 60, -400};
    context->DrawPoly(far, 5);
    context->DrawRect(70, 40, 500, 1.0e6f);
    float marker[] = {20, 30};
    context->GetPen()->SetWidth(14.0f);
    context->DrawMarkers(VTK_MARKER_SQUARE, false, marker, 1);
    EXPECT_GT(area(), 500.0) << scale;
    EXPECT_EQ(inked().intersected(QRectF(20.5, 10.5, 60, 40)), inked()) << scale;
    // Lines are as wide at the edge as elsewhere, and a marker outside shows its part inside.
    EXPECT_EQ(greyAt(22, 30), 0) << scale;
    device->EnableClipping(false);
    context->DrawRect(1, 1, 5, 5);
    EXPECT_EQ(greyAt(3, 3), 0) << scale;
  }
}

TEST_F(PainterDeviceOnAPicture, BreaksLinesWhereThereIsNoNumber)
{
  const float nan = std::numeric_limits<float>::quiet_NaN();
  float points[] = {10, 10, 30, 10, nan, 10, 50, 10, 70, 10};
  context->DrawPoly(points, 5);
  EXPECT_EQ(greyAt(20, 10), 0);
  EXPECT_EQ(greyAt(40, 10), 255);
  EXPECT_EQ(greyAt(60, 10), 0);
}

TEST_F(PainterDeviceOnAPicture, WritesNoTextThatIsNotOnThePage)
{
  // A page would be void with such places.
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QPdfWriter writer(&bytes);
  writer.setPageSize(QPageSize(QSizeF(scene), QPageSize::Point, {}, QPageSize::ExactMatch));
  painter.end();
  painter.begin(&writer);
  const auto write = [this](float x, float y)
  {
    float place[] = {x, y};
    device->DrawString(place, vtkStdString("label"));
  };
  const float nan = std::numeric_limits<float>::quiet_NaN();
  write(nan, 10);
  write(10, nan);
  write(3.0e11f, 10);
  write(10, -3.0e11f);
  painter.end();
  EXPECT_FALSE(bytes.data().contains("/Type /Font")) << "no text, no font";
  painter.begin(&picture);
  write(10, 10);
  EXPECT_GT(area(), 10.0);
}

TEST_F(PainterDeviceOnAPicture, KeepsTheOpacityWhereALineBends)
{
  context->GetPen()->SetColor(0, 0, 0, 128);
  context->GetPen()->SetWidth(10.0f);
  float corner[] = {20, 20, 60, 20, 60, 60};
  context->DrawPoly(corner, 3);
  EXPECT_NEAR(greyAt(40, 20), 127, 2);
  EXPECT_NEAR(greyAt(58, 22), 127, 2);
}

TEST_F(PainterDeviceOnAPicture, FillsAStripEvenly)
{
  context->GetBrush()->SetColor(0, 0, 0, 100);
  float strip[] = {10.3f, 10, 10.3f, 40, 30.6f, 12, 30.6f, 44, 55.2f, 10, 55.2f, 40};
  context->DrawQuadStrip(strip, 6);
  for (int x = 13; x < 54; ++x)
    EXPECT_EQ(greyAt(x, 25), greyAt(13, 25)) << x;
  EXPECT_NEAR(greyAt(13, 25), 155, 1);
}

TEST_F(PainterDeviceOnAPicture, DrawsMarkersOfTheirShapes)
{
  struct Shape
  {
    int marker;
    bool highlight;
    double covered;
  };
  // Of size 20: two strokes of 20 by 1 share a square of 1; those of a cross are
  // longer and thinner by the root of 2.
  for (const Shape& shape :
       {Shape{VTK_MARKER_SQUARE, false, 400.0}, Shape{VTK_MARKER_CIRCLE, false, 3.14159265 * 100.0},
        Shape{VTK_MARKER_DIAMOND, false, 200.0}, Shape{VTK_MARKER_PLUS, false, 39.0},
        Shape{VTK_MARKER_PLUS, true, 3 * 40.0 - 9.0},
        Shape{VTK_MARKER_CROSS, false, 2 * 20.0 - 0.5}})
  {
    start(4.0);
    context->GetPen()->SetWidth(20.0f);
    float centre[] = {60, 45};
    context->DrawMarkers(shape.marker, shape.highlight, centre, 1);
    EXPECT_NEAR(area(), shape.covered, 0.02 * shape.covered + 1.0) << shape.marker;
    EXPECT_NEAR(inked().center().x(), 60.0, 0.3) << shape.marker;
    EXPECT_NEAR(inked().center().y(), 45.0, 0.3) << shape.marker;
  }
}

TEST_F(PainterDeviceOnAPicture, GivesPointsAndLinesTheirOwnColours)
{
  float points[] = {20, 20, 60, 20};
  unsigned char colors[] = {255, 0, 0, 255, 0, 0, 255, 255};
  context->GetPen()->SetWidth(8.0f);
  context->DrawMarkers(VTK_MARKER_SQUARE, false, points, 2, colors, 4);
  EXPECT_EQ(picture.pixelColor(19, 70), QColor(255, 0, 0));
  EXPECT_EQ(picture.pixelColor(59, 70), QColor(0, 0, 255));
  float line[] = {20, 60, 40, 60, 60, 60};
  unsigned char along[] = {255, 0, 0, 255, 0, 255, 0, 255};
  device->DrawPoly(line, 2, along, 3);
  EXPECT_GT(picture.pixelColor(30, 30).red(), 100);
}

TEST_F(PainterDeviceOnAPicture, PutsAggregatesOnTheirPixels)
{
  for (const double scale : {1.0, 300.0 / 72.0})
  {
    start(scale);
    const Talmesh::PixelGrid grid = device->pixelGrid();
    ASSERT_GE(grid.width + 1, picture.width()) << scale;
    vtkNew<vtkImageData> image;
    image->SetDimensions(7, 5, 1);
    image->AllocateScalars(VTK_UNSIGNED_CHAR, 4);
    auto* bytes = static_cast<unsigned char*>(image->GetScalarPointer());
    for (int i = 0; i < 35; ++i)
    {
      const unsigned char pixel[] = {0, 0, 0, static_cast<unsigned char>(i % 2 ? 255 : 0)};
      std::copy_n(pixel, 4, bytes + 4 * i);
    }
    vtkNew<vtkTransform2D> pixels;
    pixels->Translate(grid.originX, grid.originY);
    pixels->Scale(1.0 / grid.scaleX, 1.0 / grid.scaleY);
    context->PushMatrix();
    context->SetTransform(pixels);
    context->DrawImage(vtkRectf(11, 13, 7, 5), image);
    context->PopMatrix();
    for (int row = 0; row < 5; ++row)
      for (int i = 0; i < 7; ++i)
        EXPECT_EQ(qGray(picture.pixel(11 + i, picture.height() - 1 - 13 - row)),
                  (row * 7 + i) % 2 ? 0 : 255)
            << scale << ' ' << row << ' ' << i;
  }
}
