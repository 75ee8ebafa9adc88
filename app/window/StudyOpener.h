#ifndef StudyOpener_h
#define StudyOpener_h

#include "app/document/PlotWishes.h"
#include "app/session/KeptWork.h"
#include "app/session/StudyFile.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

namespace Talmesh::app
{

class Document;
class TaskBar;
class TaskRunner;

/// What is being opened, beside its content.
struct OpeningTask
{
  /// As messages call it.
  QString name;
  /// All files; empty for what is computed.
  QStringList paths;
  /// The work that an earlier window has left, if that is what is opened.
  LeftWork left;
  /// What the command line wishes of the study that it names.
  PlotWishes wishes;
  /// What is said of a table, and what was understood of it.
  ImportRequest request;
  std::shared_ptr<ImportReport> report;
  bool namedByCommandLine = false;
  /// The user has just said how it is to be read: what is remembered for such tables is not asked.
  bool isSettled = false;

  /// The file that could be opened again; empty for what is computed, for several files, and for
  /// work that an earlier window has left.
  QString ownPath() const
  {
    return paths.size() == 1 && left.path.isEmpty() ? paths.front() : QString();
  }
};

/// Opens studies in the background and shows them in the document. What is started while something
/// else is being opened takes its place.
class StudyOpener : public QObject
{
  Q_OBJECT

public:
  /// @param document, bar outlive the opener; the bar shows how far it is
  StudyOpener(Document& document, TaskBar& bar, QObject* parent = nullptr);
  /// Cancels what is being opened and waits for it.
  ~StudyOpener() override;

  /// Opens the file or example that the command line names.
  void open(const OpeningWishes& asked);
  void openFile(const QString& path);
  /// Opens files that belong together; a single one as openFile() does.
  void openFiles(const QStringList& paths);
  /// Opens a file again whose reading was unsure.
  void openAgain(const OpeningTask& unsure, const ImportRequest& request);
  /// Opens files as the user has them read.
  void openAs(const QStringList& paths, const ImportRequest& request);
  void openExample();
  void openComputed(const QString& name, const StudyJob& job);
  /// Opens work that an earlier window has left; it is no file of the user's own.
  void bringBack(const LeftWork& work);
  /// Gives up what is being opened, and says so.
  void cancel();
  bool isOpening() const;

signals:
  /// What is going on, in one line.
  void said(const QString& message);
  /// What was going on has been given up, in one line.
  void stopped(const QString& message);
  /// Nothing is going on any more.
  void ended();
  /// The document shows the study, whether or not the wishes could be met.
  void shown(const Talmesh::app::OpenedStudy& opened, const Talmesh::app::OpeningTask& task);
  /// The same, with all wishes.
  void opened();
  /// A table may be read in several ways, as the task's report says; why, in one line.
  void unsure(const QString& message, const Talmesh::app::OpeningTask& task);
  /// Nothing is shown of it.
  void notOpened(const Talmesh::app::OpeningTask& task);
  /// Why what was to be opened could not be, or not as wished, in one line.
  void failed(const QString& message, const Talmesh::app::OpeningTask& task);

private:
  void load(OpeningTask task, const StudyJob& job);
  void loadFile(OpeningTask task);
  void show(const OpenedStudy& study, const OpeningTask& task);
  void finish(const Result<OpenedStudy>& result);

  Document& document;
  TaskRunner* runner;
  OpeningTask current;
};

} // namespace Talmesh::app

#endif
