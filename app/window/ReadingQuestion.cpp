#include "app/window/ReadingQuestion.h"

#include "app/import/LayoutChoice.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QMessageBox>
#include <QPushButton>

#include <utility>
#include <vector>

namespace Talmesh::app
{

namespace
{

class ReadingWords
{
  Q_DECLARE_TR_FUNCTIONS(ReadingQuestion)
};

} // namespace

QString titleOfLayout(const std::string& layout)
{
  if (layout == "stacked")
    return ReadingWords::tr("Runs one below the other");
  if (layout == "tidy")
    return ReadingWords::tr("A value per row");
  if (layout == "wide")
    return ReadingWords::tr("A column per run");
  if (layout == "rows")
    return ReadingWords::tr("A row per run");
  if (layout == "table")
    return ReadingWords::tr("A table without runs");
  return layout == "petab" ? QStringLiteral("PEtab") : QString::fromStdString(layout);
}

QString titleOf(const ImportCandidate& candidate)
{
  if (candidate.option == "--decimal ,")
    return ReadingWords::tr("Decimal commas");
  if (candidate.option == "--files runs")
    return ReadingWords::tr("A file per run");
  if (candidate.option == "--files items")
    return ReadingWords::tr("A file per item");
  if (candidate.option == "--join order")
    return ReadingWords::tr("In the order of rows");
  return candidate.layout.empty() ? QString::fromStdString(candidate.option)
                                  : titleOfLayout(candidate.layout);
}

QMessageBox* askForReading(QWidget* window, const QString& name, const ImportReport& report,
                           const ImportRequest& request,
                           std::function<void(const ImportRequest&)> chosen,
                           std::function<void()> looked)
{
  auto* box = new QMessageBox(QMessageBox::Question, QStringLiteral("Talmesh Plot"),
                              ReadingWords::tr("How is the table %1 to be read?").arg(name),
                              QMessageBox::Cancel, window);
  box->setObjectName(QStringLiteral("reading"));
  box->setAttribute(Qt::WA_DeleteOnClose);
  // Names of files and columns are no markup.
  box->setTextFormat(Qt::PlainText);
  QString reasons;
  std::vector<std::pair<QAbstractButton*, ImportRequest>> answers;
  for (const ImportCandidate& candidate : report.candidates)
  {
    ImportRequest asked = request;
    // What cannot be read by it needs no button.
    if (!takeCandidate(candidate, asked))
      continue;
    const QString title = titleOf(candidate);
    answers.emplace_back(box->addButton(title, QMessageBox::AcceptRole), asked);
    reasons += QStringLiteral("%1: %2\n").arg(title, QString::fromStdString(candidate.reason));
  }
  QAbstractButton* looking =
      box->addButton(ReadingWords::tr("Choose how to read it..."), QMessageBox::ActionRole);
  box->setInformativeText(reasons.trimmed());
  QObject::connect(box, &QMessageBox::finished, window,
                   [box, answers, looking, chosen = std::move(chosen), looked = std::move(looked)]
                   {
                     if (box->clickedButton() == looking)
                       looked();
                     for (const auto& [button, asked] : answers)
                       if (box->clickedButton() == button)
                         chosen(asked);
                   });
  box->open();
  return box;
}

} // namespace Talmesh::app
