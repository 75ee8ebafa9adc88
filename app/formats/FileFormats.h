#ifndef FileFormats_h
#define FileFormats_h

#include "app/formats/FileContent.h"
#include "app/import/ImportProgress.h"
#include "app/import/Result.h"

#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace Talmesh::app
{

/// By what a format is recognised.
struct FileStart
{
  /// The first bytes, up to 4096.
  std::string bytes;
  /// The names of what a ZIP file holds; empty for other files.
  std::vector<std::string> members;
};

/// A kind of file other than plain text.
struct FileFormat
{
  /// As messages call it, untranslated: "HDF5".
  const char* name;
  /// The usual endings of names, parted by blanks: "*.h5 *.hdf5". They tell users what can be
  /// opened; what a file is, its bytes say.
  const char* endings;
  bool (*recognises)(const FileStart& start);
  /// Null for a kind that cannot be read.
  Result<FileContent> (*read)(const QString& path, const FormatRequest& request,
                              const ImportProgress& progress);
  /// What to do with a file of a kind that cannot be read, translated; null for the others.
  std::string (*advice)() = nullptr;
};

/// The table of formats; the first row that recognises a file is its format.
const std::vector<FileFormat>& fileFormats();

/// The format of what starts so; null for text.
const FileFormat* formatOf(const FileStart& start);

/// The format of a readable file; null for text, and for what cannot be read.
const FileFormat* formatOf(const QString& path);

/// Reads a file of a format. Errors are one line of UTF-8, without the name of the file.
Result<FileContent> readFormat(const FileFormat& format, const QString& path,
                               const FormatRequest& request, const ImportProgress& progress);

/// The endings of all names that users give to what can be read, those of text in front.
QStringList readableEndings();

} // namespace Talmesh::app

#endif
