#include "app/formats/GzipText.h"

#include "app/formats/UnpackLimit.h"
#include "app/import/TranslatedText.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>
#include <zlib.h>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t chunk = 256 << 10;
constexpr std::size_t bytesBetweenChecks = 16 << 20;
/// zlib's for gzip alone, with the largest window.
constexpr int gzipWindow = 15 + 16;

std::string damaged()
{
  return translated("GzipText", "the compressed file is damaged; copy it again");
}

class GzipReader
{
public:
  GzipReader(const QString& path, const ImportProgress& progress_)
      : file(path)
      , progress(progress_)
      , limit(static_cast<std::uint64_t>(file.size()))
  {
    ready = file.open(QIODevice::ReadOnly) && inflateInit2(&stream, gzipWindow) == Z_OK;
  }

  GzipReader(const GzipReader&) = delete;
  GzipReader& operator=(const GzipReader&) = delete;
  ~GzipReader()
  {
    if (ready)
      inflateEnd(&stream);
  }

  Result<FileContent> read()
  {
    if (!ready)
      return Result<FileContent>::failed(damaged());
    reserveText();
    while (error.empty() && !cancelled && !binary && !done)
      readPart();
    if (cancelled)
      return Result<FileContent>::cancelled();
    if (error.empty())
      error = objectionToContent();
    if (!error.empty())
      return Result<FileContent>::failed(error);
    FileContent content;
    content.text = std::move(text);
    return content;
  }

private:
  /// The last four bytes of the file tell the size of its last part, or lie.
  void reserveText()
  {
    std::array<unsigned char, 4> end{};
    const auto most = static_cast<std::size_t>(file.size()) * UnpackLimit::largestRatio;
    if (file.size() < 20 || !file.seek(file.size() - 4) ||
        file.read(reinterpret_cast<char*>(end.data()), 4) != 4)
      return;
    const std::size_t told = end[0] | std::size_t{end[1]} << 8U | std::size_t{end[2]} << 16U |
                             std::size_t{end[3]} << 24U;
    text.reserve(std::min(told + 1, most));
    file.seek(0);
  }

  std::string objectionToContent() const
  {
    const FileFormat* inside = formatOf(FileStart{text.substr(0, 16), {}});
    if (!inside)
      return {};
    return withValues(
        translated("GzipText", "%1 is compressed in it; unpack it with gunzip, and open that"),
        {inside->name});
  }

  void readPart()
  {
    if (stream.avail_in == 0 && !refill())
      return;
    stream.next_out = reinterpret_cast<Bytef*>(output.data());
    stream.avail_out = static_cast<uInt>(output.size());
    const int state = inflate(&stream, Z_NO_FLUSH);
    const std::size_t got = output.size() - stream.avail_out;
    binary = std::find(output.data(), output.data() + got, '\0') != output.data() + got;
    text.append(output.data(), got);
    if (text.size() >= checked)
    {
      checked = text.size() + bytesBetweenChecks;
      error = limit.objection(checked);
    }
    if (state == Z_STREAM_END)
      startNext();
    else if (state != Z_OK && state != Z_BUF_ERROR)
      error = damaged();
    if (progress && !progress(static_cast<double>(file.pos()) /
                              static_cast<double>(std::max<qint64>(file.size(), 1))))
      cancelled = true;
  }

  /// @return whether there are more bytes
  bool refill()
  {
    const qint64 got = file.read(input.data(), static_cast<qint64>(input.size()));
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(std::max<qint64>(got, 0));
    if (got <= 0 && !betweenParts)
      error = translated("GzipText", "the compressed file is cut short; copy it again");
    done = got <= 0;
    skipPadding();
    return stream.avail_in > 0;
  }

  void startNext()
  {
    betweenParts = true;
    inflateReset(&stream);
    skipPadding();
  }

  /// Some writers fill the last block of a file up. What follows and is no further part is no
  /// concern of the one who wants to see the table.
  void skipPadding()
  {
    if (!betweenParts)
      return;
    for (; stream.avail_in > 0 && *stream.next_in == 0; ++stream.next_in)
      --stream.avail_in;
    betweenParts = stream.avail_in == 0;
    done = done || (!betweenParts && *stream.next_in != 0x1F);
  }

  QFile file;
  const ImportProgress& progress;
  UnpackLimit limit;
  z_stream stream{};
  std::array<char, chunk> input{};
  std::array<char, chunk> output{};
  std::string text;
  /// Up to which size the text has been allowed.
  std::size_t checked = 0;
  std::string error;
  bool ready = false;
  bool cancelled = false;
  /// Whether a zero byte was met.
  bool binary = false;
  /// Whether a part has ended and no other begun.
  bool betweenParts = false;
  bool done = false;
};

} // namespace

bool isGzip(const FileStart& start)
{
  return start.bytes.compare(0, 3, "\x1F\x8B\x08") == 0;
}

Result<FileContent> readGzipText(const QString& path, const FormatRequest& /*request*/,
                                 const ImportProgress& progress)
{
  const auto reader = std::make_unique<GzipReader>(path, progress);
  return reader->read();
}

} // namespace Talmesh::app
