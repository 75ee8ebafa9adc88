#include "app/session/WorkKeeper.h"

#include "plot/PlotContainer.h"

#include <QGuiApplication>

#include <chrono>
#include <exception>
#include <new>
#include <utility>

namespace Talmesh::app
{

namespace
{

/// Milliseconds until the next look while the user drags something.
constexpr int shortly = 2000;

bool isSame(const SessionWork& a, const SessionWork& b)
{
  return a.view == b.view && a.selected == b.selected && a.groupOfRun == b.groupOfRun &&
         a.normalised == b.normalised;
}

QString reasonOf(const std::exception& failure)
{
  return dynamic_cast<const std::bad_alloc*>(&failure)
             ? WorkKeeper::tr("there is not enough memory")
             : QString::fromLocal8Bit(failure.what());
}

/// @return why the work failed; empty if it did not
template <class Work>
QString errorOf(const Work& work)
{
  try
  {
    return work();
  }
  catch (const std::exception& failure)
  {
    return reasonOf(failure);
  }
}

} // namespace

WorkKeeper::WorkKeeper(const QString& folderPath, Unsaved whatIsUnsaved, int interval,
                       QObject* parent)
    : QObject(parent)
    , path(folderPath)
    , unsaved(std::move(whatIsUnsaved))
{
  timer.setInterval(interval);
  connect(&timer, &QTimer::timeout, this, &WorkKeeper::look);
  timer.start();
}

WorkKeeper::~WorkKeeper()
{
  if (writing.valid())
    writing.wait();
}

void WorkKeeper::look()
{
  if (QGuiApplication::mouseButtons() != Qt::NoButton)
  {
    QTimer::singleShot(shortly, this, &WorkKeeper::look);
    return;
  }
  using namespace std::chrono_literals;
  if (writing.valid() && writing.wait_for(0s) != std::future_status::ready)
    return;
  takeResult();
  SessionParts parts;
  if (!prepare(parts))
    return;
  try
  {
    startWriting(std::move(parts));
  }
  catch (const std::exception&)
  {
    report(tr("no thread could be started"));
  }
}

void WorkKeeper::keepNow()
{
  takeResult();
  SessionParts parts;
  if (prepare(parts))
    report(write(parts));
}

void WorkKeeper::startWriting(SessionParts parts)
{
  const int number = ++writings;
  // A result that was taken before its call comes must not make that wait for the next one.
  const auto written = [this, number]
  {
    if (number == writings)
      takeResult();
  };
  writing = std::async(std::launch::async,
                       [this, written, parts = std::move(parts)]
                       {
                         QString error = write(parts);
                         QMetaObject::invokeMethod(this, written, Qt::QueuedConnection);
                         return error;
                       });
}

/// Waits for what is being written, and reports how it went.
void WorkKeeper::takeResult()
{
  if (writing.valid())
    report(errorOf([this] { return writing.get(); }));
}

/// @return whether the parts are to be written
bool WorkKeeper::prepare(SessionParts& parts)
{
  try
  {
    return collect(parts);
  }
  catch (const std::exception& failure)
  {
    report(reasonOf(failure));
    return false;
  }
}

bool WorkKeeper::collect(SessionParts& parts)
{
  const std::optional<SessionSource> source = unsaved();
  if (!source)
  {
    forget();
    return false;
  }
  SessionWork work = workOf(*source);
  if (kept && isSame(*kept, work))
    return false;
  if (!file.lock)
    file = newWork(path);
  if (!file.lock)
  {
    report(tr("%1 cannot be written").arg(path));
    return false;
  }
  parts = sessionParts(*source);
  kept = std::move(work);
  return true;
}

/// Runs in any thread.
/// @return why it could not be written; empty if it was
QString WorkKeeper::write(const SessionParts& parts) const
{
  return errorOf([&] { return QString::fromStdString(saveSessionFile(file.path, parts)); });
}

void WorkKeeper::report(const QString& error)
{
  if (!error.isEmpty())
    kept.reset();
  if (!error.isEmpty() && !failing)
    emit failed(tr("Unsaved work cannot be kept for later: %1").arg(error));
  failing = !error.isEmpty();
}

void WorkKeeper::forget()
{
  takeResult();
  kept.reset();
  discard(std::exchange(file, LeftWork()));
}

void WorkKeeper::takeOver(const LeftWork& work)
{
  forget();
  file = work;
}

} // namespace Talmesh::app
