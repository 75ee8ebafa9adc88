#include "app/formats/Hdf5File.h"

#include <cmath>

#include "formats/WrittenFiles.h"
#include "formats/WrittenHdf5.h"

using namespace Talmesh::app;

using Hdf5File = WrittenFiles;

namespace
{

using Names = std::vector<std::string>;
using Numbers = std::vector<double>;

Numbers counted(std::size_t count)
{
  Numbers numbers(count);
  for (std::size_t i = 0; i < count; ++i)
    numbers[i] = static_cast<double>(i);
  return numbers;
}

} // namespace

TEST_F(Hdf5File, HoldsRunsTimesAndItemsInOneDataSet)
{
  for (const bool packed : {false, true})
  {
    {
      WrittenHdf5 file(path("a.h5"));
      file.numbers("/study/data", {3, 2, 2}, counted(12), packed);
      file.texts("/study/data", "columns", {"A", "B"});
      file.numbers("/study/time", {2}, {0, 0.5});
      file.numbers("/study/k1", {3}, {5, 6, 7});
      file.texts("/study/strain", {"wt", "mut", "wt"});
    }
    const FileContent runs = contentOf(path("a.h5"));
    EXPECT_EQ(namesOf(runs), (Names{"Molecule: A", "Molecule: B", ": Time", ": Run Index",
                                    "Parameter: k1", "strain"}));
    EXPECT_EQ(numbersOf(runs, "Molecule: B"), (Numbers{1, 3, 5, 7, 9, 11}));
    EXPECT_EQ(numbersOf(runs, ": Time"), (Numbers{0, 0.5, 0, 0.5, 0, 0.5}));
    EXPECT_EQ(numbersOf(runs, "Parameter: k1"), (Numbers{5, 5, 6, 6, 7, 7}));
    EXPECT_EQ(textsOf(runs, "strain"), (Names{"wt", "wt", "mut", "mut", "wt", "wt"}));
  }
}

TEST_F(Hdf5File, NamesItsAxesInAnAttribute)
{
  {
    WrittenHdf5 file(path("a.h5"));
    file.numbers("/data", {2, 2, 2}, counted(8));
    file.texts("/data", "axes", {"species", "time", "run"});
  }
  const FileContent runs = contentOf(path("a.h5"));
  EXPECT_EQ(numbersOf(runs, "Molecule: Column 1"), (Numbers{0, 2, 1, 3}));
  EXPECT_EQ(numbersOf(runs, "Molecule: Column 2"), (Numbers{4, 6, 5, 7}));
  EXPECT_EQ(runs.notes, (Names{"Nothing tells the times; the points are counted."}));
}

TEST_F(Hdf5File, SaysWhenNothingNamesItsAxes)
{
  {
    WrittenHdf5 file(path("a.h5"));
    file.numbers("/data", {2, 3, 1}, counted(6));
  }
  const FileContent runs = contentOf(path("a.h5"));
  EXPECT_EQ(numbersOf(runs, "Molecule: Column 1"), counted(6));
  EXPECT_EQ(runs.notes.front(), "Nothing names the axes of \"data\"; they are taken for runs, "
                                "times and items.");
}

TEST_F(Hdf5File, HoldsAGroupPerRun)
{
  {
    WrittenHdf5 file(path("a.h5"));
    for (const int run : {10, 2, 1})
    {
      const std::string group = "/runs/run" + std::to_string(run);
      const auto points = static_cast<hsize_t>(run == 2 ? 3 : 2);
      file.numbers(group + "/time", {points}, counted(points));
      file.numbers(group + "/A", {points}, Numbers(points, run));
      file.numbers(group + "/k2", {}, {run * 0.5});
      file.number(group, "k1", run * 0.25);
      file.texts(group, "drug", {run == 2 ? "none" : "aspirin"});
    }
  }
  const FileContent runs = contentOf(path("a.h5"));
  EXPECT_EQ(namesOf(runs),
            (Names{": Run Index", "A", "time", "Parameter: k2", "Parameter: k1", "drug"}));
  EXPECT_EQ(textsOf(runs, ": Run Index"),
            (Names{"run1", "run1", "run2", "run2", "run2", "run10", "run10"}));
  EXPECT_EQ(numbersOf(runs, "time"), (Numbers{0, 1, 0, 1, 2, 0, 1}));
  EXPECT_EQ(numbersOf(runs, "A"), (Numbers{1, 1, 2, 2, 2, 10, 10}));
  EXPECT_EQ(numbersOf(runs, "Parameter: k1"), (Numbers{0.25, 0.25, 0.5, 0.5, 0.5, 2.5, 2.5}));
  EXPECT_EQ(textsOf(runs, "drug").back(), "aspirin");
}

TEST_F(Hdf5File, GivesRunsWithoutAnItemGaps)
{
  {
    WrittenHdf5 file(path("a.h5"));
    file.numbers("/time", {2}, {0, 1});
    file.numbers("/1/A", {2}, {1, 2});
    file.numbers("/2/A", {2}, {3, 4});
    file.numbers("/2/B", {2}, {5, 6});
  }
  const FileContent runs = contentOf(path("a.h5"));
  EXPECT_EQ(numbersOf(runs, "time"), (Numbers{0, 1, 0, 1}));
  const Numbers b = numbersOf(runs, "B");
  ASSERT_EQ(b.size(), 4U);
  EXPECT_TRUE(std::isnan(b[0]) && std::isnan(b[1]));
  EXPECT_EQ(b[3], 6.0);
}

