#include <QFile>

#include "formats/WrittenFiles.h"
#include "formats/WrittenHdf5.h"
#include "formats/WrittenSheets.h"
#include "import/HostileFiles.h"

namespace
{

using Members = std::vector<std::pair<std::string, std::string>>;

std::function<void(const QString&)> zipped(const Members& members, double part = 1.0)
{
  return [members, part](const QString& path)
  {
    writeZipTo(path, members);
    ASSERT_TRUE(
        QFile::resize(path, static_cast<qint64>(part * static_cast<double>(QFile(path).size()))));
  };
}

/// Writes another number at a place that counts from where `mark` stands in the file.
std::function<void(const QString&)> patched(const Members& members, const std::string& mark,
                                            std::size_t offset, const std::string& with)
{
  return [=](const QString& path)
  {
    writeZipTo(path, members);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    std::string content = file.readAll().toStdString();
    for (std::size_t at = content.find(mark); at != std::string::npos;
         at = content.find(mark, at + 1))
      content.replace(at + offset, with.size(), with);
    file.seek(0);
    file.write(content.data(), static_cast<qint64>(content.size()));
  };
}

const std::string centralEntry = "PK\x01\x02";
/// Where an entry of the directory tells the size of a member.
constexpr std::size_t sizeInEntry = 24;

std::function<void(const QString&)> hdf5(const std::function<void(WrittenHdf5&)>& fill,
                                         double part = 1.0)
{
  return [=](const QString& path)
  {
    {
      WrittenHdf5 file(path);
      fill(file);
    }
    ASSERT_TRUE(
        QFile::resize(path, static_cast<qint64>(part * static_cast<double>(QFile(path).size()))));
  };
}

const std::string twoNumbers = bytesOf<double>({1.0, 2.0});

} // namespace

TEST(HostileArchives, OfGzipAreHarmless)
{
  const std::string packed = gzipped("time,A\n0,1\n1,2\n");
  const std::string lines = gzipped(std::string(std::size_t{16} << 20U, '\n'));
  std::string extra = packed;
  extra[3] = 0x1E;
  expectHarmless({
      {"a bomb", bytes(repeated(lines, 100)), "it unpacks to more than"},
      {"a cut", bytes(packed.substr(0, packed.size() / 2)), "cut short"},
      {"a file in a file in a file", bytes(gzipped(gzipped(packed))), "gzip is compressed in it"},
      {"a header that promises more", bytes(extra), "copy it again"},
      {"nothing but the mark", bytes("\x1F\x8B\x08"), "cut short"},
      {"nothing in it", bytes(gzipped("")), "empty"},
      {"zeros in it", bytes(gzipped(std::string(std::size_t{64} << 20U, '\0'))), "binary"},
  });
}

TEST(HostileArchives, OfZipAreHarmless)
{
  Members many;
  for (int i = 0; i < 3000; ++i)
    many.emplace_back("../../" + std::to_string(i) + ".csv", "a");
  const Members array = {{"a.npy", npy("'<f8'", "(2,)", twoNumbers)}};
  const std::string zeros(std::size_t{128} << 20U, '\0');
  expectHarmless({
      {"a cut", zipped(array, 0.5), "damaged or cut short"},
      {"nothing but the mark", bytes("PK\x03\x04"), "damaged or cut short"},
      {"nothing in it", bytes(std::string("PK\x05\x06") + std::string(18, '\0')), "empty"},
      {"three thousand files", zipped(many), "several files"},
      {"a member that says it is huge",
       patched(array, centralEntry, sizeInEntry, "\xFF\xFF\xFF\x7F"), ""},
      {"a member that says it is small",
       patched({{"a.csv", repeated("time,A\n0,1\n", 1000)}}, centralEntry, sizeInEntry,
               std::string("\x08\0\0\0", 4)),
       ""},
      {"an array that unpacks to zeros", zipped({{"a.npy", npy("'<f8'", "(16777216,)", zeros)}}),
       "it unpacks to more than"},
      {"an entity in an entity in an entity",
       zipped({{"[Content_Types].xml", ""},
               {"xl/workbook.xml", "<!DOCTYPE x [<!ENTITY a 'ha'>" +
                                       []
                                       {
                                         std::string nested;
                                         for (char c = 'b'; c < 'z'; ++c)
                                           nested += std::string("<!ENTITY ") + c + " '" +
                                                     repeated(std::string("&") +
                                                                  static_cast<char>(c - 1) + ';',
                                                              10) +
                                                     "'>";
                                         return nested;
                                       }() +
                                       "]><workbook>&y;</workbook>"}}),
       "damaged"},
      {"cells at the end of the world",
       zipped(xlsxMembers({{"A", "<row r='1048576'><c r='XFD1048576'><v>1</v></c></row><row "
                                 "r='99999999999'><c r='ZZZZZZ1'><v>2</v></c></row>"}})),
       ""},
      {"texts that are not there",
       zipped(xlsxMembers({{"A", "<row><c t='s'><v>99</v></c><c t='s'><v>-1</v></c></row>"}})),
       "none of its sheets"},
      {"elements in elements", zipped(xlsxMembers({{"A", repeated("<row><c>", 100000)}})),
       "damaged"},
      {"a row for the whole sheet",
       zipped(odsMembers("<table:table table:name='A'><table:table-row table:number-rows-repeated='"
                         "1048576'><table:table-cell table:number-columns-repeated='16384' "
                         "office:value-type='float' office:value='1'/></table:table-row>"
                         "</table:table>")),
       "mostly blank"},
  });
}

