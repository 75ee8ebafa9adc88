#include "app/formats/SheetText.h"
#include "app/formats/XlsxDates.h"

#include "formats/WrittenFiles.h"
#include "formats/WrittenSheets.h"

using namespace Talmesh::app;

namespace
{

class Sheets : public WrittenFiles
{
protected:
  QString writeXlsx(const std::vector<std::pair<std::string, std::string>>& sheets) const
  {
    return writeZip("a.xlsx", xlsxMembers(sheets));
  }
  QString writeOds(const std::string& tables) const
  {
    return writeZip("a.ods", odsMembers(tables));
  }
};

const std::string numbers = "<row r='1'><c r='A1' t='s'><v>0</v></c><c r='B1' t='inlineStr'><is>"
                            "<t>A</t></is></c></row><row r='2'><c r='A2'><v>0</v></c><c r='B2'>"
                            "<v>1.5</v></c></row><row r='4'><c r='B4'><v>2.5E-3</v></c></row>";

} // namespace

TEST_F(Sheets, OfExcelAreReadAsText)
{
  EXPECT_EQ(contentOf(writeXlsx({{"Data", numbers}})).text, "time\tA\n0\t1.5\n\n\t2.5E-3\n");
}

TEST_F(Sheets, MayHaveCellsWithoutTheirPlace)
{
  EXPECT_EQ(contentOf(writeXlsx({{"Data", "<row><c><v>1</v></c><c><v>2</v></c></row>"
                                          "<row><c><v>3</v></c></row>"}}))
                .text,
            "1\t2\n3\n");
}

TEST_F(Sheets, AreTheFirstThatIsATable)
{
  const std::string title = "<row r='1'><c r='A1' t='s'><v>0</v></c></row>";
  const QString file = writeXlsx({{"Notes", title}, {"Data", numbers}, {"More", numbers}});
  const FileContent content = contentOf(file);
  EXPECT_EQ(content.text.substr(0, 7), "time\tA\n");
  EXPECT_EQ(content.notes,
            (std::vector<std::string>{
                "The sheet \"Data\" is shown; --sheet chooses another one: \"Notes\", \"More\"."}));
  EXPECT_EQ(contentOf(file, "notes").text, "time\n");
  EXPECT_EQ(errorOf(file, "Plan"), "it holds no \"Plan\"; it holds \"Notes\", \"Data\", \"More\"");
  EXPECT_EQ(errorOf(writeXlsx({{"Notes", title}})),
            "none of its sheets (\"Notes\") is a table: a table has a row of names and rows of "
            "numbers below");
}

TEST_F(Sheets, TellDatesFromNumbersByTheirFormat)
{
  // Excel shows 45000 as 2023-03-15.
  EXPECT_EQ(contentOf(writeXlsx({{"Data", "<row><c s='1'><v>45000</v></c><c s='2'><v>45000.5</v>"
                                          "</c><c><v>45000</v></c></row><row><c t='b'><v>1</v></c>"
                                          "<c><v>1</v></c></row>"}}))
                .text,
            "2023-03-15\t2023-03-15T12:00:00\t45000\nTRUE\t1\n");
}

TEST_F(Sheets, OfOpenDocumentAreReadAsText)
{
  const std::string table =
      "<table:table table:name='Data'><table:table-column/><table:table-row>"
      "<table:table-cell office:value-type='string'><text:p>time</text:p></table:table-cell>"
      "<table:table-cell office:value-type='string'><text:p>A <text:span>[nM]</text:span></text:p>"
      "<office:annotation><text:p>said</text:p></office:annotation></table:table-cell>"
      "</table:table-row><table:table-row><table:table-cell office:value-type='date' "
      "office:date-value='2023-03-15'><text:p>15.03.23</text:p></table:table-cell>"
      "<table:table-cell office:value-type='float' office:value='1.5'><text:p>1,5</text:p>"
      "</table:table-cell></table:table-row><table:table-row table:number-rows-repeated='2'>"
      "<table:table-cell table:number-columns-repeated='2' office:value-type='float' "
      "office:value='7'><text:p>7</text:p></table:table-cell></table:table-row>"
      "<table:table-row table:number-rows-repeated='1048570'><table:table-cell "
      "table:number-columns-repeated='16384'/></table:table-row></table:table>";
  const std::string empty = "<table:table table:name='Plan'><table:table-row><table:table-cell/>"
                            "</table:table-row></table:table>";
  const FileContent content = contentOf(writeOds(empty + table));
  EXPECT_EQ(content.text, "time\tA [nM]\n2023-03-15\t1.5\n7\t7\n7\t7\n");
  EXPECT_EQ(content.notes,
            (std::vector<std::string>{
                "The sheet \"Data\" is shown; --sheet chooses another one: \"Plan\"."}));
  EXPECT_EQ(errorOf(writeOds(empty)),
            "none of its sheets (\"Plan\") is a table: a table has a row of names and rows of "
            "numbers below");
  EXPECT_EQ(errorOf(path("a.ods"), "Data"), "it holds no \"Data\"; it holds \"Plan\"");
}

TEST_F(Sheets, ThatAreMostlyBlankAreRefused)
{
  std::string far;
  for (int row = 1; row < 10000; ++row)
    far += "<row r='" + std::to_string(row) + "'><c r='XFD" + std::to_string(row) +
           "'><v>1</v></c></row>";
  EXPECT_EQ(errorOf(writeXlsx({{"Data", far}})), sheetTooLarge());
  const std::string cell = "<table:table-cell table:number-columns-repeated='1000000' "
                           "office:value-type='float' office:value='1.5'/>";
  EXPECT_EQ(errorOf(writeOds("<table:table table:name='Data'><table:table-row "
                             "table:number-rows-repeated='1000000'>" +
                             cell + "</table:table-row></table:table>")),
            sheetTooLarge());
}

TEST_F(Sheets, ThatAreDamagedAreRefused)
{
  EXPECT_EQ(errorOf(writeXlsx({{"Data", "<row><c><v>1</c></row>"}})), damagedWorkbook());
  EXPECT_EQ(errorOf(writeOds("<table:table table:name='Data'><table:table-row>")),
            damagedWorkbook());
}

TEST(XlsxDates, KnowTheCodesOfFormats)
{
  EXPECT_EQ(shownByCode("yyyy-mm-dd"), XlsxShown::Date);
  EXPECT_EQ(shownByCode("dd/mm/yy hh:mm"), XlsxShown::DateAndTime);
  EXPECT_EQ(shownByCode("[h]:mm:ss"), XlsxShown::Time);
  EXPECT_EQ(shownByCode("0.00 \"days\""), XlsxShown::Number);
  EXPECT_EQ(shownByCode("[Red]0.00;[Red]-0.00"), XlsxShown::Number);
  EXPECT_EQ(shownByCode("General"), XlsxShown::Number);
}

TEST(XlsxDates, CountFrom1900With29February)
{
  EXPECT_EQ(dateText("1", XlsxShown::Date, false), "1900-01-01");
  EXPECT_EQ(dateText("59", XlsxShown::Date, false), "1900-02-28");
  EXPECT_EQ(dateText("61", XlsxShown::Date, false), "1900-03-01");
  EXPECT_EQ(dateText("0", XlsxShown::Date, true), "1904-01-01");
  EXPECT_EQ(dateText("0.5", XlsxShown::Time, false), "12:00:00");
  EXPECT_EQ(dateText("1e300", XlsxShown::Date, false), "1e300");
}
