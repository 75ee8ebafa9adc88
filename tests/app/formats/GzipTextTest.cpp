#include "app/formats/GzipText.h"

#include "formats/WrittenFiles.h"

using namespace Talmesh::app;

using GzipText = WrittenFiles;

TEST_F(GzipText, IsReadWhateverItsName)
{
  const std::string text = "time,A\n0,1\n1,2\n";
  EXPECT_EQ(contentOf(write("runs.csv.gz", gzipped(text))).text, text);
  EXPECT_EQ(contentOf(write("runs.csv", gzipped(text))).text, text);
}

TEST_F(GzipText, MayHaveSeveralPartsAndPadding)
{
  const std::string parts = gzipped("time,A\n0,1\n") + gzipped("1,2\n");
  EXPECT_EQ(contentOf(write("parts.gz", parts)).text, "time,A\n0,1\n1,2\n");
  EXPECT_EQ(contentOf(write("padded.gz", parts + std::string(700, '\0'))).text,
            "time,A\n0,1\n1,2\n");
  EXPECT_EQ(contentOf(write("signed.gz", parts + "signature")).text, "time,A\n0,1\n1,2\n");
}

TEST_F(GzipText, OfEveryLengthIsWhole)
{
  for (const std::size_t rows : {1U, 20000U, 150000U})
  {
    std::string text = "time,A\n";
    for (std::size_t row = 0; row < rows; ++row)
      text += std::to_string(row) + ',' + std::to_string(row * row % 9973) + '\n';
    EXPECT_EQ(contentOf(write("long.gz", gzipped(text))).text, text) << rows;
  }
}

TEST_F(GzipText, IsRefusedWhenItIsCutShortOrDamaged)
{
  std::string packed = gzipped("time,A\n0,1\n1,2\n3,4\n");
  EXPECT_EQ(errorOf(write("cut.gz", packed.substr(0, packed.size() - 9))),
            "the compressed file is cut short; copy it again");
  packed[14] = static_cast<char>(packed[14] ^ 0x55);
  EXPECT_EQ(errorOf(write("bent.gz", packed)), "the compressed file is damaged; copy it again");
}

TEST_F(GzipText, TellsWhatElseIsCompressedInIt)
{
  EXPECT_EQ(errorOf(write("a.npy.gz", gzipped(npy("'<f8'", "(1,)", bytesOf<double>({1.0}))))),
            "NumPy is compressed in it; unpack it with gunzip, and open that");
  EXPECT_EQ(errorOf(write("a.RData", gzipped("RDX3\nX\n"))),
            "R is compressed in it; unpack it with gunzip, and open that");
}

TEST_F(GzipText, ThatGrowsBeyondMeasureIsRefused)
{
  // A line of blanks takes a thousandth of its length.
  const std::string part = gzipped(std::string(std::size_t{16} << 20U, ' '));
  std::string bomb;
  for (int i = 0; i < 100; ++i)
    bomb += part;
  EXPECT_EQ(errorOf(write("bomb.gz", bomb)),
            "it unpacks to more than 100 times its size, as damaged files do; unpack it before "
            "opening it");
}

TEST_F(GzipText, CanBeCancelled)
{
  const QString file = write("runs.gz", gzipped("time,A\n0,1\n"));
  const Result<FileContent> read = readGzipText(file, {}, [](double) { return false; });
  EXPECT_TRUE(read.isCancelled());
}
