#ifndef FileNameCodec_h
#define FileNameCodec_h

#include <QTextCodec>

class QUrl;

namespace Talmesh::app
{

/// UTF-8 that loses nothing: a byte B that belongs to no character becomes the lone surrogate
/// 0xDC00 + B and back. Names of files are bytes, which need not be UTF-8.
class FileNameCodec : public QTextCodec
{
public:
  QByteArray name() const override;
  int mibEnum() const override;

protected:
  QString convertToUnicode(const char* bytes, int size, ConverterState* state) const override;
  QByteArray convertFromUnicode(const QChar* text, int size, ConverterState* state) const override;
};

/// Lets Qt find and write files of all names where names are meant to be UTF-8. In other locales
/// every byte has a character anyway.
void installFileNameCodec();

/// The file that a URL from another program names; empty when it names none here.
QString localFileOf(const QUrl& url);

} // namespace Talmesh::app

#endif