TEST_F(Hdf5File, HoldsFramesOfPandas)
{
  {
    WrittenHdf5 file(path("a.h5"));
    file.group("/df");
    file.texts("/df", "pandas_type", {"frame"});
    file.texts("/df/axis0", {"time", "n", "A"}, true);
    file.numbers("/df/axis1", {2}, {0, 1});
    file.texts("/df/block0_items", {"time", "A"}, true);
    file.numbers("/df/block0_values", {2, 2}, {0, 5, 1, 6});
    file.texts("/df/block1_items", {"n"}, true);
    file.numbers("/df/block1_values", {2, 1}, {8, 9});
  }
  const FileContent table = contentOf(path("a.h5"));
  EXPECT_EQ(namesOf(table), (Names{"index", "time", "A", "n"}));
  EXPECT_EQ(numbersOf(table, "A"), (Numbers{5, 6}));
  EXPECT_EQ(numbersOf(table, "n"), (Numbers{8, 9}));
}

TEST_F(Hdf5File, HoldsRecords)
{
  struct Record
  {
    float time;
    int count[2];
    char name[4];
  };
  const std::vector<Record> records{{0.5F, {1, 2}, "abc"}, {1.5F, {3, 4}, "d"}};
  {
    WrittenHdf5 file(path("a.h5"));
    const hsize_t two = 2;
    const hid_t pair = H5Tarray_create2(H5T_NATIVE_INT, 1, &two);
    const hid_t text = H5Tcopy(H5T_C_S1);
    H5Tset_size(text, 4);
    const hid_t type = H5Tcreate(H5T_COMPOUND, sizeof(Record));
    H5Tinsert(type, "time", HOFFSET(Record, time), H5T_NATIVE_FLOAT);
    H5Tinsert(type, "count", HOFFSET(Record, count), pair);
    H5Tinsert(type, "name", HOFFSET(Record, name), text);
    const hid_t space = H5Screate_simple(1, &two, nullptr);
    const hid_t set =
        H5Dcreate2(file.file(), "table", type, space, H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT);
    H5Dwrite(set, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, records.data());
    H5Dclose(set);
    H5Sclose(space);
    H5Tclose(type);
    H5Tclose(text);
    H5Tclose(pair);
  }
  const FileContent table = contentOf(path("a.h5"));
  EXPECT_EQ(namesOf(table), (Names{"time", "count 1", "count 2", "name"}));
  EXPECT_EQ(numbersOf(table, "time"), (Numbers{0.5, 1.5}));
  EXPECT_EQ(numbersOf(table, "count 2"), (Numbers{2, 4}));
  EXPECT_EQ(textsOf(table, "name"), (Names{"abc", "d"}));
}

TEST_F(Hdf5File, AsksWhichGroupIsMeant)
{
  {
    WrittenHdf5 file(path("a.h5"));
    file.numbers("/one/A", {2}, {1, 2});
    file.numbers("/two/B", {2}, {3, 4});
  }
  EXPECT_EQ(errorOf(path("a.h5")),
            "it holds several groups (\"one\", \"two\"); name one with --sheet");
  EXPECT_EQ(numbersOf(contentOf(path("a.h5"), "two"), "B"), (Numbers{3, 4}));
  EXPECT_EQ(numbersOf(contentOf(path("a.h5"), "two/B"), "B"), (Numbers{3, 4}));
  EXPECT_EQ(errorOf(path("a.h5"), "three"),
            "it holds no \"three\"; at its top are \"one\", \"two\"");
}

TEST_F(Hdf5File, WithGroupsThatHoldEachOtherIsRefused)
{
  {
    WrittenHdf5 file(path("a.h5"));
    file.group("/a/b");
    H5Lcreate_hard(file.file(), "/a", file.file(), "/a/b/c", H5P_DEFAULT, H5P_DEFAULT);
    H5Lcreate_soft("/a", file.file(), "/a/b/d", H5P_DEFAULT, H5P_DEFAULT);
    H5Lcreate_external("/etc/passwd", "/", file.file(), "/a/b/e", H5P_DEFAULT, H5P_DEFAULT);
  }
  EXPECT_EQ(errorOf(path("a.h5")), "its groups hold each other; name a data set with --sheet");
}

TEST_F(Hdf5File, ThatWasNeverFilledIsRefused)
{
  {
    WrittenHdf5 file(path("a.h5"));
    file.numbers("/data", {1U << 14U, 1U << 10U, 1}, {}, true);
  }
  EXPECT_EQ(errorOf(path("a.h5")).rfind("it unpacks to more than 100 times", 0), 0U);
}

TEST_F(Hdf5File, ThatIsCutShortIsRefused)
{
  {
    WrittenHdf5 file(path("a.h5"));
    file.numbers("/data", {100}, counted(100));
  }
  QFile file(path("a.h5"));
  ASSERT_TRUE(file.resize(file.size() - 100));
  EXPECT_NE(errorOf(path("a.h5")).find("damaged"), std::string::npos);
}
