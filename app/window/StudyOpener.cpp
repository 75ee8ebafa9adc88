#include "app/window/StudyOpener.h"

#include "app/document/Document.h"
#include "app/examples/ExampleStudy.h"
#include "app/import/RequestWords.h"
#include "app/tasks/TaskRunner.h"
#include "app/window/ReadingTemplates.h"
#include "app/window/TaskBar.h"

#include <QFileInfo>
#include <QStringList>

#include <utility>

namespace Talmesh::app
{

namespace
{

Result<OpenedStudy> openExampleStudy(const ImportProgress& progress)
{
  OpenedStudy example;
  example.study = exampleStudyOfRepressilator(progress);
  return example.study.runs ? Result<OpenedStudy>(example) : Result<OpenedStudy>::cancelled();
}

OpeningTask taskFor(const QStringList& paths)
{
  OpeningTask task;
  task.paths = paths;
  task.name = paths.size() > 1 ? StudyOpener::tr("%1 files").arg(paths.size())
                               : QFileInfo(paths.front()).fileName();
  return task;
}

/// Reads a table as the user once had such tables read. What cannot be read so any more is read as
/// if nothing had been said.
Result<OpenedStudy> openTables(const OpeningTask& task, const ReadingTemplates& templates,
                               const ImportProgress& progress)
{
  const ImportRequest* remembered = templates.findFor(task.paths, progress);
  if (remembered)
  {
    Result<OpenedStudy> opened = openStudyFiles(task.paths, progress, *remembered, nullptr);
    if (opened.isCancelled())
      return opened;
    if (opened.hasValue() && !opened.value().session)
    {
      std::vector<std::string>& notes = opened.value().notes;
      notes.insert(
          notes.begin(),
          StudyOpener::tr("Read as is remembered for tables with these columns.").toStdString());
      return opened;
    }
  }
  return openStudyFiles(task.paths, progress, task.request, task.report.get());
}

} // namespace

StudyOpener::StudyOpener(Document& into, TaskBar& bar, QObject* parent)
    : QObject(parent)
    , document(into)
    , runner(new TaskRunner(this))
{
  bar.follow(*runner, QStringLiteral("cancelLoading"));
  connect(&bar, &TaskBar::cancelled, this, &StudyOpener::cancel);
}

StudyOpener::~StudyOpener()
{
  // Its thread must not outlive what it reports to.
  delete runner;
}

void StudyOpener::open(const OpeningWishes& asked)
{
  OpeningTask task = taskFor(studyPaths(asked.file, asked.moreFiles));
  task.wishes = asked;
  task.request = asked.import;
  task.namedByCommandLine = true;
  if (!asked.file.empty())
  {
    loadFile(task);
    return;
  }
  task.name = tr("the example study");
  load(task, openExampleStudy);
}

void StudyOpener::openFile(const QString& path)
{
  openFiles({path});
}

void StudyOpener::openFiles(const QStringList& paths)
{
  loadFile(taskFor(paths));
}

void StudyOpener::openAgain(const OpeningTask& unsure, const ImportRequest& request)
{
  OpeningTask task = unsure;
  task.request = request;
  task.isSettled = true;
  loadFile(task);
}

void StudyOpener::openAs(const QStringList& paths, const ImportRequest& request)
{
  openAgain(taskFor(paths), request);
}

void StudyOpener::openExample()
{
  openComputed(tr("the example study"), openExampleStudy);
}

void StudyOpener::openComputed(const QString& name, const StudyJob& job)
{
  OpeningTask task;
  task.name = name;
  load(task, job);
}

void StudyOpener::bringBack(const LeftWork& work)
{
  OpeningTask task = taskFor({work.path});
  task.left = work;
  load(task, [path = work.path](const ImportProgress& progress)
       { return openStudyFile(path, progress); });
}

bool StudyOpener::isOpening() const
{
  return runner->isRunning();
}

void StudyOpener::loadFile(OpeningTask task)
{
  task.report = std::make_shared<ImportReport>();
  const bool isSaid = task.isSettled || !optionsOf(task.request).empty();
  load(task, [task, templates = isSaid ? ReadingTemplates() : ReadingTemplates::kept()](
                 const ImportProgress& progress) { return openTables(task, templates, progress); });
}

void StudyOpener::load(OpeningTask task, const StudyJob& job)
{
  current = std::move(task);
  emit said(tr("Opening %1 ...").arg(current.name));
  runner->start<OpenedStudy>(this, job,
                             [this](const Result<OpenedStudy>& result) { finish(result); });
}

void StudyOpener::cancel()
{
  current = {};
  runner->cancel();
  emit stopped(tr("Cancelled"));
}

void StudyOpener::finish(const Result<OpenedStudy>& result)
{
  const OpeningTask task = std::exchange(current, {});
  emit ended();
  if (result.hasValue())
    show(result.value(), task);
  if (result.error().empty())
    return;
  const QString message = QString::fromStdString(result.error());
  if (task.report && task.report->isUnsure())
  {
    emit unsure(message, task);
    return;
  }
  emit notOpened(task);
  emit failed(message, task);
}

void StudyOpener::show(const OpenedStudy& study, const OpeningTask& task)
{
  QStringList notes;
  for (const std::string& note : study.notes)
    notes.append(QString::fromStdString(note));
  if (!notes.isEmpty())
    emit said(notes.join(QLatin1Char(' ')));
  const std::string error = document.open(study, task.wishes);
  emit shown(study, task);
  if (error.empty())
    emit opened();
  else
    emit failed(QString::fromStdString(error), task);
}

} // namespace Talmesh::app
