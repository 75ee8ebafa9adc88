#include "app/window/FilterLine.h"

#include "app/document/SelectionController.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace Talmesh::app
{

FilterLine::FilterLine(SelectionController& changed, QWidget* parent)
    : QWidget(parent)
    , selection(changed)
    , line(new QLineEdit)
    , combination(new QComboBox)
    , message(new QLabel)
{
  setObjectName(QStringLiteral("filterLine"));
  auto* label = new QLabel(tr("Runs &where"));
  label->setBuddy(line);
  line->setPlaceholderText(QStringLiteral("max(A) > 150 and k < 50"));
  line->setClearButtonEnabled(true);
  line->setToolTip(
      tr("A condition on single runs. Names with blanks stand in double quotes. Numbers of an item "
         "A: min(A), max(A), mean(A), first(A), final(A), at(A, time), peaks(A), period(A). "
         "Conditions: through(A, t0, t1, v0, v1), inside(A, t0, t1, v0, v1)."));
  combination->addItem(tr("Select only these"), static_cast<int>(RunCombination::Replace));
  combination->addItem(tr("Add to selection"), static_cast<int>(RunCombination::Add));
  combination->addItem(tr("Take from selection"), static_cast<int>(RunCombination::Subtract));
  combination->addItem(tr("Toggle"), static_cast<int>(RunCombination::Toggle));
  auto* button = new QPushButton(tr("Select"));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  auto* row = new QHBoxLayout;
  rows->addLayout(row);
  rows->addWidget(message);
  row->addWidget(label);
  row->addWidget(line, 1);
  row->addWidget(combination);
  row->addWidget(button);
  // A long message takes more lines, not a wider window.
  message->setWordWrap(true);
  message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  message->hide();
  line->installEventFilter(this);
  connect(line, &QLineEdit::returnPressed, this, &FilterLine::apply);
  connect(line, &QLineEdit::textEdited, this, [this] { showFault({}); });
  connect(button, &QPushButton::clicked, this, &FilterLine::apply);
  connect(&selection, &SelectionController::gaveUp, this,
          [this]
          {
            // What stands there does not select what it says.
            if (std::exchange(applied, false))
              line->setModified(true);
          });
}

void FilterLine::show(const QString& words)
{
  line->setText(words);
  // Of long ones the beginning says most.
  line->home(false);
  showFault({});
}

void FilterLine::follow(const QString& words)
{
  // What was typed stays to be changed, and what is being typed in any case.
  const bool own = std::exchange(applied, false);
  if (!own && !line->isModified())
    show(words);
}

void FilterLine::put(const QString& words)
{
  show(words);
  line->setModified(true);
}

/// The key that selects nothing means the line while something stands there that is typed and not
/// yet applied.
bool FilterLine::eventFilter(QObject* watched, QEvent* event)
{
  if (watched == line && event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && line->isModified() &&
      !line->text().isEmpty())
    event->accept();
  return QWidget::eventFilter(watched, event);
}

QString FilterLine::fault() const
{
  return message->text();
}

void FilterLine::apply()
{
  const auto how = static_cast<RunCombination>(combination->currentData().toInt());
  const FilterFault fault = selection.selectWhere(line->text().toStdString(), how);
  applied = fault.text.empty();
  line->setModified(!applied);
  showFault(fault);
}

void FilterLine::showFault(const FilterFault& fault)
{
  message->setText(QString::fromStdString(fault.text));
  message->setVisible(!fault.text.empty());
  if (fault.text.empty())
    return;
  const QByteArray bytes = line->text().toUtf8();
  const int character = QString::fromUtf8(bytes.left(static_cast<int>(fault.position))).size();
  line->setFocus();
  line->setSelection(character, line->text().size() - character);
  if (!line->hasSelectedText())
    line->setCursorPosition(character);
}

} // namespace Talmesh::app
