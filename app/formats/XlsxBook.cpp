#include "app/formats/XlsxBook.h"

#include "app/formats/SheetText.h"
#include "app/import/TranslatedText.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <charconv>
#include <functional>
#include <map>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t mostSheets = 1000;

using ElementStart = std::function<void(QXmlStreamReader&)>;

/// Tells every element of a member that is not missing.
/// @return why it cannot be read; empty on success
std::string readElements(const ZipArchive& archive, const std::string& name,
                         const ElementStart& started)
{
  const std::size_t member = archive.find(name);
  if (member == archive.members().size())
    return {};
  const Result<std::unique_ptr<QIODevice>> device = archive.read(member);
  if (!device.hasValue())
    return device.error();
  QXmlStreamReader xml(device.value().get());
  while (!xml.atEnd())
    if (xml.readNext() == QXmlStreamReader::StartElement)
      started(xml);
  return xml.hasError() ? damagedWorkbook() : std::string();
}

/// The text of an attribute, whatever its prefix.
std::string attributeOf(const QXmlStreamReader& xml, const char* name)
{
  for (const QXmlStreamAttribute& attribute : xml.attributes())
    if (attribute.name() == QLatin1String(name))
      return attribute.value().toString().toStdString();
  return {};
}

/// Where a target of the workbook lies in the archive.
std::string memberOf(const std::string& target)
{
  if (!target.empty() && target.front() == '/')
    return target.substr(1);
  return "xl/" + target;
}

} // namespace

Result<XlsxBook> XlsxBook::open(const QString& path)
{
  const Result<std::shared_ptr<ZipArchive>> archive = ZipArchive::open(path);
  if (!archive.hasValue())
    return Result<XlsxBook>::without(archive);
  XlsxBook book;
  book.archive = archive.value();
  std::string error = book.readSheets();
  if (error.empty())
    error = book.readTexts();
  if (error.empty())
    error = book.readStyles();
  return error.empty() ? Result<XlsxBook>(std::move(book)) : Result<XlsxBook>::failed(error);
}

std::vector<std::pair<std::string, std::string>> XlsxBook::readTargets() const
{
  std::vector<std::pair<std::string, std::string>> targets;
  readElements(*archive, "xl/_rels/workbook.xml.rels",
               [&](QXmlStreamReader& xml)
               {
                 if (xml.name() == QLatin1String("Relationship"))
                   targets.emplace_back(attributeOf(xml, "Id"), attributeOf(xml, "Target"));
               });
  return targets;
}

std::string XlsxBook::readSheets()
{
  const std::vector<std::pair<std::string, std::string>> pairs = readTargets();
  const std::map<std::string, std::string> targets(pairs.begin(), pairs.end());
  const auto readSheet = [&](QXmlStreamReader& xml)
  {
    if (xml.name() == QLatin1String("workbookPr"))
      from1904 = attributeOf(xml, "date1904") == "1" || attributeOf(xml, "date1904") == "true";
    if (xml.name() != QLatin1String("sheet") || listed.size() == mostSheets)
      return;
    const QStringRef id = xml.attributes().value(
        QLatin1String("http://schemas.openxmlformats.org/officeDocument/2006/relationships"),
        QLatin1String("id"));
    auto target = targets.find(id.toString().toStdString());
    if (target == targets.end())
      target = targets.find(attributeOf(xml, "id"));
    XlsxSheet sheet;
    sheet.name = attributeOf(xml, "name");
    sheet.isHidden = attributeOf(xml, "state").find("idden") != std::string::npos;
    sheet.member = target == targets.end() ? archive->members().size()
                                           : archive->find(memberOf(target->second));
    if (sheet.member < archive->members().size())
      listed.push_back(sheet);
  };
  const std::string error = readElements(*archive, "xl/workbook.xml", readSheet);
  return listed.empty() && error.empty() ? damagedWorkbook() : error;
}

std::string XlsxBook::readTexts()
{
  return readElements(*archive, "xl/sharedStrings.xml",
                      [this](QXmlStreamReader& xml)
                      {
                        if (xml.name() == QLatin1String("si"))
                          texts.emplace_back();
                        // How a word is pronounced is no part of it.
                        else if (xml.name() == QLatin1String("rPh"))
                          xml.skipCurrentElement();
                        else if (xml.name() == QLatin1String("t") && !texts.empty())
                          texts.back() += xml.readElementText().toStdString();
                      });
}

std::string XlsxBook::readStyles()
{
  std::map<int, XlsxShown> own;
  bool ofCells = false;
  return readElements(
      *archive, "xl/styles.xml",
      [&](QXmlStreamReader& xml)
      {
        const QStringRef name = xml.name();
        const int format = QString::fromStdString(attributeOf(xml, "numFmtId")).toInt();
        if (name == QLatin1String("numFmt"))
          own[format] = shownByCode(attributeOf(xml, "formatCode"));
        else if (name == QLatin1String("cellXfs"))
          ofCells = true;
        else if (name == QLatin1String("cellStyles"))
          ofCells = false;
        else if (name == QLatin1String("xf") && ofCells)
          styles.push_back(own.count(format) > 0 ? own[format] : shownByFormat(format));
      });
}

std::vector<std::string> XlsxBook::sheetNames() const
{
  std::vector<std::string> names;
  for (const XlsxSheet& sheet : listed)
    names.push_back(sheet.name);
  return names;
}

Result<std::unique_ptr<QIODevice>> XlsxBook::open(const XlsxSheet& sheet) const
{
  return archive->read(sheet.member);
}

std::uint64_t XlsxBook::sizeOf(const XlsxSheet& sheet) const
{
  return std::max<std::uint64_t>(1, archive->members()[sheet.member].bytes);
}

std::string XlsxBook::sharedText(const std::string& number) const
{
  std::size_t place = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), place);
  return error == std::errc() && place < texts.size() ? texts[place] : std::string();
}

XlsxShown XlsxBook::shownByStyle(int style) const
{
  const auto place = static_cast<std::size_t>(style);
  return style >= 0 && place < styles.size() ? styles[place] : XlsxShown::Number;
}

} // namespace Talmesh::app
