#ifndef WorkKeeper_h
#define WorkKeeper_h

#include "app/session/KeptWork.h"
#include "app/session/Session.h"
#include "app/session/SessionWork.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <future>
#include <optional>

namespace Talmesh::app
{

/// Keeps unsaved work in a folder until it is saved or given up, so that it survives the end of the
/// program. Looks for changes once a minute; the bytes are written in a thread of their own.
class WorkKeeper : public QObject
{
  Q_OBJECT

public:
  /// What must be kept now; nothing when all is saved.
  using Unsaved = std::function<std::optional<SessionSource>()>;

  static constexpr int minute = 60000; ///< milliseconds

  WorkKeeper(const QString& folder, Unsaved unsaved, int interval = minute,
             QObject* parent = nullptr);
  /// Leaves what is kept where it is.
  ~WorkKeeper() override;

  /// Keeps what is unsaved now, and returns when it is on the disk.
  void keepNow();
  /// What was kept is saved or given up.
  void forget();
  /// Keeps on in a file that an earlier window has left.
  void takeOver(const LeftWork& work);
  const QString& folder() const { return path; }

signals:
  /// One line, once until keeping works again.
  void failed(const QString& message);

private:
  void look();
  bool prepare(SessionParts& parts);
  bool collect(SessionParts& parts);
  void startWriting(SessionParts parts);
  void takeResult();
  QString write(const SessionParts& parts) const;
  void report(const QString& error);

  QString path;
  Unsaved unsaved;
  QTimer timer;
  LeftWork file;
  /// What the file holds; nothing while there is none.
  std::optional<SessionWork> kept;
  /// Gives why the file could not be written; not valid once that was reported.
  std::future<QString> writing;
  int writings = 0;
  bool failing = false;
};

} // namespace Talmesh::app

#endif
