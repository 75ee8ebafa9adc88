#include "app/window/SessionQuestions.h"

#include "app/session/KeptWork.h"
#include "app/session/SessionFile.h"
#include "app/session/SessionSettings.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>

#include <utility>
#include <vector>

namespace Talmesh::app
{

namespace
{

QMessageBox* makeBox(QWidget* window, const char* name, const QString& question)
{
  auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Talmesh Plot"), question,
                              QMessageBox::NoButton, window);
  box->setObjectName(QLatin1String(name));
  box->setAttribute(Qt::WA_DeleteOnClose);
  // File names are no markup.
  box->setTextFormat(Qt::PlainText);
  return box;
}

QString listOf(const UnsavedParts& parts)
{
  QStringList names;
  if (parts.selection)
    names.append(QCoreApplication::translate("SessionQuestions", "the selection"));
  if (parts.selections)
    names.append(QCoreApplication::translate("SessionQuestions", "kept selections"));
  if (parts.groups)
    names.append(QCoreApplication::translate("SessionQuestions", "the groups of runs"));
  if (parts.normalised)
    names.append(QCoreApplication::translate("SessionQuestions", "which runs are normalised"));
  if (parts.view)
    names.append(QCoreApplication::translate("SessionQuestions", "how the plot is shown"));
  return names.join(QStringLiteral(", "));
}

/// Calls `answered` with the answer of the button that the box is closed by.
template <typename Answer>
QMessageBox* openBox(QMessageBox* box,
                     const std::vector<std::pair<QAbstractButton*, Answer>>& answers, Answer none,
                     std::function<void(Answer)> answered)
{
  // The window as context: without it there is nothing left to decide.
  QObject::connect(box, &QMessageBox::finished, box->parentWidget(),
                   [box, answers, none, answered = std::move(answered)]
                   {
                     Answer given = none;
                     for (const auto& [button, answer] : answers)
                       if (box->clickedButton() == button)
                         given = answer;
                     answered(given);
                   });
  box->open();
  return box;
}

} // namespace

QMessageBox* askBeforeLeaving(QWidget* window, const QString& study, const UnsavedParts& parts,
                              std::function<void(LeavingAnswer)> answered)
{
  QMessageBox* box = makeBox(
      window, "askBeforeLeaving",
      QCoreApplication::translate("SessionQuestions", "Save the work on \"%1\"?").arg(study));
  box->setInformativeText(
      QCoreApplication::translate("SessionQuestions", "Not saved: %1.").arg(listOf(parts)));
  QAbstractButton* save = box->addButton(QMessageBox::Save);
  QAbstractButton* discard = box->addButton(QMessageBox::Discard);
  box->addButton(QMessageBox::Cancel);
  box->setDefaultButton(QMessageBox::Save);
  return openBox<LeavingAnswer>(box,
                                {{save, LeavingAnswer::save}, {discard, LeavingAnswer::discard}},
                                LeavingAnswer::stay, std::move(answered));
}

QMessageBox* askBeforeOverwriting(QWidget* window, const QString& path,
                                  std::function<void(OverwritingAnswer)> answered)
{
  QMessageBox* box =
      makeBox(window, "askBeforeOverwriting",
              QCoreApplication::translate("SessionQuestions",
                                          "%1 has changed since this window opened or saved it.")
                  .arg(QDir::toNativeSeparators(path)));
  box->setInformativeText(QCoreApplication::translate(
      "SessionQuestions", "Overwriting it loses what someone else has saved there."));
  QAbstractButton* overwrite = box->addButton(
      QCoreApplication::translate("SessionQuestions", "&Overwrite"), QMessageBox::DestructiveRole);
  QPushButton* elsewhere =
      box->addButton(QCoreApplication::translate("SessionQuestions", "&Save under another name..."),
                     QMessageBox::AcceptRole);
  box->addButton(QMessageBox::Cancel);
  box->setDefaultButton(elsewhere);
  return openBox<OverwritingAnswer>(
      box, {{overwrite, OverwritingAnswer::overwrite}, {elsewhere, OverwritingAnswer::elsewhere}},
      OverwritingAnswer::notNow, std::move(answered));
}

QMessageBox* askAboutLeftWork(QWidget* window, const LeftWork& work,
                              std::function<void(LeftWorkAnswer)> answered)
{
  const Result<SessionSettings> settings = readSettings(peekSettings(work.path), 0);
  const QString name =
      settings.hasValue() ? QString::fromStdString(settings.value().name) : QString();
  QMessageBox* box = makeBox(
      window, "askAboutLeftWork",
      QCoreApplication::translate("SessionQuestions", "Bring back the unsaved work on \"%1\"?")
          .arg(name));
  box->setInformativeText(
      QCoreApplication::translate("SessionQuestions",
                                  "Talmesh Plot ended before it was saved. It was kept on %1.")
          .arg(QLocale().toString(work.time, QLocale::ShortFormat)));
  QPushButton* bringBack = box->addButton(
      QCoreApplication::translate("SessionQuestions", "&Bring back"), QMessageBox::AcceptRole);
  QAbstractButton* discard = box->addButton(QMessageBox::Discard);
  QPushButton* later = box->addButton(QCoreApplication::translate("SessionQuestions", "&Later"),
                                      QMessageBox::RejectRole);
  box->setDefaultButton(bringBack);
  box->setEscapeButton(later);
  return openBox<LeftWorkAnswer>(
      box, {{bringBack, LeftWorkAnswer::bringBack}, {discard, LeftWorkAnswer::discard}},
      LeftWorkAnswer::later, std::move(answered));
}

} // namespace Talmesh::app
