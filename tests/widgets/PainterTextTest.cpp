#include "widgets/PainterText.h"

#include "widgets/PainterDevice.h"

#include <vtkNew.h>
#include <vtkStdString.h>
#include <vtkTextProperty.h>
#include <vtkTextRenderer.h>

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <string>

using Talmesh::PainterText;

namespace
{

constexpr double scale = 4.0;

/// The rectangle around the ink of a text whose anchor is 0, 0; y grows upwards.
QRectF inkOf(const PainterText& text)
{
  constexpr int half = 800;
  QImage picture(2 * half, 2 * half, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(half, half);
  painter.scale(scale, scale);
  text.draw(painter, {0.0, 0.0});
  painter.end();
  QRect found;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (qGray(picture.pixel(x, y)) < 200)
        found |= QRect(x, y, 1, 1);
  return {(found.x() - half) / scale, (half - found.y() - found.height()) / scale,
          found.width() / scale, found.height() / scale};
}

} // namespace

TEST(PainterText, FillsThePlaceThatItAsksFor)
{
  // The letters reach from the lowest to the highest that a line holds.
  for (const char* text : {"fgy_/7|", "|fgy\n_/7Agfy longer|"})
    for (const int across : {VTK_TEXT_LEFT, VTK_TEXT_CENTERED, VTK_TEXT_RIGHT})
      for (const int up : {VTK_TEXT_BOTTOM, VTK_TEXT_CENTERED, VTK_TEXT_TOP})
        for (const double turned : {0.0, 90.0, 270.0})
        {
          vtkNew<vtkTextProperty> look;
          look->SetColor(0.0, 0.0, 0.0);
          look->SetFontSize(20);
          look->SetJustification(across);
          look->SetVerticalJustification(up);
          look->SetOrientation(turned);
          const PainterText laidOut(text, look);
          const QRectF place = laidOut.bounds();
          const QRectF ink = inkOf(laidOut);
          // Letters have up to a tenth of their height of white beside them.
          EXPECT_TRUE(place.adjusted(-2.0, -2.0, 2.0, 2.0).contains(ink))
              << text << ' ' << across << ' ' << up << ' ' << turned;
          EXPECT_TRUE(ink.adjusted(-3.0, -3.0, 3.0, 3.0).contains(place))
              << text << ' ' << across << ' ' << up << ' ' << turned;
        }
}

TEST(PainterText, TakesThePlaceThatItTakesOnTheScreen)
{
  for (const int size : {10, 12, 14, 18})
    for (const char* text : {"0.5", "1.5e+06", "Time [s]", "two\nlines"})
      for (const double turned : {0.0, 90.0})
      {
        vtkNew<vtkTextProperty> look;
        look->SetFontFamilyToArial();
        look->SetFontSize(size);
        look->SetOrientation(turned);
        look->SetVerticalJustificationToTop();
        int screen[4];
        ASSERT_TRUE(
            vtkTextRenderer::GetInstance()->GetBoundingBox(look, vtkStdString(text), screen, 72));
        const QRectF place = PainterText(text, look).bounds();
        // The screen's letters are as wide as whole pixels, of which there is one for each.
        const double tolerance = 2.0 + 0.1 * std::max(place.width(), place.height());
        EXPECT_NEAR(place.left(), screen[0], tolerance) << text << size;
        EXPECT_NEAR(place.right(), screen[1], tolerance) << text << size;
        EXPECT_NEAR(place.top(), screen[2], tolerance) << text << size;
        EXPECT_NEAR(place.bottom(), screen[3], tolerance) << text << size;
      }
}

TEST(PainterText, GrowsWithItsSizeAndHasTheSizeOfWhatIsTransformed)
{
  vtkNew<PainterDevice> device;
  device->GetTextProp()->SetFontSize(12);
  float small[4];
  device->ComputeStringBounds(vtkStdString("Molecule"), small);
  EXPECT_EQ(small[0], 0.0f);
  EXPECT_EQ(small[1], 0.0f);
  device->GetTextProp()->SetFontSize(24);
  float large[4];
  device->ComputeStringBounds(vtkStdString("Molecule"), large);
  EXPECT_NEAR(large[2], 2.0 * small[2], 0.1);
  EXPECT_NEAR(large[3], 2.0 * small[3], 0.1);
}
