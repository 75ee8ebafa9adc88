#include "app/formats/XlsxSheets.h"

#include "app/formats/PartNames.h"
#include "app/formats/SheetText.h"
#include "app/formats/XlsxBook.h"
#include "app/formats/XlsxDates.h"
#include "app/import/TranslatedText.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

using Content = Result<FileContent>;

constexpr std::size_t mostRows = 1048576;
constexpr std::size_t mostColumnsOfSheet = 16384;
constexpr std::size_t rowsBetweenReports = 200;

struct CellPlace
{
  std::size_t row = 0;
  std::size_t column = 0;
};

/// Reads "BC12"; leaves what is missing as it is.
void readPlace(const QStringRef& name, CellPlace& place)
{
  std::size_t column = 0;
  std::size_t row = 0;
  for (const QChar letter : name)
  {
    const ushort c = letter.toUpper().unicode();
    if (c >= 'A' && c <= 'Z')
      column = std::min(column * 26 + (c - 'A' + 1U), mostColumnsOfSheet);
    else if (c >= '0' && c <= '9')
      row = std::min(row * 10 + (c - '0'), mostRows);
  }
  place.column = column > 0 ? column - 1 : place.column;
  place.row = row > 0 ? row - 1 : place.row;
}

class SheetReader
{
public:
  SheetReader(QIODevice& device, const XlsxBook& book_, double bytes_,
              const ImportProgress& progress_)
      : xml(&device)
      , book(book_)
      , bytes(bytes_)
      , progress(progress_)
  {
  }

  /// @return why the sheet cannot be read; empty on success and when it is cancelled
  std::string read(SheetText& text)
  {
    while (!xml.atEnd() && !cancelled && !text.isTooLarge())
    {
      xml.readNext();
      if (!xml.isStartElement())
        continue;
      if (xml.name() == QLatin1String("row"))
        startRow();
      else if (xml.name() == QLatin1String("c"))
        readCell(text);
    }
    if (text.isTooLarge())
      return sheetTooLarge();
    return xml.hasError() && !cancelled ? damagedWorkbook() : std::string();
  }

  bool isCancelled() const { return cancelled; }

private:
  void startRow()
  {
    place = {rows, 0};
    const QXmlStreamAttributes attributes = xml.attributes();
    readPlace(attributes.value(QLatin1String("r")), place);
    place.column = 0;
    rows = std::max(rows + 1, place.row + 1);
    if (rows % rowsBetweenReports == 0)
      cancelled =
          progress && !progress(std::min(1.0, static_cast<double>(xml.characterOffset()) / bytes));
  }

  void readCell(SheetText& text)
  {
    const QXmlStreamAttributes attributes = xml.attributes();
    readPlace(attributes.value(QLatin1String("r")), place);
    const QString type = attributes.value(QLatin1String("t")).toString();
    const int style = attributes.value(QLatin1String("s")).toInt();
    std::string value;
    while (xml.readNext() != QXmlStreamReader::EndElement || xml.name() != QLatin1String("c"))
    {
      if (xml.atEnd() || xml.hasError())
        return;
      if (!xml.isStartElement())
        continue;
      if (xml.name() == QLatin1String("v") || xml.name() == QLatin1String("t"))
        value += xml.readElementText(QXmlStreamReader::IncludeChildElements).toStdString();
      else if (xml.name() == QLatin1String("rPh") || xml.name() == QLatin1String("f"))
        xml.skipCurrentElement();
    }
    addCell(text, type, style, value);
    ++place.column;
  }

  void addCell(SheetText& text, const QString& type, int style, const std::string& value)
  {
    const bool number = type.isEmpty() || type == QLatin1String("n");
    std::string shown = value;
    if (type == QLatin1String("s"))
      shown = book.sharedText(value);
    else if (type == QLatin1String("b"))
      shown = value == "1" ? "TRUE" : "FALSE";
    else if (number && book.shownByStyle(style) != XlsxShown::Number)
      shown = dateText(value, book.shownByStyle(style), book.countsFrom1904());
    text.add(place.row, place.column, shown, number && shown == value && !value.empty());
  }

  QXmlStreamReader xml;
  const XlsxBook& book;
  double bytes;
  const ImportProgress& progress;
  CellPlace place;
  std::size_t rows = 0;
  bool cancelled = false;
};

class WorkbookReader
{
public:
  WorkbookReader(const XlsxBook& book_, const ImportProgress& progress_)
      : book(book_)
      , progress(progress_)
  {
  }

  Content readSheet(const std::string& name)
  {
    const XlsxSheet& sheet =
        *std::find_if(book.sheets().begin(), book.sheets().end(),
                      [&](const XlsxSheet& candidate) { return candidate.name == name; });
    SheetText text;
    const std::string error = read(sheet, text);
    return cancelled       ? Content::cancelled()
           : error.empty() ? contentOf(text, sheet.name)
                           : Content::failed(error);
  }

  Content readFirstTable()
  {
    std::string firstError;
    for (const XlsxSheet& sheet : book.sheets())
    {
      if (sheet.isHidden)
        continue;
      SheetText text;
      const std::string error = read(sheet, text);
      if (cancelled)
        return Content::cancelled();
      if (error.empty() && text.isTable())
        return contentOf(text, sheet.name);
      firstError = firstError.empty() ? error : firstError;
    }
    return Content::failed(firstError.empty() ? noSheetIsTable(book.sheetNames()) : firstError);
  }

private:
  std::string read(const XlsxSheet& sheet, SheetText& text)
  {
    const Result<std::unique_ptr<QIODevice>> device = book.open(sheet);
    if (!device.hasValue())
      return device.error();
    SheetReader reader(*device.value(), book, static_cast<double>(book.sizeOf(sheet)), progress);
    const std::string error = reader.read(text);
    cancelled = reader.isCancelled();
    return error;
  }

  Content contentOf(SheetText& text, const std::string& name) const
  {
    FileContent content;
    content.text = text.take();
    const std::string note = noteOnSheets(name, book.sheetNames());
    if (!note.empty())
      content.notes.push_back(note);
    return content;
  }

  const XlsxBook& book;
  const ImportProgress& progress;
  bool cancelled = false;
};

} // namespace

bool isXlsx(const FileStart& start)
{
  return std::find(start.members.begin(), start.members.end(), "xl/workbook.xml") !=
         start.members.end();
}

Result<FileContent> readXlsx(const QString& path, const FormatRequest& request,
                             const ImportProgress& progress)
{
  const Result<XlsxBook> book = XlsxBook::open(path);
  if (!book.hasValue())
    return Content::without(book);
  WorkbookReader reader(book.value(), progress);
  if (request.part.empty())
    return reader.readFirstTable();
  const Result<std::string> name = chosenPart(book.value().sheetNames(), request.part);
  return name.hasValue() ? reader.readSheet(name.value()) : Content::without(name);
}

} // namespace Talmesh::app
