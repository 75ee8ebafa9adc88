#include "app/formats/NumpyFiles.h"

#include "formats/WrittenFiles.h"

using namespace Talmesh::app;

using NumpyFiles = WrittenFiles;

namespace
{

const std::string twoTimes = npy("'<f8'", "(2,)", bytesOf<double>({0.0, 0.5}));

/// Letters of four bytes each, as NumPy stores texts.
std::string letters(const std::vector<std::u32string>& texts, std::size_t width)
{
  std::string bytes;
  for (std::u32string text : texts)
  {
    text.resize(width, U'\0');
    bytes.append(reinterpret_cast<const char*>(text.data()), width * 4);
  }
  return bytes;
}

} // namespace

TEST_F(NumpyFiles, OfOneArrayAreATableOfItsColumns)
{
  const FileContent table =
      contentOf(write("a.npy", npy("'<f8'", "(3, 2)", bytesOf<double>({1, 2, 3, 4, 5, 6}))));
  EXPECT_EQ(namesOf(table), (std::vector<std::string>{"Column 1", "Column 2"}));
  EXPECT_EQ(numbersOf(table, "Column 1"), (std::vector<double>{1, 3, 5}));
  EXPECT_EQ(numbersOf(table, "Column 2"), (std::vector<double>{2, 4, 6}));
}

TEST_F(NumpyFiles, MayVaryTheirFirstIndexFastest)
{
  const FileContent table =
      contentOf(write("a.npy", npy("'<f8'", "(3, 2)", bytesOf<double>({1, 3, 5, 2, 4, 6}), true)));
  EXPECT_EQ(numbersOf(table, "Column 1"), (std::vector<double>{1, 3, 5}));
  EXPECT_EQ(numbersOf(table, "Column 2"), (std::vector<double>{2, 4, 6}));
}

TEST_F(NumpyFiles, HoldNumbersOfAllTypes)
{
  const auto only = [&](const std::string& type, const std::string& bytes)
  { return numbersOf(contentOf(write("a.npy", npy(type, "(2,)", bytes))), "a"); };
  EXPECT_EQ(only("'<f4'", bytesOf<float>({0.5F, -2.0F})), (std::vector<double>{0.5, -2.0}));
  EXPECT_EQ(only("'>f8'", std::string("\x3F\xF8\0\0\0\0\0\0\xC0\0\0\0\0\0\0\0", 16)),
            (std::vector<double>{1.5, -2.0}));
  EXPECT_EQ(only("'|i1'", "\xFF\x02"), (std::vector<double>{-1, 2}));
  EXPECT_EQ(only("'|u1'", "\xFF\x02"), (std::vector<double>{255, 2}));
  EXPECT_EQ(only("'>i2'", std::string("\xFF\xFE\x01\0", 4)), (std::vector<double>{-2, 256}));
  EXPECT_EQ(only("'<i8'", bytesOf<long long>({-7, 1LL << 52U})),
            (std::vector<double>{-7, 4503599627370496.0}));
  EXPECT_EQ(only("'|b1'", std::string("\1\0", 2)), (std::vector<double>{1, 0}));
}

TEST_F(NumpyFiles, HaveAColumnForEachNamedField)
{
  const std::string record = bytesOf<double>({0.5}) + bytesOf<int>({3}) + std::string("wt\0\0", 4);
  const FileContent table = contentOf(write(
      "a.npy", npy("[('time', '<f8'), ('n', '<i4'), ('strain', 'S4')]", "(2,)", record + record)));
  EXPECT_EQ(namesOf(table), (std::vector<std::string>{"time", "n", "strain"}));
  EXPECT_EQ(numbersOf(table, "time"), (std::vector<double>{0.5, 0.5}));
  EXPECT_EQ(numbersOf(table, "n"), (std::vector<double>{3, 3}));
  EXPECT_EQ(textsOf(table, "strain"), (std::vector<std::string>{"wt", "wt"}));
}

TEST_F(NumpyFiles, OfArraysOfEqualLengthAreColumns)
{
  const FileContent table = contentOf(
      writeZip("a.npz", {{"time.npy", twoTimes},
                         {"A.npy", npy("'<f8'", "(2,)", bytesOf<double>({7, 8}))},
                         {"who.npy", npy("'<U2'", "(2,)", letters({U"x", U"\u00e4y"}, 2))},
                         {"seed.npy", npy("'<i8'", "()", bytesOf<long long>({42}))}}));
  EXPECT_EQ(namesOf(table), (std::vector<std::string>{"time", "A", "who"}));
  EXPECT_EQ(textsOf(table, "who"), (std::vector<std::string>{"x", "\u00e4y"}));
  EXPECT_EQ(table.notes, (std::vector<std::string>{
                             "What does not fit the table is left out: \"seed\"; --sheet chooses "
                             "another one."}));
}

