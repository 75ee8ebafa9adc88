#ifndef PlotSelector_h
#define PlotSelector_h

#include "../export/TalmeshPlotExport.h"
#include "../external/TypedConcentrationName.h"

#include <QTreeWidget>

#include <string>
#include <utility>
#include <vector>

/// The list from which the user picks the items to plot: a tree of one column with one category per
/// kind of item. Whenever the selection changes it reports the selected items.
class TALMESHPLOT_EXPORT PlotSelector : public QTreeWidget
{
  Q_OBJECT

public:
  explicit PlotSelector(QWidget* parent = nullptr);

  /// Rebuilds the tree, which keeps its current item if that is still there, and reports the
  /// selection that results. Names are UTF-8; duplicates are kept.
  void setSelectionOptions(std::vector<std::pair<Talmesh::DataType, std::string>>& options);
  /// Whether each click toggles an item (true) or selects it alone (false). At first the selection
  /// is extended.
  void setMultipleSelections(bool multiple);
  QSize sizeHint() const override;

public slots:
  /// Reports the selected items, in the order of selectedItems(). Categories are never selected;
  /// the kind of an item is read back from its category, whose plural is understood too, and any
  /// text that names no such kind counts as a parameter.
  void processNewSelection();

signals:
  /// @param items lives only while the signal is emitted; receivers copy what they need
  void notifySelectionChanged(std::vector<Talmesh::TypedConcentrationName>* items);

private:
  QTreeWidgetItem* categoryOf(Talmesh::DataType kind);
  void restoreCurrentItem(const QString& category, const QString& name);
};

#endif
