#include "app/formats/ZippedText.h"

#include "app/formats/PartNames.h"
#include "app/formats/ZipArchive.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

constexpr qint64 chunk = 256 << 10;

/// What macOS and file managers add is nobody's table.
bool isFileOfUser(const std::string& name)
{
  return !name.empty() && name.back() != '/' && name.rfind("__MACOSX/", 0) != 0 &&
         name.find(".DS_Store") == std::string::npos;
}

} // namespace

bool isZip(const FileStart& start)
{
  const std::string mark = start.bytes.substr(0, 4);
  return mark == "PK\x03\x04" || mark == "PK\x05\x06";
}

Result<FileContent> readZippedText(const QString& path, const FormatRequest& request,
                                   const ImportProgress& progress)
{
  using Content = Result<FileContent>;
  const Result<std::shared_ptr<ZipArchive>> opened = ZipArchive::open(path);
  if (!opened.hasValue())
    return Content::without(opened);
  const ZipArchive& archive = *opened.value();
  std::vector<std::string> names;
  for (const ZipMember& member : archive.members())
    if (isFileOfUser(member.name))
      names.push_back(member.name);
  if (names.empty())
    return Content::failed(translated("ZippedText", "the ZIP file is empty"));
  if (request.part.empty() && names.size() > 1)
    return Content::failed(
        withValues(translated("ZippedText",
                              "it holds several files (%1); name one with --sheet, or unpack it"),
                   {listOfParts(names)}));
  const Result<std::string> name = chosenPart(names, request.part);
  if (!name.hasValue())
    return Content::without(name);
  const std::size_t member = archive.find(name.value());
  const Result<std::unique_ptr<QIODevice>> device = archive.read(member);
  if (!device.hasValue())
    return Content::without(device);

  const auto size =
      static_cast<double>(std::max<std::uint64_t>(archive.members()[member].bytes, 1));
  FileContent content;
  std::string& text = content.text;
  while (!device.value()->atEnd())
  {
    const QByteArray part = device.value()->read(chunk);
    if (part.isEmpty())
      return Content::failed(device.value()->errorString().toStdString());
    text.append(part.constData(), static_cast<std::size_t>(part.size()));
    if (part.contains('\0'))
      break;
    if (progress && !progress(static_cast<double>(text.size()) / size))
      return Content::cancelled();
  }
  return content;
}

} // namespace Talmesh::app