TEST_F(NumpyFiles, OfRunsTimesAndItemsHaveNamesAndParametersBeside)
{
  std::vector<double> values(3 * 2 * 2);
  for (std::size_t i = 0; i < values.size(); ++i)
    values[i] = static_cast<double>(i);
  const FileContent runs = contentOf(writeZip(
      "a.npz", {{"data.npy", npy("'<f8'", "(3, 2, 2)", bytesOf(values))},
                {"time.npy", twoTimes},
                {"items.npy", npy("'<U1'", "(2,)", letters({U"A", U"B"}, 1))},
                {"parameters.npy", npy("'<f8'", "(3, 1)", bytesOf<double>({0.1, 0.2, 0.3}))},
                {"parameter_names.npy", npy("'<U2'", "(1,)", letters({U"k1"}, 2))},
                {"k2.npy", npy("'<f8'", "(3,)", bytesOf<double>({5, 6, 7}))}}));
  EXPECT_EQ(namesOf(runs),
            (std::vector<std::string>{"Molecule: A", "Molecule: B", ": Time", ": Run Index",
                                      "Parameter: k1", "Parameter: k2"}));
  EXPECT_EQ(numbersOf(runs, "Molecule: A"), (std::vector<double>{0, 2, 4, 6, 8, 10}));
  EXPECT_EQ(numbersOf(runs, "Molecule: B"), (std::vector<double>{1, 3, 5, 7, 9, 11}));
  EXPECT_EQ(numbersOf(runs, ": Time"), (std::vector<double>{0, 0.5, 0, 0.5, 0, 0.5}));
  EXPECT_EQ(numbersOf(runs, ": Run Index"), (std::vector<double>{0, 0, 1, 1, 2, 2}));
  EXPECT_EQ(numbersOf(runs, "Parameter: k1"), (std::vector<double>{0.1, 0.1, 0.2, 0.2, 0.3, 0.3}));
  EXPECT_EQ(numbersOf(runs, "Parameter: k2"), (std::vector<double>{5, 5, 6, 6, 7, 7}));
}

TEST_F(NumpyFiles, OfRunsAndTimesHaveAnArrayPerItem)
{
  // Times before runs, as the length of the times tells.
  const FileContent runs = contentOf(
      writeZip("a.npz", {{"A.npy", npy("'<f8'", "(2, 3)", bytesOf<double>({0, 1, 2, 3, 4, 5}))},
                         {"t.npy", twoTimes}}));
  EXPECT_EQ(namesOf(runs), (std::vector<std::string>{"Molecule: A", ": Time", ": Run Index"}));
  EXPECT_EQ(numbersOf(runs, "Molecule: A"), (std::vector<double>{0, 3, 1, 4, 2, 5}));
}

TEST_F(NumpyFiles, WithoutTimesAreNotGuessed)
{
  const std::string plane = npy("'<f8'", "(2, 2)", bytesOf<double>({0, 1, 2, 3}));
  EXPECT_EQ(errorOf(writeZip("a.npz", {{"A.npy", plane}, {"B.npy", plane}})),
            "nothing tells which axis of \"A\", \"B\" is the time: add an array of the times, "
            "called \"time\", or name one array with --sheet");
  EXPECT_EQ(numbersOf(contentOf(path("a.npz"), "B"), "Column 2"), (std::vector<double>{1, 3}));
}

TEST_F(NumpyFiles, WithLyingHeadersAreRefused)
{
  const std::string values = bytesOf<double>({1, 2});
  EXPECT_EQ(errorOf(write("a.npy", npy("'<f8'", "(3,)", values))),
            "the array is cut short; save or copy it again");
  EXPECT_EQ(errorOf(write("a.npy", npy("'<f8'", "(4294967296, 4294967296)", values))),
            "the array is cut short; save or copy it again");
  EXPECT_EQ(errorOf(write("a.npy", npy("'<f8'", "(99999999999999999999,)", values))),
            "the header of the NumPy array is damaged; save it again");
  EXPECT_EQ(errorOf(write("a.npy", npy("'|O'", "(2,)", values))),
            "the array holds Python objects, which may run programs and are not read; save it as "
            "numbers or text");
  EXPECT_EQ(errorOf(write("a.npy", npy("'<c16'", "(2,)", values))),
            "values of the NumPy type \"<c16\" are not read; save them with .astype(float)");
  EXPECT_EQ(errorOf(write("a.npy", npy("'<f8'", "(2,)", values).substr(0, 40))),
            "the header of the NumPy array is damaged; save it again");
  EXPECT_EQ(errorOf(write("a.npy", npy(std::string(500, '('), "(2,)", values))),
            "the header of the NumPy array is damaged; save it again");
}

TEST_F(NumpyFiles, WithMoreAxesAreRefused)
{
  EXPECT_EQ(errorOf(write("a.npy", npy("'<f8'", "(1, 1, 1, 1)", bytesOf<double>({1})))),
            "\"a\" has 4 axes; arrays of runs, times and items have three");
}

TEST_F(NumpyFiles, ThatAreCutShortAreRefused)
{
  const QString file = writeZip("a.npz", {{"time.npy", twoTimes}});
  QFile archive(file);
  ASSERT_TRUE(archive.open(QIODevice::ReadWrite));
  ASSERT_TRUE(archive.resize(archive.size() / 2));
  archive.close();
  EXPECT_EQ(errorOf(file), "the ZIP file is damaged or cut short; copy it again");
}
