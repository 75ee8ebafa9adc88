#include "widgets/FileWriter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QSaveFile>
#include <QTemporaryFile>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace Talmesh
{

namespace
{

using namespace std::chrono_literals;

/// As many links as Linux follows.
constexpr int mostLinks = 40;
constexpr auto patience = 5s;
constexpr auto betweenTries = 20ms;

/// What went wrong, even where the system has no word for it.
QString reasonOf(int error)
{
  if (error == EAGAIN)
    return QCoreApplication::translate("FileWriter", "the reader of this pipe takes no more");
  return error != 0 ? qt_error_string(error)
                    : QCoreApplication::translate("FileWriter", "not all of it could be written");
}

/// Writes to a descriptor without a buffer, so that every failure is met where it happens. Qt's
/// files forget why a write ended early.
class DescriptorDevice : public QIODevice
{
public:
  explicit DescriptorDevice(int descriptor_)
      : descriptor(descriptor_)
  {
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
  }

  bool isSequential() const override { return true; }
  /// Of the first failure; 0 without one.
  int error() const { return failure; }

protected:
  qint64 readData(char*, qint64) override { return -1; }

  qint64 writeData(const char* bytes, qint64 size) override
  {
    qint64 written = 0;
    while (written < size && failure == 0)
    {
      const ssize_t taken =
          ::write(descriptor, bytes + written, static_cast<std::size_t>(size - written));
      if (taken > 0)
        written += taken;
      else if (taken == 0)
        failure = EIO;
      else if (errno != EINTR && !(errno == EAGAIN && takesMore()))
        failure = errno;
    }
    return failure == 0 ? written : -1;
  }

private:
  /// Waits for a reader that is slower.
  /// @return whether to try again; if not, why not is in errno
  bool takesMore() const
  {
    pollfd wanted = {descriptor, POLLOUT, 0};
    const int ready = ::poll(&wanted, 1, std::chrono::milliseconds(patience).count());
    if (ready == 0)
      errno = EAGAIN;
    return ready > 0 || (ready < 0 && errno == EINTR);
  }

  int descriptor;
  int failure = 0;
};

/// While it lives, a reader that leaves a pipe is an error of the writing thread instead of its
/// program's end.
class PipeSignalBlock
{
public:
  PipeSignalBlock()
  {
    sigemptyset(&signal);
    sigaddset(&signal, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signal, &before);
  }
  ~PipeSignalBlock()
  {
    const timespec now = {};
    while (sigtimedwait(&signal, nullptr, &now) == -1 && errno == EINTR)
    {
    }
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
  }
  PipeSignalBlock(const PipeSignalBlock&) = delete;
  PipeSignalBlock& operator=(const PipeSignalBlock&) = delete;

private:
  sigset_t signal = {};
  sigset_t before = {};
};

/// @return 0, or why the descriptor's bytes may not be on their disk
int sync(int descriptor)
{
  while (::fdatasync(descriptor) != 0)
    if (errno == EINVAL || errno == ENOSYS || errno == ENOTSUP)
      return 0; // pipes and some file systems have nothing to sync
    else if (errno != EINTR)
      return errno;
  return 0;
}

/// @return why not all of the content reached the descriptor and its disk; empty if it did
QString fill(int descriptor, const FileContent& content)
{
  DescriptorDevice device(descriptor);
  if (!content(device) || device.error() != 0)
    return reasonOf(device.error());
  const int error = sync(descriptor);
  return error != 0 ? reasonOf(error) : QString();
}

/// The file at the end of a chain of links, which need not exist.
QString endOfLinks(const QString& path)
{
  QString end = path;
  for (int links = 0; links < mostLinks && QFileInfo(end).isSymLink(); ++links)
    end = QFileInfo(end).symLinkTarget();
  return end;
}

bool takesNewFiles(const QString& folder)
{
  return ::faccessat(AT_FDCWD, QFile::encodeName(folder).constData(), W_OK, AT_EACCESS) == 0;
}

bool copy(QIODevice& from, QIODevice& to)
{
  constexpr qint64 most = 1 << 20; // bytes at once
  for (QByteArray part = from.read(most); !part.isEmpty(); part = from.read(most))
    if (to.write(part) != part.size())
      return false;
  return from.atEnd();
}

/// Writes over a file in a folder that takes no new ones. All of the content is made elsewhere
/// before the old one is touched: it may fail halfway, or be given up.
QString overwriteFile(const QString& path, const FileContent& content)
{
  QFile file(path);
  // To append is the way not to truncate at once.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
    return file.errorString();
  QTemporaryFile made;
  if (!made.open())
    return made.errorString();
  const QString reason = fill(made.handle(), content);
  if (!reason.isEmpty())
    return reason;
  if (!made.seek(0) || !file.resize(0))
    return made.error() != QFileDevice::NoError ? made.errorString() : file.errorString();
  return fill(file.handle(), [&made](QIODevice& device) { return copy(made, device); });
}

QString replaceFile(const QString& path, const FileContent& content)
{
  QSaveFile file(path);
  const bool isOpen = file.open(QIODevice::WriteOnly);
  const QFileInfo old(path);
  if (!isOpen && old.exists() && !takesNewFiles(old.path()))
    return overwriteFile(path, content);
  if (!isOpen)
    return file.errorString();
  // Committing would take no notice of a disk that fails to keep the bytes.
  const QString reason = fill(file.handle(), content);
  if (!reason.isEmpty())
    return reason;
  return file.commit() ? QString() : file.errorString();
}

/// Opens a device or a pipe. A pipe without a reader, or whose reader stops reading, would hold the
/// program for ever.
int openInto(const QByteArray& name, bool pipe)
{
  const auto end = std::chrono::steady_clock::now() + patience;
  for (;;)
  {
    const int descriptor = ::open(name.constData(), O_WRONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor >= 0 && !pipe)
      ::fcntl(descriptor, F_SETFL, 0);
    const bool waits = descriptor < 0 && (errno == EINTR || (pipe && errno == ENXIO));
    if (!waits || std::chrono::steady_clock::now() > end)
      return descriptor;
    std::this_thread::sleep_for(betweenTries);
  }
}

QString writeInto(const QByteArray& name, bool pipe, const FileContent& content)
{
  const PipeSignalBlock block;
  const int descriptor = openInto(name, pipe);
  if (descriptor < 0 && pipe && errno == ENXIO)
    return QCoreApplication::translate("FileWriter", "no program reads from this pipe");
  if (descriptor < 0)
    return reasonOf(errno);
  QString reason = fill(descriptor, content);
  if (::close(descriptor) != 0 && reason.isEmpty())
    reason = reasonOf(errno);
  return reason;
}

} // namespace

QString writeFile(const QString& path, const FileContent& content)
{
  struct stat old = {};
  const QByteArray name = QFile::encodeName(path);
  const bool exists = ::stat(name.constData(), &old) == 0;
  if (!exists && errno == ELOOP)
    return reasonOf(ELOOP);
  if (exists && !S_ISREG(old.st_mode))
    return writeInto(name, S_ISFIFO(old.st_mode), content);
  return replaceFile(endOfLinks(path), content);
}

QString writeFile(const QString& path, const char* bytes, qint64 size)
{
  return writeFile(path,
                   [bytes, size](QIODevice& device) { return device.write(bytes, size) == size; });
}

} // namespace Talmesh
