#include <QFile>

#include "import/HostileFiles.h"

namespace
{

constexpr std::size_t mega = 1 << 20;

/// A file that is large only by what it says of itself.
std::function<void(const QString&)> sparse(const std::string& start, qint64 size)
{
  return [start, size](const QString& path)
  {
    writeBytes(path, start);
    ASSERT_TRUE(QFile::resize(path, size));
  };
}

std::string numberedNames(std::size_t count)
{
  std::string names;
  for (std::size_t i = 0; i < count; ++i)
    names += "c" + std::to_string(i) + ',';
  return names + "z\n";
}

} // namespace

TEST(HostileTexts, WithQuotesAreHarmless)
{
  expectHarmless({
      {"a quote in the header that nobody closes", bytes("time,\"A\n0,1\n"), ""},
      {"a quote in a row, and megabytes behind it",
       bytes("time,A\n0,\"" + repeated("1,2\n", 2 * mega)), ""},
      {"nothing but quotes", bytes(std::string(4 * mega, '"')), ""},
      {"quotes inside of words", bytes("time,A\n0,a\"b\"c\"\n1,\"\"\"\n"), ""},
      {"a quoted line end in each cell",
       bytes("time,A\n" + repeated("\"0\n\",\"\r\n\"\n", mega / 8)), ""},
  });
}

TEST(HostileTexts, OfEndlessLinesAreHarmless)
{
  expectHarmless({
      {"one line of letters", bytes(std::string(64 * mega, 'a')), "does not end"},
      {"one line of digits", bytes("time,A\n0," + std::string(4 * mega, '7')), ""},
      {"a number of a million digits", bytes("time,A\n0," + std::string(mega, '7') + "\n1,2\n"),
       ""},
      {"one line of separators", bytes(std::string(8 * mega, ',')), ""},
      {"one line of blanks", bytes(std::string(8 * mega, ' ')), ""},
      {"nothing but line ends", bytes(std::string(4 * mega, '\n')), "empty"},
      {"a million columns", bytes(numberedNames(mega) + repeated("1,", mega) + "1\n"), "columns"},
      {"as many columns as are read, and no row", bytes(numberedNames(19999)), ""},
      {"a million lines of comment", bytes(repeated("#\n", mega)), ""},
      {"a comment in front of each row", bytes("time,A\n" + repeated("# x\n1,2\n", mega / 8)), ""},
  });
}

TEST(HostileTexts, OfStrangeBytesAreHarmless)
{
  expectHarmless({
      {"zero bytes", bytes(std::string("time,A\n0,\0\n", 11)), "binary"},
      {"ten gigabytes of nothing", sparse("", qint64(10) << 30), "binary"},
      {"a table, and ten gigabytes of nothing", sparse("time,A\n0,1\n", qint64(10) << 30),
       "binary"},
      {"UTF-16", bytes(std::string("\xFF\xFEt\0i\0m\0e\0", 10)), "no rows"},
      {"a byte-order mark alone", bytes("\xEF\xBB\xBF"), "empty"},
      {"bytes that are no UTF-8", bytes("time,\xFF\xC0\x80\xED\xA0\x80\n0,1\n1,2\n"), ""},
      {"control characters", bytes("time,A\x01\x1B[2J\x07\n0,1\n1,\x02\n"), ""},
      {"mixed line ends", bytes("time,A\r0,1\n1,2\r\n2,3\n\r3,4\r\r\n"), ""},
      {"all bytes but zero",
       [](const QString& path)
       {
         std::string all;
         for (int i = 1; i < 256; ++i)
           all += static_cast<char>(i);
         writeBytes(path, repeated(all, 4096));
       },
       ""},
  });
}

TEST(HostileTexts, OfStrangeTablesAreHarmless)
{
  std::string runs = "run,time,A\n";
  for (int i = 0; i < 100000; ++i)
    runs += "r" + std::to_string(i) + ",0,1\n";
  std::string restarts = "time,A\n";
  for (int i = 0; i < 100000; ++i)
    restarts += std::to_string((i * 7919) % 1009) + ",1\n";
  expectHarmless({
      {"a run of its own in each row", bytes(runs), ""},
      {"times that fall back at random", bytes(restarts), ""},
      {"no number that is finite", bytes("time,A\n" + repeated("inf,-inf\nnan,1e99999\n", 1000)),
       ""},
      {"rows of all lengths", bytes("time,A\n1\n1,2,3\n,,,,,,,,\n1,2\n"), ""},
      {"the header again and again", bytes(repeated("time,A\n0,1\n", 50000)), ""},
      {"a separator for each taste", bytes(repeated("time,A;B\tC|D:E F\n0,1;2\t3|4:5 6\n", 1000)),
       ""},
      {"dates beyond the calendar", bytes("date,A\n9999999-99-99,1\n0000-00-00T99:99:99,2\n"), ""},
      {"tidy rows of a hundred thousand items",
       [](const QString& path)
       {
         std::string text = "time,species,value\n";
         for (int i = 0; i < 100000; ++i)
           text += "0,s" + std::to_string(i) + ",1\n";
         writeBytes(path, text);
       },
       ""},
  });
}
