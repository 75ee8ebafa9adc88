#include "plot/DumpStream.h"

#include <QIODevice>

#include <algorithm>

namespace Talmesh::plot
{

namespace
{

constexpr quint32 noName = 0xFFFFFFFF;
constexpr qint64 intSize = 4;
constexpr qint64 doubleSize = 8;

/// Goes through a dump, from one count or name to the next.
class DumpWalker
{
public:
  DumpWalker(QIODevice& source, qint64 size)
      : device(source)
      , in(&source)
      , end(source.pos() + size)
  {
    setDumpEncoding(in);
  }

  bool isWhole()
  {
    for (qint64 items = readCount(); items > 0 && sound; --items)
    {
      skip(intSize);
      skipName();
    }
    const qint64 columns = readCount();
    const qint64 rows = readCount();
    for (qint64 left = columns; left > 0 && sound; --left)
    {
      skipName();
      qint8 isDouble = 0;
      read(isDouble);
      skip(rows * (isDouble != 0 ? doubleSize : intSize));
    }
    return sound && device.pos() == end;
  }

private:
  template <typename Value>
  void read(Value& value)
  {
    in >> value;
    sound = sound && in.status() == QDataStream::Ok && device.pos() <= end;
  }

  /// A negative count is 0.
  qint64 readCount()
  {
    qint32 count = 0;
    read(count);
    return sound && count > 0 ? count : 0;
  }

  void skipName()
  {
    quint32 size = 0;
    read(size);
    sound = sound && (size == noName || size % 2 == 0);
    if (size != noName)
      skip(size);
  }

  void skip(qint64 bytes)
  {
    sound = sound && bytes <= end - device.pos() && device.seek(device.pos() + bytes);
  }

  QIODevice& device;
  QDataStream in;
  qint64 end;
  bool sound = true;
};

} // namespace

void setDumpEncoding(QDataStream& stream)
{
  stream.setVersion(QDataStream::Qt_4_8);
  stream.setByteOrder(QDataStream::BigEndian);
  stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
}

DumpStream::DumpStream(const QByteArray& bytes)
    : stream(bytes)
{
  setDumpEncoding(stream);
}

template <typename Value>
Value DumpStream::read()
{
  // Qt would go on behind a damaged value.
  Value value{};
  if (!failed())
    stream >> value;
  return failed() ? Value{} : value;
}

qint32 DumpStream::readInt()
{
  return read<qint32>();
}

qint32 DumpStream::readCount()
{
  return std::max(readInt(), qint32(0));
}

bool DumpStream::readFlag()
{
  return read<bool>();
}

double DumpStream::readDouble()
{
  return read<double>();
}

QString DumpStream::readName()
{
  return read<QString>();
}

qint64 DumpStream::remaining() const
{
  return failed() ? 0 : stream.device()->bytesAvailable();
}

bool isWholeDump(QIODevice& device, qint64 size)
{
  return DumpWalker(device, size).isWhole();
}

} // namespace Talmesh::plot
