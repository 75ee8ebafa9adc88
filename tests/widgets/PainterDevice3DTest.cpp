#include "widgets/PainterDevice3D.h"

#include "widgets/PainterDevice.h"

#include <vtkContext2D.h>
#include <vtkNew.h>
#include <vtkPen.h>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace
{

constexpr QSize scene(120, 90);

/// What has three dimensions, on a picture that a plane cuts: only what lies right of 60 is seen.
class PainterDevice3DBehindAPlane : public ::testing::Test
{
protected:
  PainterDevice3DBehindAPlane()
      : picture(scene, QImage::Format_RGB32)
  {
    picture.fill(Qt::white);
    painter.begin(&picture);
    flat->Use(&painter, scene, 1.0);
    context->Begin(flat);
    deep->Use(flat);
    vtkNew<vtkPen> pen;
    pen->SetColor(0, 0, 0, 255);
    pen->SetWidth(4.0f);
    deep->ApplyPen(pen);
    double plane[] = {1.0, 0.0, 0.0, -60.0};
    deep->EnableClippingPlane(0, plane);
  }
  ~PainterDevice3DBehindAPlane() override { context->End(); }

  QColor at(int x, int y) const { return picture.pixelColor(x, scene.height() - 1 - y); }

  QImage picture;
  QPainter painter;
  vtkNew<PainterDevice> flat;
  vtkNew<vtkContext2D> context;
  vtkNew<PainterDevice3D> deep;
};

} // namespace

TEST_F(PainterDevice3DBehindAPlane, PaintsTheRestOfALine)
{
  const float points[] = {10, 40, 0, 110, 40, 0};
  const unsigned char colors[] = {0, 0, 0, 255, 200, 0, 0, 255};
  deep->DrawPoly(points, 2, colors, 4);
  deep->Finish();
  EXPECT_EQ(at(30, 40), QColor(Qt::white));
  EXPECT_EQ(at(56, 40), QColor(Qt::white));
  // The mean colour of the part that is left, from the middle to the end.
  EXPECT_NEAR(at(80, 40).red(), 150, 2);
  EXPECT_EQ(at(80, 40).green(), 0);
  EXPECT_EQ(at(115, 40), QColor(Qt::white));
}

TEST_F(PainterDevice3DBehindAPlane, PaintsTheRestOfATriangle)
{
  const float corners[] = {10, 10, 0, 110, 10, 0, 110, 80, 0};
  const unsigned char colors[] = {0, 0, 200, 255, 0, 0, 200, 255, 0, 0, 200, 255};
  deep->DrawTriangleMesh(corners, 3, colors, 4);
  deep->Finish();
  EXPECT_EQ(at(50, 20), QColor(Qt::white));
  EXPECT_EQ(at(70, 20), QColor(0, 0, 200));
  EXPECT_EQ(at(64, 40), QColor(0, 0, 200)) << "of four corners";
  EXPECT_EQ(at(105, 70), QColor(0, 0, 200));
}

TEST_F(PainterDevice3DBehindAPlane, PaintsPointsAndShapesBesideItWholeOrNotAtAll)
{
  const float points[] = {59, 40, 0, 80, 60, 0};
  deep->DrawPoints(points, 2);
  const float lines[] = {10, 20, 0, 50, 20, 0, 70, 20, 0, 110, 20, 0};
  deep->DrawLines(lines, 4);
  deep->Finish();
  EXPECT_EQ(at(59, 40), QColor(Qt::white));
  EXPECT_EQ(at(80, 60), QColor(Qt::black));
  EXPECT_EQ(at(30, 20), QColor(Qt::white));
  EXPECT_EQ(at(90, 20), QColor(Qt::black));
}
