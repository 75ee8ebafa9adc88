#include "app/window/KeptSelectionsDock.h"

#include "app/document/AskedParameters.h"
#include "app/document/Document.h"
#include "app/panels/PanelParts.h"
#include "app/window/FileDialogs.h"

#include <QAction>
#include <QColorDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTreeWidget>

#include <algorithm>
#include <utility>

namespace Talmesh::app
{

namespace
{

enum Column
{
  Name,
  Count,
  Words,
  columns
};

/// Only names are the user's to type.
class OnlyNames : public QStyledItemDelegate
{
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override
  {
    return index.column() == Name ? QStyledItemDelegate::createEditor(parent, option, index)
                                  : nullptr;
  }
};

QTreeWidget* makeTree()
{
  auto* tree = new QTreeWidget;
  tree->setObjectName(QStringLiteral("keptSelections"));
  tree->setColumnCount(columns);
  tree->setHeaderLabels({KeptSelectionsDock::tr("Name"), KeptSelectionsDock::tr("Runs"),
                         KeptSelectionsDock::tr("Condition")});
  tree->setRootIsDecorated(false);
  tree->setAlternatingRowColors(true);
  tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree->setItemDelegate(new OnlyNames(tree));
  tree->setContextMenuPolicy(Qt::ActionsContextMenu);
  tree->setTabKeyNavigation(false);
  tree->header()->setSectionResizeMode(Name, QHeaderView::ResizeToContents);
  tree->header()->setSectionResizeMode(Count, QHeaderView::ResizeToContents);
  tree->setToolTip(KeptSelectionsDock::tr("Double-click a selection to select its runs again"));
  return tree;
}

std::vector<double> numbersOf(const TableRuns& runs)
{
  std::vector<double> numbers;
  for (std::size_t run = 0; run < runs.numberOfRuns(); ++run)
    numbers.push_back(runs.runNumber(run));
  return numbers;
}

} // namespace

KeptSelectionsDock::KeptSelectionsDock(Document& shown, QWidget* parent)
    : QDockWidget(tr("Kept selections"), parent)
    , document(shown)
    , tree(makeTree())
    , pages(new QStackedWidget)
    , keepAction(
          addStep(*tree, tr("Keep selection"), "keepSelection", *this, &KeptSelectionsDock::keep))
    , selectAction(addCombinations())
    , renameAction(
          addStep(*tree, tr("Rename"), "renameSelection", *this, &KeptSelectionsDock::rename))
    , colourAction(addStep(*tree, tr("Colour..."), "colourSelection", *this,
                           &KeptSelectionsDock::chooseColour))
    , removeAction(
          addStep(*tree, tr("Remove"), "removeSelection", *this, &KeptSelectionsDock::remove))
    , saveAction(
          addStep(*tree, tr("Save all..."), "saveKeptSelections", *this, &KeptSelectionsDock::save))
    , chartsAction(addSwitch())
{
  setObjectName(QStringLiteral("keptSelectionsDock"));
  keepAction->setShortcut(QKeySequence(tr("Ctrl+K")));
  keepAction->setToolTip(tr("Keep the selected runs under a name (%1)")
                             .arg(keepAction->shortcut().toString(QKeySequence::NativeText)));
  // Whichever column the user has clicked.
  renameAction->setShortcut(QKeySequence(Qt::Key_F2));
  renameAction->setShortcutContext(Qt::WidgetShortcut);
  removeAction->setShortcut(QKeySequence::Delete);
  removeAction->setShortcutContext(Qt::WidgetShortcut);
  saveAction->setToolTip(tr("Write a table (.csv) of the runs, with a column for each selection"));
  setWidget(makePanel());
  connect(tree, &QTreeWidget::itemChanged, this, &KeptSelectionsDock::takeName);
  connect(tree, &QTreeWidget::itemDoubleClicked, this,
          [this] { selectAgain(RunCombination::Replace); });
  connect(tree, &QTreeWidget::currentItemChanged, this, &KeptSelectionsDock::enableSteps);
  connect(&document.kept(), &KeptSelections::changed, this, &KeptSelectionsDock::list);
  connect(&document, &Document::studyChanged, this, &KeptSelectionsDock::list);
  connect(&document.selection(), &SelectionController::changed, this,
          &KeptSelectionsDock::enableSteps);
  list();
}

QAction* KeptSelectionsDock::addCombinations()
{
  auto* menu = new QMenu(tr("Select"), this);
  menu->setObjectName(QStringLiteral("selectKept"));
  const std::pair<QString, RunCombination> ways[] = {
      {tr("Select only these"), RunCombination::Replace},
      {tr("Add to selection"), RunCombination::Add},
      {tr("Take from selection"), RunCombination::Subtract},
      {tr("Toggle"), RunCombination::Toggle}};
  for (const auto& [text, how] : ways)
    menu->addAction(text, this, [this, way = how] { selectAgain(way); });
  tree->addAction(menu->menuAction());
  return menu->menuAction();
}

QAction* KeptSelectionsDock::addSwitch()
{
  auto* action = new QAction(tr("Show in charts"), this);
  action->setObjectName(QStringLiteral("showKept"));
  action->setCheckable(true);
  action->setToolTip(
      tr("Draw runs in the colours of these selections; that of the last one counts"));
  connect(action, &QAction::toggled, this, &KeptSelectionsDock::showInCharts);
  tree->addAction(action);
  return action;
}

void KeptSelectionsDock::showInCharts(bool on)
{
  RunLook look = document.groups().state().look;
  look.keptColours = on;
  document.setLook(look);
}

QWidget* KeptSelectionsDock::makePanel()
{
  pages->addWidget(makeExplanation(
      tr("Nothing is kept. Select some runs and keep them here under a name, to select them again "
         "or to save them.")));
  pages->addWidget(tree);
  // It takes the room that is left and scrolls.
  pages->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  auto* panel = new QWidget;
  auto* row = new QHBoxLayout(panel);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(pages, 1);
  row->addWidget(makeButtonColumn({keepAction, selectAction, renameAction, colourAction,
                                   removeAction, saveAction, chartsAction}));
  return panel;
}

int KeptSelectionsDock::chosen() const
{
  const int place = tree->indexOfTopLevelItem(tree->currentItem());
  return place < static_cast<int>(document.kept().list().size()) ? place : -1;
}

void KeptSelectionsDock::keep()
{
  SelectionController& selection = document.selection();
  const std::string words = selection.words();
  document.kept().keep({}, selection.selectedRuns(), words,
                       askedBeside(words, *document.container(), selection.conditions()));
  show();
  raise();
  tree->setCurrentItem(tree->topLevelItem(tree->topLevelItemCount() - 1));
  rename();
}

void KeptSelectionsDock::rename()
{
  tree->setFocus();
  tree->editItem(tree->currentItem(), Name);
}

void KeptSelectionsDock::takeName(QTreeWidgetItem* item)
{
  const int place = tree->indexOfTopLevelItem(item);
  if (place < 0)
    return;
  // The tree must not be filled anew while it is still at work on its item.
  QMetaObject::invokeMethod(
      this,
      [this, place, name = item->text(Name).toStdString()]
      {
        document.kept().rename(static_cast<std::size_t>(place), name);
        list();
      },
      Qt::QueuedConnection);
}

void KeptSelectionsDock::selectAgain(RunCombination how)
{
  const int place = chosen();
  if (place < 0)
    return;
  const KeptSelection& selection = document.kept().list()[static_cast<std::size_t>(place)];
  // Nobody may have said in words which runs these are.
  const std::string words = selection.words.empty()
                                ? TableRuns(*document.container()).words(selection.runs)
                                : selection.words;
  document.selection().selectRuns(selection.runs, words, how, conditionsOn(selection.asked));
}

void KeptSelectionsDock::chooseColour()
{
  const int place = chosen();
  if (place < 0)
    return;
  const auto index = static_cast<std::size_t>(place);
  auto* dialog = new QColorDialog(QColor::fromRgb(document.kept().list()[index].colour), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  constexpr unsigned opaque = 0xFF000000;
  connect(dialog, &QColorDialog::colorSelected, this,
          [this, index](const QColor& colour)
          { document.kept().recolour(index, colour.rgb() & ~opaque); });
  dialog->open();
}

void KeptSelectionsDock::remove()
{
  if (chosen() >= 0)
    document.kept().remove(static_cast<std::size_t>(chosen()));
}

/// What is kept may change while the user chooses a file; what was asked for is written.
void KeptSelectionsDock::save()
{
  const std::string text = document.kept().commaText(numbersOf(TableRuns(*document.container())));
  askToSaveTable(this, tr("Save kept selections"), text,
                 [this](const QString& path, const QString& error)
                 {
                   if (error.isEmpty())
                     emit said(tr("Wrote %1").arg(path));
                   else
                     emit failed(error);
                 });
}

void KeptSelectionsDock::list()
{
  const QSignalBlocker silent(tree);
  const int before = chosen();
  tree->clear();
  const int size = tree->fontMetrics().ascent();
  for (const KeptSelection& selection : document.kept().list())
  {
    const QString words = QString::fromStdString(selection.words);
    const auto count = std::count(selection.runs.begin(), selection.runs.end(), true);
    auto* item = new QTreeWidgetItem(
        tree, {QString::fromStdString(selection.name), QString::number(count), words});
    item->setIcon(Name, swatch(QColor::fromRgb(selection.colour), size));
    item->setTextAlignment(Count, static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
    item->setToolTip(Words, words);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
  }
  const int last = tree->topLevelItemCount() - 1;
  if (before >= 0 && last >= 0)
    tree->setCurrentItem(tree->topLevelItem(std::min(before, last)));
  pages->setCurrentIndex(last >= 0 ? 1 : 0);
  enableSteps();
}

void KeptSelectionsDock::enableSteps()
{
  const bool usable = document.container() && !document.study().chart;
  const std::vector<bool> selected =
      usable ? document.selection().selectedRuns() : std::vector<bool>();
  keepAction->setEnabled(document.kept().hasRoom() &&
                         std::find(selected.begin(), selected.end(), true) != selected.end());
  for (QAction* step : {selectAction, renameAction, colourAction, removeAction})
    step->setEnabled(usable && chosen() >= 0);
  saveAction->setEnabled(usable && !document.kept().list().empty());
  const QSignalBlocker silent(chartsAction);
  chartsAction->setChecked(document.groups().state().look.keptColours);
  chartsAction->setEnabled(saveAction->isEnabled());
}

} // namespace Talmesh::app