TEST(HostileArchives, OfArraysAreHarmless)
{
  expectHarmless({
      {"more values than there are", bytes(npy("'<f8'", "(3,)", twoNumbers)), "cut short"},
      {"more values than can be counted",
       bytes(npy("'<f8'", "(4294967296, 4294967296, 4294967296)", twoNumbers)), "cut short"},
      {"no values", bytes(npy("'<f8'", "(0, 5)", "")), "no table"},
      {"values of no size", bytes(npy("'<U0'", "(99999999,)", "")), "damaged"},
      {"brackets in brackets", bytes(npy(std::string(60000, '['), "(2,)", twoNumbers)), "damaged"},
      {"a header that does not end",
       bytes(std::string("\x93NUMPY\x02\0\xFF\xFF\xFF\xFF", 12) + "{'descr'"), "damaged"},
      {"a program", bytes(npy("'|O'", "(1,)", "cos\nsystem\n(S'true'\ntR.")), "Python objects"},
      {"twenty thousand fields",
       bytes(npy('[' + repeated("('a', '<f8', (9999,)), ", 9999) + ']', "(1,)", twoNumbers)),
       "damaged"},
  });
}

TEST(HostileArchives, OfHdf5AreHarmless)
{
  expectHarmless({
      {"groups that hold each other",
       hdf5(
           [](WrittenHdf5& file)
           {
             file.group("/a/b");
             H5Lcreate_hard(file.file(), "/a", file.file(), "/a/b/c", H5P_DEFAULT, H5P_DEFAULT);
           }),
       "hold each other"},
      {"links to itself and to other files",
       hdf5(
           [](WrittenHdf5& file)
           {
             H5Lcreate_soft("/x", file.file(), "/x", H5P_DEFAULT, H5P_DEFAULT);
             H5Lcreate_external("/etc/passwd", "/", file.file(), "/y", H5P_DEFAULT, H5P_DEFAULT);
           }),
       "no data set"},
      {"a cut",
       hdf5([](WrittenHdf5& file) { file.numbers("/a", {1000}, std::vector<double>(1000)); }, 0.7),
       "damaged"},
      {"nothing but the mark", bytes("\x89HDF\r\n\x1A\n"), "damaged"},
      {"values that were never written",
       hdf5(
           [](WrittenHdf5& file) {
             file.numbers("/a", {1U << 20U, 1U << 10U}, {}, true);
           }),
       ""},
      {"values in other files",
       hdf5(
           [](WrittenHdf5& file)
           {
             const hsize_t size = 1000;
             const hid_t space = H5Screate_simple(1, &size, nullptr);
             const hid_t layout = H5Pcreate(H5P_DATASET_CREATE);
             H5Pset_external(layout, "/etc/passwd", 0, 8000);
             H5Dclose(H5Dcreate2(file.file(), "a", H5T_IEEE_F64LE, space, H5P_DEFAULT, layout,
                                 H5P_DEFAULT));
             H5Pclose(layout);
             H5Sclose(space);
           }),
       "other files"},
      {"as many groups as there are",
       hdf5(
           [](WrittenHdf5& file)
           {
             for (int i = 0; i < 5000; ++i)
               file.group("/g" + std::to_string(i));
           }),
       "several groups"},
  });
}

TEST(HostileArchives, OfOtherKindsAreNamed)
{
  expectHarmless({
      {"a workbook of long ago", bytes("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"), "save it as .xlsx"},
      {"Parquet", bytes("PAR1"), "Parquet"},
      {"a database", bytes("SQLite format 3"), "SQLite"},
      {"bzip2", bytes("BZh91AY&SY"), "unpack it"},
      {"a page", bytes("%PDF-1.7"), "PDF"},
  });
}
