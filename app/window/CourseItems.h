#ifndef CourseItems_h
#define CourseItems_h

#include "widgets/PlotSelector.h"

#include <QString>

#include <functional>
#include <set>
#include <utility>

/// Items in the list beside the time courses, by the names of their kinds and their own.
namespace Talmesh::app
{

using ItemNames = std::set<std::pair<QString, QString>>;

std::pair<QString, QString> nameOf(const QTreeWidgetItem& item);

ItemNames selectedNames(const PlotSelector& selector);

void forEachItem(const PlotSelector& selector, const std::function<void(QTreeWidgetItem*)>& visit);

/// Selects these and no others, which is told once.
/// @param itemOf what an item is called in `names`
void select(PlotSelector& selector, const ItemNames& names,
            const std::function<QString(const QString&)>& itemOf);

} // namespace Talmesh::app

#endif
