#include "app/window/ReadingPreview.h"

#include "app/session/StudyFile.h"
#include "app/tasks/TaskRunner.h"
#include "app/window/ReadingTemplates.h"

#include <utility>

namespace Talmesh::app
{

/// What is known soon.
struct ReadingPreview::Start
{
  std::shared_ptr<const TableSample> sample;
  FirstRows rows;
  PreviewedReading reading;
  std::string key;
  bool hasParts = false;
};

ReadingPreview::ReadingPreview(QStringList paths, QObject* parent)
    : QObject(parent)
    , files(std::move(paths))
    , runner(new TaskRunner(this))
{
}

ReadingPreview::~ReadingPreview()
{
  delete runner;
}

bool ReadingPreview::isReading() const
{
  return runner->isRunning();
}

void ReadingPreview::read(const ImportRequest& request)
{
  ++turn;
  if (request.sheet != knownSheet)
    known.reset();
  knownSheet = request.sheet;
  runner->start<Start>(
      this,
      [paths = files, request, sample = known](const TaskProgress& progress)
      { return readStart(paths, request, sample, progress); },
      [this, request](const Result<Start>& start) { showStart(start, request); });
}

Result<ReadingPreview::Start> ReadingPreview::readStart(const QStringList& paths,
                                                        const ImportRequest& request,
                                                        std::shared_ptr<const TableSample> sample,
                                                        const ImportProgress& progress)
{
  Start start;
  start.hasParts = mayHaveParts(paths);
  start.reading.isSample = true;
  if (!sample)
  {
    Result<TableSample> read = readTableSample(paths, request.sheet, progress);
    if (read.isCancelled())
      return Result<Start>::cancelled();
    if (!read.hasValue())
    {
      // Of a file of several tables the user can name one.
      start.reading.refusal = QString::fromStdString(read.error());
      return start;
    }
    sample = std::make_shared<const TableSample>(std::move(read.value()));
  }
  start.sample = sample;
  Result<FirstRows> rows = firstRowsOf(*sample, request);
  if (!rows.hasValue())
    start.reading.refusal = QString::fromStdString(rows.error());
  else
    start.rows = std::move(rows.value());
  if (request.sheet.empty())
    start.key = ReadingTemplates::keyOf(*sample, paths.size() > 1);
  if (!sample->isWhole && sample->start.isText())
    start.reading.report = reportOf(*sample, request);
  return start;
}

void ReadingPreview::showStart(const Result<Start>& result, const ImportRequest& request)
{
  if (result.hasValue())
  {
    const Start& start = result.value();
    known = start.sample;
    parts = start.hasParts;
    if (request.sheet.empty())
      key = start.key;
    const int shown = turn;
    emit rowsRead(start.rows);
    // Whoever saw them may have had them read otherwise.
    if (turn != shown)
      return;
    emit understood(start.reading);
  }
  if (!result.isCancelled())
    readAll(request);
}

void ReadingPreview::readAll(const ImportRequest& request)
{
  runner->start<PreviewedReading>(
      this,
      [paths = files, request](const TaskProgress& progress)
      {
        PreviewedReading reading;
        const Result<OpenedStudy> opened =
            openStudyFiles(paths, progress, request, &reading.report);
        if (opened.isCancelled())
          return Result<PreviewedReading>::cancelled();
        reading.refusal = QString::fromStdString(opened.error());
        return Result<PreviewedReading>(std::move(reading));
      },
      [this](const Result<PreviewedReading>& reading)
      {
        if (reading.hasValue())
          emit understood(reading.value());
        else if (!reading.isCancelled())
          emit understood({{}, QString::fromStdString(reading.error()), false});
      });
}

} // namespace Talmesh::app
