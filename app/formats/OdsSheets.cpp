#include "app/formats/OdsSheets.h"

#include "app/formats/PartNames.h"
#include "app/formats/SheetText.h"
#include "app/formats/ZipArchive.h"
#include "app/import/TranslatedText.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

using Content = Result<FileContent>;

constexpr std::size_t mostRepeats = 1 << 20;
constexpr std::size_t rowsBetweenReports = 200;

/// The value of an attribute, whatever its prefix.
QString attributeOf(const QXmlStreamReader& xml, const char* name)
{
  for (const QXmlStreamAttribute& attribute : xml.attributes())
    if (attribute.name() == QLatin1String(name))
      return attribute.value().toString();
  return {};
}

std::size_t repeatsOf(const QXmlStreamReader& xml, const char* name)
{
  bool read = false;
  const qulonglong number = attributeOf(xml, name).toULongLong(&read);
  return read ? std::min<std::size_t>(std::max<std::size_t>(number, 1), mostRepeats) : 1;
}

/// "PT01H30M05.5S" as "01:30:05.5".
QString clockTime(const QString& duration)
{
  static const QRegularExpression parts(QStringLiteral("^PT(\\d+)H(\\d+)M(\\d+(?:[.,]\\d+)?)S$"));
  const QRegularExpressionMatch match = parts.match(duration);
  return match.hasMatch() ? match.captured(1) + QLatin1Char(':') + match.captured(2) +
                                QLatin1Char(':') + match.captured(3)
                          : duration;
}

class OdsReader
{
public:
  OdsReader(QIODevice& device, double bytes_, const std::string& wanted_,
            const ImportProgress& progress_)
      : xml(&device)
      , bytes(bytes_)
      , wanted(QString::fromStdString(wanted_))
      , progress(progress_)
  {
  }

  Content read()
  {
    std::string error;
    while (!xml.atEnd() && error.empty() && !cancelled)
      if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("table"))
        error = readTable();
    if (cancelled)
      return Content::cancelled();
    if (error.empty() && xml.hasError())
      error = damagedWorkbook();
    if (!error.empty())
      return Content::failed(error);
    return found ? contentOf() : Content::failed(whyNotFound());
  }

private:
  std::string readTable()
  {
    const QString name = attributeOf(xml, "name");
    names.push_back(name.toStdString());
    const bool fits = wanted.isEmpty() || name.compare(wanted, Qt::CaseInsensitive) == 0;
    if (found || !fits)
    {
      xml.skipCurrentElement();
      return {};
    }
    SheetText sheet;
    row = 0;
    for (int depth = 1; depth > 0 && !xml.atEnd() && !cancelled && !sheet.isTooLarge();)
    {
      xml.readNext();
      if (xml.isEndElement())
        --depth;
      else if (xml.isStartElement() && xml.name() == QLatin1String("table-row"))
        readRow(sheet);
      else if (xml.isStartElement())
        ++depth;
    }
    if (sheet.isTooLarge())
      return sheetTooLarge();
    if (sheet.isTable() || !wanted.isEmpty())
    {
      text = sheet.take();
      shown = names.back();
      found = true;
    }
    return {};
  }

  void readRow(SheetText& sheet)
  {
    const std::size_t repeats = repeatsOf(xml, "number-rows-repeated");
    std::size_t column = 0;
    bool filled = false;
    while (xml.readNextStartElement() && !sheet.isTooLarge())
    {
      if (xml.name() != QLatin1String("table-cell") &&
          xml.name() != QLatin1String("covered-table-cell"))
      {
        xml.skipCurrentElement();
        continue;
      }
      const std::size_t times = repeatsOf(xml, "number-columns-repeated");
      bool isNumber = false;
      const std::string cell = readCell(isNumber);
      for (std::size_t i = 0; i < times && !cell.empty() && !sheet.isTooLarge(); ++i)
        sheet.add(row, column + i, cell, isNumber);
      filled = filled || !cell.empty();
      column += times;
    }
    if (filled && repeats > 1)
      sheet.repeatRow(repeats - 1);
    row += repeats;
    if (++rowsRead % rowsBetweenReports == 0)
      cancelled =
          progress && !progress(std::min(1.0, static_cast<double>(xml.characterOffset()) / bytes));
  }

  std::string readCell(bool& isNumber)
  {
    const QString type = attributeOf(xml, "value-type");
    const QString value = attributeOf(xml, "value");
    const QString date = attributeOf(xml, "date-value");
    const QString time = attributeOf(xml, "time-value");
    const QString flag = attributeOf(xml, "boolean-value");
    const QString words = readWords();
    isNumber = !value.isEmpty() &&
               (type == QLatin1String("float") || type == QLatin1String("percentage") ||
                type == QLatin1String("currency"));
    const QString cell = isNumber          ? value
                         : !date.isEmpty() ? date
                         : !time.isEmpty() ? clockTime(time)
                         : !flag.isEmpty() ? flag.toUpper()
                                           : words;
    return cell.toStdString();
  }

  /// The paragraphs of a cell, without comments that hang on it.
  QString readWords()
  {
    QString words;
    for (int depth = 1; depth > 0 && !xml.atEnd();)
    {
      xml.readNext();
      if (xml.isEndElement())
        --depth;
      else if (xml.isCharacters() && depth > 1)
        words += xml.text();
      else if (!xml.isStartElement())
        continue;
      else if (xml.name() == QLatin1String("annotation"))
        xml.skipCurrentElement();
      else
      {
        ++depth;
        const bool parts = xml.name() == QLatin1String("p") && !words.isEmpty();
        if (parts || xml.name() == QLatin1String("s"))
          words += QLatin1Char(' ');
      }
    }
    return words;
  }

  Content contentOf()
  {
    FileContent content;
    content.text = std::move(text);
    const std::string note = noteOnSheets(shown, names);
    if (!note.empty())
      content.notes.push_back(note);
    return content;
  }

  std::string whyNotFound() const
  {
    if (names.empty())
      return damagedWorkbook();
    return wanted.isEmpty() ? noSheetIsTable(names)
                            : chosenPart(names, wanted.toStdString()).error();
  }

  QXmlStreamReader xml;
  double bytes;
  QString wanted;
  const ImportProgress& progress;
  std::vector<std::string> names;
  std::string text;
  std::string shown;
  std::size_t row = 0;
  std::size_t rowsRead = 0;
  bool found = false;
  bool cancelled = false;
};

} // namespace

bool isOds(const FileStart& start)
{
  const auto has = [&](const char* name)
  { return std::find(start.members.begin(), start.members.end(), name) != start.members.end(); };
  return has("mimetype") && has("content.xml") &&
         start.bytes.find("opendocument.spreadsheet") != std::string::npos;
}

Result<FileContent> readOds(const QString& path, const FormatRequest& request,
                            const ImportProgress& progress)
{
  const Result<std::shared_ptr<ZipArchive>> archive = ZipArchive::open(path);
  if (!archive.hasValue())
    return Content::without(archive);
  const std::size_t member = archive.value()->find("content.xml");
  const Result<std::unique_ptr<QIODevice>> device = archive.value()->read(member);
  if (!device.hasValue())
    return Content::without(device);
  const auto bytes = static_cast<double>(archive.value()->members()[member].bytes + 1);
  return OdsReader(*device.value(), bytes, request.part, progress).read();
}

} // namespace Talmesh::app
