#include "widgets/PlotSelector.h"

#include <QFontMetrics>

namespace
{

struct KindWord
{
  Talmesh::DataType kind;
  const char* singular;
  const char* plural;
};

/// The kinds that can be read back from a category.
constexpr KindWord kindWords[] = {
    {Talmesh::Complex, "Complex", "Complexes"},
    {Talmesh::Molecule, "Molecule", "Molecules"},
    {Talmesh::ComplexWithMolecule, "Complex With Molecule", "Complexes With Molecules"},
    {Talmesh::Pattern, "Pattern", "Patterns"},
};

Talmesh::DataType kindOf(const QString& category)
{
  for (const KindWord& word : kindWords)
  {
    if (category == QLatin1String(word.singular) || category == QLatin1String(word.plural))
      return word.kind;
  }
  return Talmesh::Parameter;
}

constexpr int hintColumns = 15; ///< widths of the letter "m"
constexpr int hintLines = 20;

} // namespace

PlotSelector::PlotSelector(QWidget* parent)
    : QTreeWidget(parent)
{
  setColumnCount(1);
  setHeaderLabel(tr("Select Items to View"));
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  connect(this, SIGNAL(itemSelectionChanged()), this, SLOT(processNewSelection()));
}

void PlotSelector::setSelectionOptions(
    std::vector<std::pair<Talmesh::DataType, std::string>>& options)
{
  const QTreeWidgetItem* current = currentItem();
  const QString name = current ? current->text(0) : QString();
  const QString category = current && current->parent() ? current->parent()->text(0) : QString();

  disconnect(this, SIGNAL(itemSelectionChanged()), this, SLOT(processNewSelection()));
  clear();
  for (const auto& [kind, itemName] : options)
  {
    auto* item = new QTreeWidgetItem(categoryOf(kind));
    item->setText(0, QString::fromStdString(itemName));
    item->setToolTip(0, item->text(0));
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
  }
  sortItems(0, Qt::AscendingOrder);
  restoreCurrentItem(category, name);
  connect(this, SIGNAL(itemSelectionChanged()), this, SLOT(processNewSelection()));
  processNewSelection();
}

QTreeWidgetItem* PlotSelector::categoryOf(Talmesh::DataType kind)
{
  const QString word = QString::fromStdString(Talmesh::dataTypeLabel(kind));
  for (int i = 0; i < topLevelItemCount(); ++i)
  {
    if (topLevelItem(i)->text(0) == word)
      return topLevelItem(i);
  }
  auto* category = new QTreeWidgetItem(this);
  category->setText(0, word);
  category->setFlags(Qt::ItemIsEnabled);
  return category;
}

void PlotSelector::restoreCurrentItem(const QString& category, const QString& name)
{
  QTreeWidgetItem* restored = nullptr;
  for (int i = 0; i < topLevelItemCount(); ++i)
  {
    QTreeWidgetItem* candidate = topLevelItem(i);
    if (candidate->text(0) != category)
      continue;
    for (int child = 0; child < candidate->childCount(); ++child)
    {
      if (candidate->child(child)->text(0) == name)
        restored = candidate->child(child);
    }
  }
  if (restored)
    setCurrentItem(restored);
}

void PlotSelector::setMultipleSelections(bool multiple)
{
  setSelectionMode(multiple ? QAbstractItemView::MultiSelection
                            : QAbstractItemView::SingleSelection);
}

QSize PlotSelector::sizeHint() const
{
  const QFontMetrics metrics = fontMetrics();
  return {hintColumns * metrics.horizontalAdvance(QLatin1Char('m')), hintLines * metrics.height()};
}

void PlotSelector::processNewSelection()
{
  std::vector<Talmesh::TypedConcentrationName> items;
  for (const QTreeWidgetItem* item : selectedItems())
  {
    if (item->parent())
      items.emplace_back(kindOf(item->parent()->text(0)), item->text(0).toStdString());
  }
  Q_EMIT notifySelectionChanged(&items);
}
