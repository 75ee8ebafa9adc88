#include "widgets/PainterShapes.h"

#include <vtkImageData.h>
#include <vtkNew.h>

#include <gtest/gtest.h>

#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <new>

TEST(PainterShapes, KeepsPeaksAndTurnsOfALineOfFewerPoints)
{
  QPolygonF line;
  for (int i = 0; i <= 1000; ++i)
    line.append(QPointF(0.1 * i, 20.0 * std::sin(0.01 * i)));
  line[500].setY(60.0);
  // There and back along one direction.
  line.append({{101, 0}, {120, 0}, {110, 0}, {130, 0}, {130, 0}});
  const QPolygonF fewer = Talmesh::simplified(line, 0.02);
  EXPECT_LT(fewer.size(), 200);
  for (const QPointF& point :
       {line.first(), line[500], line.last(), QPointF(120, 0), QPointF(110, 0)})
    EXPECT_TRUE(fewer.contains(point)) << point.x();
  for (const QPointF& point : line)
  {
    double nearest = 1e9;
    for (int i = 0; i + 1 < fewer.size(); ++i)
    {
      const QPointF way = fewer[i + 1] - fewer[i];
      const double length = QPointF::dotProduct(way, way);
      const double along =
          length > 0 ? std::clamp(QPointF::dotProduct(point - fewer[i], way) / length, 0.0, 1.0)
                     : 0.0;
      const QPointF off = point - fewer[i] - along * way;
      nearest = std::min(nearest, std::hypot(off.x(), off.y()));
    }
    EXPECT_LE(nearest, 0.021) << point.x();
  }
}

TEST(PainterShapes, SaysThatAPictureDoesNotFitIntoMemory)
{
  vtkNew<vtkImageData> wide;
  // Rows of more bytes than Qt counts; the pixels are never touched.
  wide->SetDimensions(80000000, 1, 1);
  wide->AllocateScalars(VTK_UNSIGNED_CHAR, 1);
  EXPECT_THROW(Talmesh::imageOf(wide), std::bad_alloc);
}
