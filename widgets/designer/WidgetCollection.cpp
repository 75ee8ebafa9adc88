#include "widgets/designer/WidgetCollection.h"

#include "widgets/LinePlotWidget.h"
#include "widgets/PlotSelector.h"
#include "widgets/VtkPlotWidget.h"
#include "widgets/designer/WidgetEntry.h"

namespace Talmesh::designer
{

namespace
{

template <typename Widget>
QWidget* create(QWidget* parent)
{
  return new Widget(parent);
}

} // namespace

WidgetCollection::WidgetCollection(QObject* parent)
    : QObject(parent)
{
  const WidgetDescription widgets[] = {
      {QStringLiteral("VtkPlotWidget"), QStringLiteral("talmeshplot/widgets/VtkPlotWidget.h"),
       tr("Shows one plot"), QSize(400, 300), &create<VtkPlotWidget>},
      {QStringLiteral("PlotSelector"), QStringLiteral("talmeshplot/widgets/PlotSelector.h"),
       tr("Lets the user choose the items to plot"), QSize(160, 300), &create<PlotSelector>},
      {QStringLiteral("LinePlotWidget"), QStringLiteral("talmeshplot/widgets/LinePlotWidget.h"),
       tr("Shows time courses with a list to choose them from"), QSize(640, 400),
       &create<LinePlotWidget>}};
  for (const WidgetDescription& widget : widgets)
    entries.append(new WidgetEntry(widget, this));
}

} // namespace Talmesh::designer
