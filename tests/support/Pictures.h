#ifndef Pictures_h
#define Pictures_h

#include <QByteArray>
#include <QColor>
#include <QFile>
#include <QImage>
#include <QString>

/// Number of pixels that are not white.
inline int paintedPixels(const QImage& picture)
{
  int painted = 0;
  for (int y = 0; y < picture.height(); ++y)
  {
    for (int x = 0; x < picture.width(); ++x)
    {
      if (picture.pixelColor(x, y) != QColor(Qt::white))
        ++painted;
    }
  }
  return painted;
}

/// The bytes of a file; empty if it cannot be read.
inline QByteArray contentOf(const QString& path)
{
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

#endif
