#include "widgets/PainterText.h"

#include <vtkTextProperty.h>

#include <QColor>
#include <QFontMetricsF>
#include <QPainter>
#include <QTransform>

#include <algorithm>

namespace Talmesh
{
namespace
{
/// Qt rounds sizes and advances of letters to whole units, so that it gets letters so much larger.
constexpr int enlarged = 16;

/// The fonts that VTK draws with on the screen have the letters' widths of the first of each kind.
QStringList familiesLike(int family)
{
  switch (family)
  {
  case VTK_COURIER:
    return {QStringLiteral("Liberation Mono"), QStringLiteral("Courier New"),
            QStringLiteral("DejaVu Sans Mono"), QStringLiteral("monospace")};
  case VTK_TIMES:
    return {QStringLiteral("Liberation Serif"), QStringLiteral("Times New Roman"),
            QStringLiteral("DejaVu Serif"), QStringLiteral("serif")};
  default:
    return {QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("Helvetica"),
            QStringLiteral("DejaVu Sans"), QStringLiteral("sans-serif")};
  }
}

QFont fontOf(vtkTextProperty* property)
{
  QFont font;
  font.setFamilies(familiesLike(property->GetFontFamily()));
  font.setPixelSize(std::max(property->GetFontSize(), 1) * enlarged);
  font.setBold(property->GetBold() != 0);
  font.setItalic(property->GetItalic() != 0);
  font.setHintingPreference(QFont::PreferNoHinting);
  // Letters that are set apart are not joined to one, which could not be searched.
  font.setLetterSpacing(QFont::AbsoluteSpacing, 0.01);
  return font;
}

QColor colorOf(vtkTextProperty* property)
{
  double rgb[3];
  property->GetColor(rgb);
  return QColor::fromRgbF(rgb[0], rgb[1], rgb[2], property->GetOpacity());
}
} // namespace

PainterText::PainterText(const std::string& text, vtkTextProperty* property)
    : lines(QString::fromStdString(text).split(QLatin1Char('\n')))
    , font(fontOf(property))
    , look(property)
{
  const QFontMetricsF metrics(font);
  for (const QString& line : lines)
    width = std::max(width, metrics.horizontalAdvance(line) / enlarged);
  // Lines are as high as these letters, whatever they hold, as they are on the screen.
  const QRectF letters = metrics.tightBoundingRect(QStringLiteral("_/7Agfy"));
  ascent = -letters.top() / enlarged;
  lineHeight = letters.height() / enlarged;
}

double PainterText::startOf(double part) const
{
  switch (look->GetJustification())
  {
  case VTK_TEXT_CENTERED:
    return -0.5 * part;
  case VTK_TEXT_RIGHT:
    return -part;
  default:
    return 0.0;
  }
}

QRectF PainterText::unturned() const
{
  const double spacing = lineHeight * look->GetLineSpacing();
  const double height = lineHeight + (lines.size() - 1) * spacing;
  double bottom = 0.0;
  if (look->GetVerticalJustification() == VTK_TEXT_CENTERED)
    bottom = -0.5 * height;
  else if (look->GetVerticalJustification() == VTK_TEXT_TOP)
    bottom = -height;
  return {startOf(width), bottom, width, height};
}

QRectF PainterText::bounds() const
{
  return QTransform().rotate(look->GetOrientation()).mapRect(unturned());
}

void PainterText::draw(QPainter& painter, const QPointF& anchor) const
{
  const QRectF place = unturned();
  const QFontMetricsF metrics(font);
  painter.save();
  painter.translate(anchor);
  painter.rotate(-look->GetOrientation());
  painter.scale(1.0 / enlarged, 1.0 / enlarged);
  painter.setFont(font);
  painter.setPen(colorOf(look));
  double baseline = ascent - place.bottom();
  for (const QString& line : lines)
  {
    const double start = startOf(metrics.horizontalAdvance(line) / enlarged);
    painter.drawText(QPointF(start, baseline) * enlarged, line);
    baseline += lineHeight * look->GetLineSpacing();
  }
  painter.restore();
}
} // namespace Talmesh
