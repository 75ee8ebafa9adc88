#ifndef KeptWork_h
#define KeptWork_h

#include <QDateTime>
#include <QLockFile>
#include <QString>

#include <memory>

namespace Talmesh::app
{

/// Where the viewer keeps unsaved work: a folder of its own below $XDG_STATE_HOME or, without that,
/// below ~/.local/state.
QString stateFolder();

/// A session file in such a folder, and the lock by which windows know that it is in use. Locks of
/// programs that have ended do not count.
struct LeftWork
{
  QString path;
  QDateTime time;
  std::shared_ptr<QLockFile> lock;
};

/// A new name in the folder, which is made, locked for as long as the lock lives; without a lock
/// when the folder cannot be written.
LeftWork newWork(const QString& folder);

/// The latest of the files that no running window keeps, locked; without a lock when there is none.
LeftWork latestLeftWork(const QString& folder);

/// Deletes the file. Its lock stays.
void discard(const LeftWork& work);

} // namespace Talmesh::app

#endif
