#include "app/window/StudyOpener.h"

#include "app/document/Document.h"
#include "app/examples/ExampleStudy.h"
#include "app/tasks/StudyLoader.h"
#include "app/window/LoadingBar.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <utility>

namespace Talmesh::app
{

namespace
{

OpenedStudy openExampleStudy(const ImportProgress& progress)
{
  OpenedStudy example;
  example.study = exampleStudyOfRepressilator(progress);
  example.cancelled = !example.study.runs;
  return example;
}

StudyJob jobFor(const QString& path)
{
  return [path](const ImportProgress& progress) { return openStudyFile(path, progress); };
}

OpeningTask taskFor(const QString& path)
{
  OpeningTask task;
  task.name = QFileInfo(path).fileName();
  task.path = path;
  return task;
}

} // namespace

StudyOpener::StudyOpener(Document& into, LoadingBar& progress, QObject* parent)
    : QObject(parent)
    , document(into)
    , bar(progress)
    , loader(new StudyLoader(this))
{
  connect(loader, &StudyLoader::progressed, &bar, &LoadingBar::setPercent);
  connect(loader, &StudyLoader::finished, this, &StudyOpener::finish);
  connect(&bar, &LoadingBar::cancelled, this, &StudyOpener::cancel);
}

StudyOpener::~StudyOpener()
{
  // Its thread must not outlive what it reports to.
  delete loader;
}

void StudyOpener::open(const OpeningWishes& asked)
{
  const QString path = QFile::decodeName(asked.file.c_str());
  OpeningTask task = taskFor(path);
  task.wishes = asked;
  task.namedByCommandLine = true;
  if (!path.isEmpty())
  {
    load(task, jobFor(path));
    return;
  }
  task.name = tr("the example study");
  load(task, openExampleStudy);
}

void StudyOpener::openFile(const QString& path)
{
  load(taskFor(path), jobFor(path));
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
  OpeningTask task = taskFor(work.path);
  task.path.clear();
  task.left = work;
  load(task, jobFor(work.path));
}

bool StudyOpener::isOpening() const
{
  return loader->isLoading();
}

void StudyOpener::load(OpeningTask task, const StudyJob& job)
{
  current = std::move(task);
  emit said(tr("Opening %1 ...").arg(current.name));
  bar.begin();
  loader->start(job);
}

void StudyOpener::cancel()
{
  current = {};
  loader->cancel();
  bar.end();
  emit said(tr("Cancelled"));
}

void StudyOpener::finish(const OpenedStudy& result)
{
  const OpeningTask task = std::exchange(current, {});
  bar.end();
  emit ended();
  if (!result.error.empty())
  {
    emit notOpened(task);
    emit failed(QString::fromStdString(result.error), task);
    return;
  }
  QStringList notes;
  for (const std::string& note : result.notes)
    notes.append(QString::fromStdString(note));
  if (!notes.isEmpty())
    emit said(notes.join(QLatin1Char(' ')));
  const std::string error = document.open(result, task.wishes);
  emit shown(result, task);
  if (error.empty())
    emit opened();
  else
    emit failed(QString::fromStdString(error), task);
}

} // namespace Talmesh::app
