#include "app/window/CourseItems.h"

#include <QSignalBlocker>

namespace Talmesh::app
{

std::pair<QString, QString> nameOf(const QTreeWidgetItem& item)
{
  return {item.parent() ? item.parent()->text(0) : QString(), item.text(0)};
}

ItemNames selectedNames(const PlotSelector& selector)
{
  ItemNames names;
  for (const QTreeWidgetItem* item : selector.selectedItems())
    names.insert(nameOf(*item));
  return names;
}

void forEachItem(const PlotSelector& selector, const std::function<void(QTreeWidgetItem*)>& visit)
{
  for (int i = 0; i < selector.topLevelItemCount(); ++i)
    for (int child = 0; child < selector.topLevelItem(i)->childCount(); ++child)
      visit(selector.topLevelItem(i)->child(child));
}

void select(PlotSelector& selector, const ItemNames& names,
            const std::function<QString(const QString&)>& itemOf)
{
  {
    // One report for all items, below.
    const QSignalBlocker silent(selector);
    forEachItem(selector,
                [&](QTreeWidgetItem* item)
                {
                  const auto [kind, name] = nameOf(*item);
                  item->setSelected(names.count({kind, itemOf(name)}) > 0);
                });
  }
  selector.processNewSelection();
}

} // namespace Talmesh::app
