#include "app/window/ReadingChoices.h"

#include "app/import/Layouts.h"
#include "app/window/ReadingQuestion.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

constexpr int boxCharacters = 8;

QString nameOfSeparator(char separator)
{
  switch (separator)
  {
  case ',':
    return ReadingChoices::tr("comma ,");
  case ';':
    return ReadingChoices::tr("semicolon ;");
  case '\t':
    return ReadingChoices::tr("tab");
  case ' ':
    return ReadingChoices::tr("blanks");
  case '|':
    return ReadingChoices::tr("bar |");
  case ':':
    return ReadingChoices::tr("colon :");
  default:
    return QString(QLatin1Char(separator));
  }
}

/// What is recognised stands in brackets, like the roles of columns.
QString recognised(const QString& what = {})
{
  return what.isEmpty() ? ReadingChoices::tr("Automatic") : QStringLiteral("(%1)").arg(what);
}

std::string chosenText(const QComboBox* box)
{
  return box->isEnabled() ? box->currentData().toString().toStdString() : std::string();
}

void choose(QComboBox* box, const QVariant& value)
{
  const QSignalBlocker quiet(box);
  box->setCurrentIndex(std::max(box->findData(value), 0));
}

QString textOf(std::optional<char> mark)
{
  return mark ? QString(QLatin1Char(*mark)) : QString();
}

std::optional<char> markOf(const std::string& text)
{
  return text.empty() ? std::nullopt : std::make_optional(text.front());
}

} // namespace

ReadingChoices::ReadingChoices(QWidget* parent)
    : QWidget(parent)
    , grid(new QGridLayout(this))
    , layoutBox(addBox("readingLayout", tr("&Layout"), 0, 0))
    , separatorBox(addBox("readingSeparator", tr("&Separator"), 0, 1))
    , decimalBox(addBox("readingDecimal", tr("&Decimal mark"), 0, 2))
    , unequalBox(addBox("readingUnequal", tr("&Unequal runs"), 1, 0))
    , filesBox(addBox("readingFiles", tr("Each &file is"), 1, 1))
    , sheetLine(new QLineEdit)
{
  grid->setContentsMargins(0, 0, 0, 0);
  sheetLine->setObjectName(QStringLiteral("readingSheet"));
  sheetLine->setPlaceholderText(tr("the first one"));
  sheetLine->setToolTip(tr("Of a file with several tables: the sheet, array, group or member"));
  auto* label = new QLabel(tr("S&heet"));
  label->setBuddy(sheetLine);
  grid->addWidget(label, 1, 4);
  grid->addWidget(sheetLine, 1, 5);
  connect(sheetLine, &QLineEdit::editingFinished, this,
          [this]
          {
            if (sheetLine->isModified())
              emit changed();
            sheetLine->setModified(false);
          });
  fill();
}

QComboBox* ReadingChoices::addBox(const char* name, const QString& text, int row, int column)
{
  auto* box = new QComboBox;
  box->setObjectName(QLatin1String(name));
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(boxCharacters);
  box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  auto* label = new QLabel(text);
  label->setBuddy(box);
  grid->addWidget(label, row, 2 * column);
  grid->addWidget(box, row, 2 * column + 1);
  grid->setColumnStretch(2 * column + 1, 1);
  connect(box, QOverload<int>::of(&QComboBox::activated), this, &ReadingChoices::changed);
  return box;
}

void ReadingChoices::fill()
{
  for (QComboBox* box : {layoutBox, separatorBox, decimalBox, unequalBox, filesBox})
    box->addItem(recognised(), QString());
  for (const Layout& layout : layouts())
    layoutBox->addItem(titleOfLayout(layout.name), QString::fromLatin1(layout.name));
  for (const char separator : {',', ';', '\t', ' ', '|', ':'})
    separatorBox->addItem(nameOfSeparator(separator), textOf(separator));
  decimalBox->addItem(tr("point ."), textOf('.'));
  decimalBox->addItem(tr("comma ,"), textOf(','));
  unequalBox->addItem(tr("have gaps"), QStringLiteral("union"));
  unequalBox->addItem(tr("have lines across gaps"), QStringLiteral("interpolate"));
  unequalBox->setToolTip(tr("What runs of different times have at the times of others"));
  filesBox->addItem(tr("a run"), QStringLiteral("runs"));
  filesBox->addItem(tr("an item"), QStringLiteral("items"));
}

void ReadingChoices::offer(bool isText, bool hasParts, bool several)
{
  separatorBox->setEnabled(isText);
  decimalBox->setEnabled(isText);
  sheetLine->setEnabled(hasParts);
  filesBox->setEnabled(several);
}

void ReadingChoices::take(const ImportRequest& request)
{
  choose(layoutBox, QString::fromStdString(request.layout));
  choose(separatorBox, textOf(request.separator));
  choose(decimalBox, textOf(request.decimalMark));
  choose(unequalBox, !request.unequal                         ? QString()
                     : *request.unequal == UnequalRuns::Union ? QStringLiteral("union")
                                                              : QStringLiteral("interpolate"));
  choose(filesBox, QString::fromStdString(request.files));
  sheetLine->setText(QString::fromStdString(request.sheet));
}

void ReadingChoices::addTo(ImportRequest& request) const
{
  request.layout = chosenText(layoutBox);
  request.separator = markOf(chosenText(separatorBox));
  request.decimalMark = markOf(chosenText(decimalBox));
  const std::string unequal = chosenText(unequalBox);
  request.unequal.reset();
  if (!unequal.empty())
    request.unequal = unequal == "union" ? UnequalRuns::Union : UnequalRuns::Interpolate;
  request.files = chosenText(filesBox);
  request.sheet =
      sheetLine->isEnabled() ? sheetLine->text().trimmed().toStdString() : std::string();
}

void ReadingChoices::tell(const ImportReport& report, char separator)
{
  layoutBox->setItemText(
      0, recognised(report.layout.empty() ? QString() : titleOfLayout(report.layout)));
  separatorBox->setItemText(0, recognised(separator == 0 ? QString() : nameOfSeparator(separator)));
}

} // namespace Talmesh::app
