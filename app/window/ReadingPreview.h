#ifndef ReadingPreview_h
#define ReadingPreview_h

#include "app/import/FirstRows.h"
#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"
#include "app/session/TableSample.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace Talmesh::app
{

class TaskRunner;

/// What is understood of a table when it is read in one way.
struct PreviewedReading
{
  ImportReport report;
  /// Why it cannot be read so, in one line; empty where it can.
  QString refusal;
  /// Whether only the start of the table was read.
  bool isSample = false;
};

/// Reads tables in the background, as they would be opened, for the user to look at before. What is
/// asked for takes the place of what was asked for before.
class ReadingPreview : public QObject
{
  Q_OBJECT

public:
  /// @param paths of a file, or of several that belong together
  explicit ReadingPreview(QStringList paths, QObject* parent = nullptr);
  /// Gives up what is being read, and waits for it.
  ~ReadingPreview() override;

  void read(const ImportRequest& request);
  bool isReading() const;
  /// What tables like this one are told by; empty where the file cannot be read. Known with the
  /// first rows.
  const std::string& headerKey() const { return key; }
  /// Whether the file may hold several tables. Known with the first rows.
  bool hasParts() const { return parts; }

signals:
  void rowsRead(const Talmesh::app::FirstRows& rows);
  /// At first of the start of a long table, then of all of it.
  void understood(const Talmesh::app::PreviewedReading& reading);

private:
  struct Start;

  static Result<Start> readStart(const QStringList& paths, const ImportRequest& request,
                                 std::shared_ptr<const TableSample> sample,
                                 const ImportProgress& progress);
  void showStart(const Result<Start>& start, const ImportRequest& request);
  void readAll(const ImportRequest& request);

  QStringList files;
  TaskRunner* runner;
  std::shared_ptr<const TableSample> known;
  /// The table of the file that `known` is the start of.
  std::string knownSheet;
  std::string key;
  /// How often it was asked to read.
  int turn = 0;
  bool parts = false;
};

} // namespace Talmesh::app

#endif
