#include "plot/DumpStream.h"

#include <QIODevice>

#include <algorithm>

namespace Talmesh::plot
{

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

} // namespace Talmesh::plot
