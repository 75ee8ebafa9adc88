#include "app/session/TableFile.h"

#include "app/formats/FileFormats.h"
#include "app/formats/PlainText.h"

#include <utility>

namespace Talmesh::app
{

Result<FileContent> readTableFile(const QString& path, const ImportRequest& request,
                                  const ImportProgress& progress)
{
  if (const FileFormat* format = formatOf(path))
    return readFormat(*format, path, {request.sheet}, progress);
  Result<std::string> text = readPlainText(path, progress);
  if (!text.hasValue())
    return Result<FileContent>::without(text);
  FileContent content;
  content.text = std::move(text.value());
  return content;
}

} // namespace Talmesh::app
