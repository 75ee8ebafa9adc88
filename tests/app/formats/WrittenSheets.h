#ifndef WrittenSheets_h
#define WrittenSheets_h

#include <string>
#include <utility>
#include <vector>

/// The members of an Excel workbook whose sheets have these rows, as XML. The shared texts are
/// "time" and "B"; the first style is a number, the second a date, the third one with a time.
inline std::vector<std::pair<std::string, std::string>>
xlsxMembers(const std::vector<std::pair<std::string, std::string>>& sheets)
{
  const std::string main = "xmlns='http://schemas.openxmlformats.org/spreadsheetml/2006/main'";
  std::string list;
  std::string targets;
  std::vector<std::pair<std::string, std::string>> members;
  for (std::size_t i = 0; i < sheets.size(); ++i)
  {
    const std::string number = std::to_string(i + 1);
    list +=
        "<sheet name='" + sheets[i].first + "' sheetId='" + number + "' r:id='rId" + number + "'/>";
    targets += "<Relationship Id='rId" + number + "' Target='worksheets/sheet" + number + ".xml'/>";
    members.emplace_back("xl/worksheets/sheet" + number + ".xml",
                         "<worksheet " + main + "><sheetData>" + sheets[i].second +
                             "</sheetData></worksheet>");
  }
  members.emplace_back("[Content_Types].xml", "<Types/>");
  members.emplace_back("xl/workbook.xml",
                       "<workbook " + main +
                           " xmlns:r='http://schemas.openxmlformats.org/officeDocument/2006/"
                           "relationships'><sheets>" +
                           list + "</sheets></workbook>");
  members.emplace_back("xl/_rels/workbook.xml.rels",
                       "<Relationships>" + targets + "</Relationships>");
  members.emplace_back("xl/sharedStrings.xml",
                       "<sst " + main +
                           "><si><r><t>ti</t></r><r><t>me</t></r><rPh><t>x</t></rPh>"
                           "</si><si><t>B</t></si></sst>");
  members.emplace_back("xl/styles.xml",
                       "<styleSheet " + main +
                           "><numFmts><numFmt numFmtId='164' formatCode='yyyy-mm-dd hh:mm'/>"
                           "</numFmts><cellStyleXfs><xf numFmtId='22'/></cellStyleXfs><cellXfs>"
                           "<xf numFmtId='0'/><xf numFmtId='14'/><xf numFmtId='164'/></cellXfs>"
                           "</styleSheet>");
  return members;
}

/// The members of an OpenDocument spreadsheet of these tables, as XML.
inline std::vector<std::pair<std::string, std::string>> odsMembers(const std::string& tables)
{
  return {{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"},
          {"content.xml",
           "<office:document-content xmlns:office='o' xmlns:table='t' xmlns:text='x'><office:body>"
           "<office:spreadsheet>" +
               tables + "</office:spreadsheet></office:body></office:document-content>"}};
}

#endif
