#ifndef Devices_h
#define Devices_h

#include <QFile>
#include <QString>

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

/// Linux's numbers of devices that take everything and nothing.
constexpr unsigned memoryDevices = 1;
constexpr unsigned nullDevice = 3;
constexpr unsigned fullDevice = 7;

/// A device that a faulty writer may replace: the system's own, which is safe from users, or for
/// one who may do everything a node of its own in `folder`. Empty when there is none.
inline QString expendableDevice(const QString& folder, unsigned minor)
{
  const QString name = minor == nullDevice ? QStringLiteral("null") : QStringLiteral("full");
  if (access("/dev", W_OK) != 0)
    return QStringLiteral("/dev/") + name;
  const QString own = folder + QLatin1Char('/') + name;
  const QByteArray path = QFile::encodeName(own);
  const bool made = mknod(path.constData(), S_IFCHR | 0666U, makedev(memoryDevices, minor)) == 0;
  // It opens on no file system that is mounted without devices.
  return made && QFile(own).open(QIODevice::WriteOnly) ? own : QString();
}

#endif
