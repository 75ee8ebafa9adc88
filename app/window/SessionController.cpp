#include "app/window/SessionController.h"

#include "app/document/Document.h"
#include "app/window/FileDialogs.h"
#include "app/window/SessionQuestions.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QWidget>

namespace Talmesh::app
{

SessionController::SessionController(QWidget& parent, Document& shown)
    : QObject(&parent)
    , window(parent)
    , document(shown)
{
}

void SessionController::opened(const OpenedStudy& study, const QString& path, const LeftWork& left)
{
  // Runs stay the user's work while a computed study takes their place.
  if (study.study.chart)
    return;
  if (!study.session)
  {
    take({});
    return;
  }
  if (!left.lock)
  {
    take({path, study.session->end});
    return;
  }
  record.broughtBack(study.session->settings.origin);
  if (keeper)
    keeper->takeOver(left);
}

/// What is now shown is in the origin's file or, without one, as a table was opened.
void SessionController::take(const SessionOrigin& origin)
{
  if (const std::optional<SessionSource> now = document.sessionSource())
    record.saved(workOf(*now), origin);
  forget();
}

void SessionController::selectionSaved()
{
  if (const std::optional<SessionSource> now = document.sessionSource())
    record.selectionSaved(workOf(*now));
}

UnsavedParts SessionController::unsavedParts()
{
  const std::optional<SessionSource> now = document.sessionSource();
  return now ? record.unsaved(workOf(*now)) : UnsavedParts();
}

bool SessionController::isUnsaved()
{
  return unsavedParts().any();
}

void SessionController::leave(const Step& then)
{
  const UnsavedParts parts = unsavedParts();
  if (!parts.any())
  {
    then();
    return;
  }
  askBeforeLeaving(&window, QString::fromStdString(document.sessionSource()->study.name), parts,
                   [this, then](LeavingAnswer answer)
                   {
                     if (answer == LeavingAnswer::save)
                       save(then);
                     else if (answer == LeavingAnswer::discard)
                       then();
                   });
}

void SessionController::forget()
{
  if (keeper)
    keeper->forget();
}

void SessionController::end()
{
  forget();
  delete keeper;
  keeper = nullptr;
}

void SessionController::save(const Step& then)
{
  const QString path = record.origin().path;
  path.isEmpty() ? saveAs(then) : saveOver(path, then);
}

void SessionController::saveAs(const Step& then)
{
  const std::optional<SessionSource> now = document.sessionSource();
  if (!now)
    return;
  QFileDialog* dialog = askToSave(&window, tr("Save session"), tr("Sessions (*.talmesh)"),
                                  QLatin1String(sessionSuffix),
                                  [this, then](const QString& path) { saveOver(path, then); });
  if (!record.origin().path.isEmpty())
    dialog->selectFile(record.origin().path);
  // Another study has another container: this one is no longer there to be saved.
  connect(&now->container, &QObject::destroyed, dialog, &QDialog::reject);
}

void SessionController::saveOver(const QString& path, const Step& then)
{
  const auto write = [this, path, then]
  {
    if (saveTo(path) && then)
      then();
  };
  if (!hasChangedMeanwhile(record.origin(), path))
  {
    write();
    return;
  }
  askBeforeOverwriting(&window, path,
                       [this, write, then](OverwritingAnswer answer)
                       {
                         if (answer == OverwritingAnswer::overwrite)
                           write();
                         else if (answer == OverwritingAnswer::elsewhere)
                           saveAs(then);
                       });
}

bool SessionController::saveTo(const QString& path)
{
  const std::optional<SessionSource> now = document.sessionSource();
  if (!now)
    return false;
  SessionOrigin written_{path, {}};
  const std::string error = document.save(path, &written_.end);
  if (error.empty())
  {
    // What went into a pipe is in no file.
    record.saved(workOf(*now), QFileInfo(path).isFile() ? written_ : SessionOrigin());
    forget();
  }
  emit written(path, error);
  return error.empty();
}

void SessionController::keepIn(const QString& folder, int milliseconds)
{
  const auto unsaved = [this]() -> std::optional<SessionSource>
  {
    if (!isUnsaved())
      return {};
    std::optional<SessionSource> now = document.sessionSource();
    now->origin = record.origin();
    return now;
  };
  delete keeper;
  keeper = new WorkKeeper(folder, unsaved, milliseconds, this);
  connect(keeper, &WorkKeeper::failed, this, &SessionController::failed);
  offerLeftWork();
}

void SessionController::keepNow()
{
  if (keeper)
    keeper->keepNow();
}

/// The latest first.
void SessionController::offerLeftWork()
{
  const LeftWork left = keeper ? latestLeftWork(keeper->folder()) : LeftWork();
  if (!left.lock)
    return;
  askAboutLeftWork(&window, left,
                   [this, left](LeftWorkAnswer answer)
                   {
                     if (answer == LeftWorkAnswer::bringBack)
                       emit bringBackWanted(left);
                     if (answer != LeftWorkAnswer::discard)
                       return;
                     discard(left);
                     offerLeftWork();
                   });
}

} // namespace Talmesh::app
