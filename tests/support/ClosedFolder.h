#ifndef ClosedFolder_h
#define ClosedFolder_h

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>

#include <fcntl.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

/// While it lives, a folder takes no new files from this thread, which may read it and write the
/// files in it.
class ClosedFolder
{
public:
  explicit ClosedFolder(const QString& path)
      : folder(QFile::encodeName(path))
  {
    for (const QString& file : QDir(path).entryList(QDir::Files))
      ::chmod(QFile::encodeName(path + '/' + file).constData(), 0666);
    ::chmod(folder.constData(), 0555);
    // A folder is never closed to root.
    if (::geteuid() == 0)
      ::setfsuid(nobody);
  }
  ~ClosedFolder()
  {
    ::setfsuid(::geteuid());
    ::chmod(folder.constData(), 0700);
  }
  ClosedFolder(const ClosedFolder&) = delete;
  ClosedFolder& operator=(const ClosedFolder&) = delete;

  bool isClosed() const { return ::faccessat(AT_FDCWD, folder.constData(), W_OK, AT_EACCESS) != 0; }

private:
  static constexpr uid_t nobody = 65534;
  QByteArray folder;
};

#endif
