#ifndef FileNameCodec_h
#define FileNameCodec_h

#include <QString>

class QTextCodec;
class QUrl;

namespace Talmesh::app
{

/// While it lives, Qt finds and writes files of all names where names are meant to be UTF-8. Names
/// are bytes: one B that belongs to no character becomes the lone surrogate 0xDC00 + B and back. In
/// other locales every byte has a character anyway. Qt 6 lets nobody read names for it; with it,
/// files whose names are not UTF-8 are not found.
class FileNameCodec
{
public:
  static constexpr bool findsAllNames = QT_VERSION < QT_VERSION_CHECK(6, 0, 0);

  FileNameCodec();
  ~FileNameCodec();
  FileNameCodec(const FileNameCodec&) = delete;
  FileNameCodec& operator=(const FileNameCodec&) = delete;

private:
  [[maybe_unused]] QTextCodec* before = nullptr;
};

/// The file that a URL from another program names; empty when it names none here.
QString localFileOf(const QUrl& url);

} // namespace Talmesh::app

#endif
