#include "app/session/RunSelectionFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <limits>
#include <set>
#include <string>

using Talmesh::app::loadRunSelection;
using Talmesh::app::saveRunSelection;

namespace
{

class RunSelectionFile : public ::testing::Test
{
protected:
  QString path(const char* name = "runs.json") const { return folder.filePath(name); }

  QString write(const QByteArray& text) const
  {
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(text), text.size());
    return path();
  }

  QByteArray read() const
  {
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  /// The error of loading `text`, without the path in front.
  std::string errorOf(const QByteArray& text) const
  {
    const std::string error = loadRunSelection(write(text)).error();
    const std::string start = path().toStdString() + ": ";
    EXPECT_EQ(error.substr(0, start.size()), start);
    EXPECT_EQ(error.find('\n'), std::string::npos);
    return error.size() < start.size() ? error : error.substr(start.size());
  }

  QTemporaryDir folder;
};

} // namespace

TEST_F(RunSelectionFile, LoadsWhatWasSaved)
{
  ParameterSelection saved;
  saved.runs = {std::numeric_limits<int>::min(), -1, 0, 3, 40, std::numeric_limits<int>::max()};
  saved.sourceName = "Grün \"A\"";
  saved.sourceId = -7;
  saved.label = "Cluster 0";
  EXPECT_EQ(saveRunSelection(path(), saved), "");
  const auto loaded = loadRunSelection(path());
  EXPECT_EQ(loaded.error(), "");
  EXPECT_EQ(loaded.value().runs, saved.runs);
  EXPECT_EQ(loaded.value().sourceName, saved.sourceName);
  EXPECT_EQ(loaded.value().sourceId, saved.sourceId);
  EXPECT_EQ(loaded.value().label, saved.label);
}

TEST_F(RunSelectionFile, KeepsAnEmptySelection)
{
  EXPECT_EQ(saveRunSelection(path(), {}), "");
  const auto loaded = loadRunSelection(path());
  EXPECT_EQ(loaded.error(), "");
  EXPECT_TRUE(loaded.value().runs.empty());
}

TEST_F(RunSelectionFile, IsReadableText)
{
  ParameterSelection saved;
  saved.runs = {7, 3};
  EXPECT_EQ(saveRunSelection(path(), saved), "");
  EXPECT_EQ(read(), QByteArray("{\n"
                               "    \"format\": \"talmesh-runs\",\n"
                               "    \"label\": \"\",\n"
                               "    \"runs\": [\n"
                               "        3,\n"
                               "        7\n"
                               "    ],\n"
                               "    \"source\": \"\",\n"
                               "    \"sourceId\": 0,\n"
                               "    \"version\": 1\n"
                               "}\n"));
}

TEST_F(RunSelectionFile, NeedsOnlyFormatVersionAndRuns)
{
  const auto loaded =
      loadRunSelection(write(R"({"format": "talmesh-runs", "version": 1, "runs": [5, 1, 5.0]})"));
  EXPECT_EQ(loaded.error(), "");
  EXPECT_EQ(loaded.value().runs, std::set<int>({1, 5}));
}

TEST_F(RunSelectionFile, ReplacesAnOlderFile)
{
  ParameterSelection older;
  for (int run = 0; run < 1000; ++run)
    older.runs.insert(run);
  EXPECT_EQ(saveRunSelection(path(), older), "");
  ParameterSelection newer;
  newer.runs = {1};
  EXPECT_EQ(saveRunSelection(path(), newer), "");
  EXPECT_EQ(loadRunSelection(path()).value().runs, newer.runs);
}

TEST_F(RunSelectionFile, SaysThatAFolderIsMissing)
{
  const QString missing = path("no/such/folder/runs.json");
  const std::string error = saveRunSelection(missing, {});
  const std::string start = missing.toStdString() + ": cannot be written: ";
  EXPECT_EQ(error.substr(0, start.size()), start);
  EXPECT_GT(error.size(), start.size());
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 0);
}

TEST_F(RunSelectionFile, SaysThatAFileIsMissing)
{
  const std::string error = loadRunSelection(path()).error();
  const std::string start = path().toStdString() + ": cannot be read: ";
  EXPECT_EQ(error.substr(0, start.size()), start);
  EXPECT_GT(error.size(), start.size());
}

TEST_F(RunSelectionFile, SaysThatAFolderIsNoFile)
{
  EXPECT_EQ(loadRunSelection(folder.path()).error(), folder.path().toStdString() + ": not a file");
}

TEST_F(RunSelectionFile, SaysWhereTheTextIsNoJson)
{
  // The reasons are Qt's.
  EXPECT_EQ(errorOf("[1, x]"), "not a JSON file: illegal number at byte 4");
  EXPECT_EQ(errorOf(""), "not a JSON file: illegal value at byte 0");
}

TEST_F(RunSelectionFile, RefusesOtherJson)
{
  EXPECT_EQ(errorOf("[1, 2]"), "not a selection of runs");
  EXPECT_EQ(errorOf("{}"), "not a selection of runs");
  EXPECT_EQ(errorOf(R"({"format": "other", "version": 1, "runs": []})"), "not a selection of runs");
}

TEST_F(RunSelectionFile, RefusesOtherVersions)
{
  const std::string error = "a selection of runs in a version that this program does not know";
  EXPECT_EQ(errorOf(R"({"format": "talmesh-runs", "version": 2, "runs": []})"), error);
  EXPECT_EQ(errorOf(R"({"format": "talmesh-runs", "runs": []})"), error);
}

TEST_F(RunSelectionFile, RefusesASelectionWithoutRuns)
{
  const std::string error = "a selection without a list of runs";
  EXPECT_EQ(errorOf(R"({"format": "talmesh-runs", "version": 1})"), error);
  EXPECT_EQ(errorOf(R"({"format": "talmesh-runs", "version": 1, "runs": {"0": 1}})"), error);
}

TEST_F(RunSelectionFile, RefusesRunsThatAreNotWholeNumbers)
{
  for (const QByteArray entry :
       {"1.5", "\"1\"", "null", "true", "2147483648", "-2147483649", "1e300", "[1]"})
    EXPECT_EQ(
        errorOf("{\"format\": \"talmesh-runs\", \"version\": 1, \"runs\": [4, " + entry + "]}"),
        "entry 2 of its runs is not a whole number")
        << entry.toStdString();
}

TEST_F(RunSelectionFile, LoadsNothingFromARefusedFile)
{
  EXPECT_FALSE(
      loadRunSelection(write(R"({"format": "talmesh-runs", "version": 1, "runs": [4, "x"]})"))
          .hasValue());
}
