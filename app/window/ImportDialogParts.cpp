#include "app/window/ImportDialog.h"
#include "app/window/ImportModel.h"
#include "app/window/ReadingChoices.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QStyle>
#include <QTableView>
#include <QVBoxLayout>

/// What the dialog consists of, and where it stands.
namespace Talmesh::app
{

namespace
{

/// The dialog at first, and the list below its table.
constexpr int firstCharacters = 120;
constexpr int firstLines = 38;
constexpr int noteLines = 5;
/// Columns of long texts leave room for others.
constexpr int widestColumn = 240;
constexpr int rowMargin = 4;

} // namespace

QTableView* ImportDialog::makeTable()
{
  auto* view = new QTableView;
  view->setObjectName(QStringLiteral("importTable"));
  view->setAccessibleName(tr("First rows of the table"));
  view->setModel(model);
  view->setTabKeyNavigation(false);
  view->setSelectionMode(QAbstractItemView::SingleSelection);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view->setContextMenuPolicy(Qt::CustomContextMenu);
  view->setWordWrap(false);
  view->horizontalHeader()->setHighlightSections(false);
  view->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() + rowMargin);
  view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view->horizontalHeader()->setMaximumSectionSize(widestColumn);
  view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  return view;
}

QWidget* ImportDialog::makeRoleLine()
{
  auto* line = new QWidget;
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  roleBox->setObjectName(QStringLiteral("columnRole"));
  roleBox->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  for (const ColumnRole role : columnRoles())
    roleBox->addItem(nameOf(role), static_cast<int>(role));
  roleLabel->setBuddy(roleBox);
  roleLabel->setTextFormat(Qt::PlainText);
  row->addWidget(roleLabel);
  row->addWidget(roleBox);
  row->addStretch();
  row->addWidget(count);
  return line;
}

void ImportDialog::layOut()
{
  count->setObjectName(QStringLiteral("importCount"));
  count->setTextFormat(Qt::PlainText);
  count->setTextInteractionFlags(Qt::TextSelectableByMouse);
  QFont bold = count->font();
  bold.setBold(true);
  count->setFont(bold);
  notes->setObjectName(QStringLiteral("importNotes"));
  notes->setAccessibleName(tr("What is understood of the table"));
  notes->setWordWrap(true);
  const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
  notes->setIconSize({icon, icon});
  notes->setFixedHeight(noteLines * fontMetrics().lineSpacing() + 2 * notes->frameWidth());
  commandLine->setObjectName(QStringLiteral("importCommand"));
  commandLine->setReadOnly(true);
  remember->setObjectName(QStringLiteral("importRemember"));
  buttons->setObjectName(QStringLiteral("importButtons"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(choices);
  column->addWidget(table, 1);
  column->addWidget(makeRoleLine());
  column->addWidget(notes);
  auto* command = new QHBoxLayout;
  auto* label = new QLabel(tr("Command li&ne"));
  label->setBuddy(commandLine);
  command->addWidget(label);
  command->addWidget(commandLine);
  column->addLayout(command);
  auto* last = new QHBoxLayout;
  last->addWidget(remember);
  last->addWidget(buttons);
  column->addLayout(last);
}

void ImportDialog::takeFirstSize()
{
  const QSize wished(firstCharacters * fontMetrics().averageCharWidth(),
                     firstLines * fontMetrics().lineSpacing());
  resize(wished.boundedTo(screen()->availableSize() * 9 / 10));
}

} // namespace Talmesh::app
