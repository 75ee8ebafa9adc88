#include "widgets/PainterDevice.h"

#include <vtkContext2D.h>
#include <vtkNew.h>
#include <vtkRenderingCoreEnums.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QSize>

#include <vector>

namespace
{

/// What a page says of its pictures when an item draws 1000 markers in so many stretches.
int picturesOfMarkers(int stretches, bool linesBetween)
{
  QBuffer page;
  page.open(QIODevice::WriteOnly);
  QPdfWriter writer(&page);
  QPainter painter(&writer);
  vtkNew<PainterDevice> device;
  vtkNew<vtkContext2D> context;
  device->Use(&painter, QSize(120, 90), 1.0);
  device->SetLimits({10, 10, 100, false});
  context->Begin(device);
  std::vector<float> points;
  for (int i = 0; i < 1000; ++i)
    points.insert(points.end(), {static_cast<float>(10 + i % 100), static_cast<float>(i / 20)});
  const int count = 1000 / stretches;
  for (int stretch = 0; stretch < stretches; ++stretch)
  {
    context->DrawMarkers(VTK_MARKER_SQUARE, false, points.data() + 2 * stretch * count, count);
    if (linesBetween)
      context->DrawLine(10.0f, 10.0f, 100.0f, 80.0f);
  }
  context->End();
  painter.end();
  return page.data().count("/Subtype /Image");
}

TEST(PainterDeviceOnAPage, CountsTheMarkersOfAnItemHoweverItDrawsThem)
{
  const int ofOnePicture = picturesOfMarkers(1, false);
  ASSERT_GT(ofOnePicture, 0);
  EXPECT_EQ(picturesOfMarkers(20, false), ofOnePicture);
  EXPECT_EQ(picturesOfMarkers(20, true), 0) << "of items of 50 markers each";
}

} // namespace
