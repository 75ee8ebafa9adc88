#ifndef DumpStream_h
#define DumpStream_h

#include "export/ViewerExport.h"

#include <QDataStream>

class QIODevice;

namespace Talmesh::plot
{

/// The encoding of dumps on `stream`, whatever the default of the Qt in use.
void setDumpEncoding(QDataStream& stream);

/// Reads the values of a dump. From the first failed read on everything reads as zero.
class DumpStream
{
public:
  /// @param bytes read from the start; shared, so that the array may go
  explicit DumpStream(const QByteArray& bytes);

  qint32 readInt();
  /// A count; a negative one is 0.
  qint32 readCount();
  /// One byte, true unless it is 0.
  bool readFlag();
  double readDouble();
  /// A null string for none.
  QString readName();

  /// Makes everything from here on read as zero.
  void fail() { stream.setStatus(QDataStream::ReadPastEnd); }
  bool failed() const { return stream.status() != QDataStream::Ok; }
  /// Bytes not read yet; 0 when a read has failed.
  qint64 remaining() const;

private:
  template <typename Value>
  Value read();

  QDataStream stream;
};

/// Whether the next bytes of a device that can be sought in are laid out as `writeDump` does and
/// end where the last column does. Only counts, names and kinds are read, so it is known at once
/// however many values there are. Leaves the device somewhere in them.
TALMESHPLOT_VIEWER_EXPORT bool isWholeDump(QIODevice& device, qint64 size);

} // namespace Talmesh::plot

#endif
