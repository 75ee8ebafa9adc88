#include "app/session/FileNameCodec.h"

#include <QFile>
#include <QUrl>

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>

#include <algorithm>
#endif

namespace Talmesh::app
{

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

namespace
{

constexpr int mibOfUtf8 = 106;
/// Private; registered encodings have positive ones.
constexpr int mibOfFileNames = -7001;
constexpr uint escapes = 0xDC00; ///< a surrogate that stands for a byte is this plus the byte

unsigned char byteAt(const char* bytes, int at)
{
  return static_cast<unsigned char>(bytes[at]);
}

struct Decoded
{
  uint character = 0;
  int length = 0; ///< bytes; 0 when they begin no character
};

/// The first character. Only its shortest form counts, so that its bytes come back.
Decoded firstCharacter(const char* bytes, int size)
{
  const uint lead = byteAt(bytes, 0);
  if (lead < 0x80)
    return {lead, 1};
  const int length = lead < 0xC0 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF8 ? 4 : 0;
  if (length == 0 || length > size)
    return {};
  uint character = lead & (0x7FU >> static_cast<uint>(length));
  for (int i = 1; i < length; ++i)
  {
    if ((byteAt(bytes, i) & 0xC0U) != 0x80U)
      return {};
    character = character << 6U | (byteAt(bytes, i) & 0x3FU);
  }
  constexpr uint leastOfLength[] = {0x80, 0x800, 0x10000};
  if (character < leastOfLength[length - 2] || character > 0x10FFFF ||
      QChar::isSurrogate(character))
    return {};
  return {character, length};
}

QString decoded(const char* bytes, int size)
{
  QString text;
  text.reserve(size);
  for (int at = 0; at < size;)
  {
    const Decoded first = firstCharacter(bytes + at, size - at);
    if (first.length == 0)
      text += QChar(escapes + byteAt(bytes, at));
    else if (!QChar::requiresSurrogates(first.character))
      text += QChar(first.character);
    else
    {
      text += QChar(QChar::highSurrogate(first.character));
      text += QChar(QChar::lowSurrogate(first.character));
    }
    at += std::max(first.length, 1);
  }
  return text;
}

QByteArray encoded(const QChar* text, int size)
{
  QByteArray bytes;
  bytes.reserve(size);
  for (int at = 0; at < size; ++at)
  {
    const uint unit = text[at].unicode();
    const bool pair = text[at].isHighSurrogate() && at + 1 < size && text[at + 1].isLowSurrogate();
    if (unit < 0x80)
      bytes += static_cast<char>(unit);
    else if (!pair && unit >= escapes + 0x80 && unit <= escapes + 0xFF)
      bytes += static_cast<char>(unit - escapes);
    else
      bytes += QString(text + at, pair ? 2 : 1).toUtf8();
    at += pair ? 1 : 0;
  }
  return bytes;
}

class LosslessUtf8 : public QTextCodec
{
public:
  QByteArray name() const override { return QByteArrayLiteral("Talmesh-file-names"); }
  int mibEnum() const override { return mibOfFileNames; }

protected:
  QString convertToUnicode(const char* bytes, int size, ConverterState*) const override
  {
    return decoded(bytes, size);
  }
  QByteArray convertFromUnicode(const QChar* text, int size, ConverterState*) const override
  {
    return encoded(text, size);
  }
};

} // namespace

FileNameCodec::FileNameCodec()
    : before(QTextCodec::codecForLocale())
{
  if (before->mibEnum() == mibOfUtf8)
    // Qt deletes it.
    QTextCodec::setCodecForLocale(new LosslessUtf8);
}

FileNameCodec::~FileNameCodec()
{
  QTextCodec::setCodecForLocale(before);
}

#else

FileNameCodec::FileNameCodec() = default;
FileNameCodec::~FileNameCodec() = default;

#endif

QString localFileOf(const QUrl& url)
{
  if (!url.isLocalFile())
    return {};
  const QString path = url.toLocalFile();
  // Qt reads the bytes behind the percent signs as UTF-8 only.
  if (!path.contains(QChar(QChar::ReplacementCharacter)))
    return path;
  return QFile::decodeName(
      QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()));
}

} // namespace Talmesh::app
