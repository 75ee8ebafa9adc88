#ifndef PainterText_h
#define PainterText_h

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QStringList>

#include <string>

class QPainter;
class vtkTextProperty;

namespace Talmesh
{
/// Text in the lines, the font and the place beside its anchor that a text property gives it.
/// Lengths are those of the page; a font of size 12 is 12 of them high. What measures and what
/// draws is the same font without hints, so that text fills the place that was asked for it at any
/// resolution.
class PainterText
{
public:
  PainterText(const std::string& text, vtkTextProperty* property);

  /// The rectangle around the turned text, seen from its anchor; y grows upwards.
  QRectF bounds() const;
  /// @param anchor on a page whose y grows downwards
  void draw(QPainter& painter, const QPointF& anchor) const;

private:
  QRectF unturned() const;
  double startOf(double width) const;

  QStringList lines;
  QFont font;
  vtkTextProperty* look;
  double width = 0.0;
  double ascent = 0.0;
  double lineHeight = 0.0;
};
} // namespace Talmesh

#endif
