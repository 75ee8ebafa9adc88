#include "app/formats/ForeignFormats.h"

#include "app/import/TranslatedText.h"

#include <string_view>

namespace Talmesh::app
{

namespace
{

bool startsWith(const FileStart& start, std::string_view mark)
{
  return std::string_view(start.bytes).substr(0, mark.size()) == mark;
}

bool isOldWorkbook(const FileStart& start)
{
  return startsWith(start, "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
}

bool isParquet(const FileStart& start)
{
  return startsWith(start, "PAR1");
}

bool isFeather(const FileStart& start)
{
  return startsWith(start, "ARROW1") || startsWith(start, "FEA1");
}

bool isDatabase(const FileStart& start)
{
  return startsWith(start, "SQLite format 3");
}

bool isDataOfR(const FileStart& start)
{
  return startsWith(start, "RDX2\n") || startsWith(start, "RDX3\n") ||
         startsWith(start, std::string_view("X\n\0\0\0\2", 6)) ||
         startsWith(start, std::string_view("X\n\0\0\0\3", 6));
}

bool isOldMatFile(const FileStart& start)
{
  return startsWith(start, "MATLAB 5.0 MAT-file");
}

bool isOldNetCdf(const FileStart& start)
{
  return startsWith(start, "CDF\x01") || startsWith(start, "CDF\x02") ||
         startsWith(start, "CDF\x05");
}

bool isPdf(const FileStart& start)
{
  return startsWith(start, "%PDF-");
}

bool isZstd(const FileStart& start)
{
  return startsWith(start, "\x28\xB5\x2F\xFD");
}

bool isBzip2(const FileStart& start)
{
  return startsWith(start, "BZh") && start.bytes.compare(4, 6, "1AY&SY") == 0;
}

bool isXz(const FileStart& start)
{
  return startsWith(start, std::string_view("\xFD"
                                            "7zXZ\0",
                                            6));
}

std::string saveAsXlsx()
{
  return translated("ForeignFormats", "save it as .xlsx, .ods or CSV");
}

std::string saveAsText()
{
  return translated("ForeignFormats", "save the table as CSV, HDF5 or .npz");
}

std::string saveFromR()
{
  return translated("ForeignFormats", "save the table with write.csv()");
}

std::string saveAsVersion73()
{
  return translated("ForeignFormats", "save it with the option -v7.3, or the table as CSV");
}

std::string convertToNetCdf4()
{
  return translated("ForeignFormats", "convert it to netCDF-4, or save the table as CSV");
}

std::string unpack()
{
  return translated("ForeignFormats", "unpack it, or compress it with gzip");
}

} // namespace

const std::vector<FileFormat>& foreignFormats()
{
  static const std::vector<FileFormat> all = {
      {"Excel 97-2003", "*.xls", isOldWorkbook, nullptr, saveAsXlsx},
      {"Parquet", "*.parquet", isParquet, nullptr, saveAsText},
      {"Feather", "*.feather", isFeather, nullptr, saveAsText},
      {"SQLite", "*.sqlite *.db", isDatabase, nullptr, saveAsText},
      {"R", "*.RData *.rds", isDataOfR, nullptr, saveFromR},
      {"MATLAB", "*.mat", isOldMatFile, nullptr, saveAsVersion73},
      {"netCDF-3", "*.nc", isOldNetCdf, nullptr, convertToNetCdf4},
      {"PDF", "*.pdf", isPdf, nullptr, saveAsText},
      {"Zstandard", "*.zst", isZstd, nullptr, unpack},
      {"bzip2", "*.bz2", isBzip2, nullptr, unpack},
      {"xz", "*.xz", isXz, nullptr, unpack},
  };
  return all;
}

} // namespace Talmesh::app
