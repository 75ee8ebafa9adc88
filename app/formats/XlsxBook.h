#ifndef XlsxBook_h
#define XlsxBook_h

#include "app/formats/XlsxDates.h"
#include "app/formats/ZipArchive.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Talmesh::app
{

struct XlsxSheet
{
  std::string name;
  /// Its number in the archive.
  std::size_t member = 0;
  bool isHidden = false;
};

/// What the sheets of an Excel workbook have in common.
class XlsxBook
{
public:
  /// There is at least one sheet.
  static Result<XlsxBook> open(const QString& path);

  const std::vector<XlsxSheet>& sheets() const { return listed; }
  std::vector<std::string> sheetNames() const;
  Result<std::unique_ptr<QIODevice>> open(const XlsxSheet& sheet) const;
  std::uint64_t sizeOf(const XlsxSheet& sheet) const;

  /// The text that a cell names by its number; empty when there is none.
  std::string sharedText(const std::string& number) const;
  XlsxShown shownByStyle(int style) const;
  bool countsFrom1904() const { return from1904; }

private:
  std::string readSheets();
  std::string readTexts();
  std::string readStyles();
  std::vector<std::pair<std::string, std::string>> readTargets() const;

  std::shared_ptr<ZipArchive> archive;
  std::vector<XlsxSheet> listed;
  std::vector<std::string> texts;
  std::vector<XlsxShown> styles;
  bool from1904 = false;
};

} // namespace Talmesh::app

#endif
