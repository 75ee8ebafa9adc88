#include "widgets/designer/WidgetEntry.h"

#include <QVTKOpenGLNativeWidget.h>

#include <QIcon>

namespace Talmesh::designer
{

WidgetEntry::WidgetEntry(WidgetDescription description, QObject* parent)
    : QObject(parent)
    , widget(std::move(description))
{
}

QString WidgetEntry::domXml() const
{
  QString objectName = widget.className;
  objectName[0] = objectName[0].toLower();
  return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                        "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                        "<width>%3</width><height>%4</height></rect></property>"
                        "</widget></ui>")
      .arg(widget.className, objectName)
      .arg(widget.size.width())
      .arg(widget.size.height());
}

QWidget* WidgetEntry::createWidget(QWidget* parent)
{
  QWidget* made = widget.create(parent);
  // Designer has not chosen the surface that VTK draws on, as a program would.
  QList<QVTKOpenGLNativeWidget*> charts = made->findChildren<QVTKOpenGLNativeWidget*>();
  if (auto* chart = qobject_cast<QVTKOpenGLNativeWidget*>(made))
    charts.append(chart);
  for (QVTKOpenGLNativeWidget* chart : charts)
    chart->setFormat(QVTKOpenGLNativeWidget::defaultFormat());
  return made;
}

} // namespace Talmesh::designer
