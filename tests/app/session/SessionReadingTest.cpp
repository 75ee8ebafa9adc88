#include "app/session/SessionReading.h"

#include "app/CommandLine.h"
#include "app/session/SessionImport.h"
#include "app/session/StudyFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include <string>
#include <vector>

#include "import/DescribedTable.h"
#include "session/SavedSession.h"

using namespace Talmesh::app;

namespace
{

ImportRequest everything()
{
  ImportRequest reading;
  reading.layout = "tidy";
  reading.time = "t";
  reading.run = {"sim", "rep"};
  reading.item = "species";
  reading.value = "conc";
  reading.parameters = {"k1", "k2"};
  reading.conditions = {"drug"};
  reading.ignored = {"note"};
  reading.measured = {"X"};
  reading.separator = '\t';
  reading.decimalMark = ',';
  reading.unequal = UnequalRuns::Interpolate;
  reading.sheet = "raw";
  reading.files = "items";
  reading.join = "order";
  return reading;
}

class KeptReading : public SavedSession
{
protected:
  Study openTable(const std::string& text, const ImportRequest& request = {})
  {
    const QString file = folder.filePath("table.csv");
    QFile table(file);
    EXPECT_TRUE(table.open(QIODevice::WriteOnly));
    table.write(text.data(), static_cast<qint64>(text.size()));
    table.close();
    const Result<OpenedStudy> read = openStudyFile(file, {}, request);
    EXPECT_EQ(read.error(), "");
    return read.hasValue() ? read.value().study : Study();
  }
};

/// Tables of all layouts, as people have them.
const std::vector<std::string> tables = {
    "run,time,drug,k,X\n0,0,none,1,2\n0,1,none,1,3\n1,0,low,2,4\n1,1,low,2,5\n",
    "time\tX\tY\n0\t1,5\t2\n1\t2,5\t3\n2\t1,5\t7\n",
    "sim,time,species,value\n0,0,A,1\n0,0,B,2\n0,1,A,3\n0,1,B,4\n1,0,A,5\n1,0,B,6\n1,1,A,7\n1,1,B,"
    "8\n",
    "time,run_1,run_2,run_3\n0,1,2,3\n1,4,5,6\n2,7,8,9\n",
    "k1,k2,drug,loss\n0.1,2,a,5\n0.3,1,b,3\n0.2,7,a,1\n0.7,4,b,2\n",
    "species,length,width\nsetosa,1.1,2\nsetosa,1.3,2.5\nvirginica,5.1,3\nvirginica,4.9,2.8\n",
    "# time  A  B\n0.0  1.0  2.0\n0.5  1.5  2.5\n1.0  1.25  2.75\n",
    "\"\",\"time\",\"X\"\n\"1\",0,5\n\"2\",1,6\n\"3\",2,7\n",
    "run,time,X\n0,0,1\n0,1,2\n0,2,3\n1,0,4\n1,5,6\n",
    "observableId\tsimulationConditionId\ttime\tmeasurement\no1\tc1\t0\t1\no1\tc1\t1\t2\n"
    "o1\tc2\t0\t3\no1\tc2\t1\t4\n"};

} // namespace

TEST(SessionReading, KeepsAllThatOptionsSay)
{
  const ImportRequest said = everything();
  const ImportRequest kept = readReading(objectOf(said));
  EXPECT_EQ(objectOf(kept), objectOf(said));
  EXPECT_EQ(objectOf(kept).size(), 15);
  EXPECT_EQ(kept.run, said.run);
  EXPECT_EQ(kept.separator, '\t');
  EXPECT_EQ(kept.decimalMark, ',');
  EXPECT_EQ(kept.unequal, UnequalRuns::Interpolate);
}

TEST(SessionReading, NamesNoFile)
{
  ImportRequest said;
  said.parameterTable = "/somewhere/parameters.csv";
  EXPECT_TRUE(objectOf(said).isEmpty());
  EXPECT_EQ(readReading({{"parameterTable", "a"}, {"parameter-table", "a"}}).parameterTable, "");
}

TEST(SessionReading, LeavesOpenWhatIsUnknown)
{
  const ImportRequest read = readReading({{"layout", "sideways"},
                                          {"files", "all"},
                                          {"join", 1},
                                          {"separator", "x"},
                                          {"decimal", ".."},
                                          {"unequal", "both"},
                                          {"run", QJsonArray{1, "", "r"}}});
  EXPECT_EQ(objectOf(read), (QJsonObject{{"run", QJsonArray{"r"}}}));
}

TEST(SessionReading, IsLeftOutWhereItIsTooLarge)
{
  SessionImport import;
  ImportRequest huge;
  huge.ignored.assign(30000, std::string(40, 'x'));
  import.reading = std::make_shared<const ImportRequest>(huge);
  EXPECT_FALSE(readImport(objectOf(import)).reading);
  import.reading = std::make_shared<const ImportRequest>(everything());
  EXPECT_TRUE(readImport(objectOf(import)).reading);
}

TEST(SettledReading, ReadsTablesAsTheyWereRead)
{
  for (const std::string& text : tables)
  {
    const DescribedTable found = described(text);
    ASSERT_EQ(found.error, "") << text;
    EXPECT_EQ(found.report.settled.layout, found.report.layout);
    const DescribedTable again = described(text, found.report.settled);
    EXPECT_EQ(again.error, "") << text;
    EXPECT_EQ(again.report.layout, found.report.layout);
    EXPECT_EQ(again.report.runs, found.report.runs) << text;
    EXPECT_EQ(again.report.time, found.report.time) << text;
    EXPECT_EQ(again.report.items, found.report.items) << text;
    EXPECT_EQ(again.report.parameters, found.report.parameters) << text;
    EXPECT_EQ(again.report.categories, found.report.categories) << text;
    EXPECT_EQ(again.report.ignored, found.report.ignored) << text;
    EXPECT_EQ(objectOf(again.report.settled), objectOf(found.report.settled)) << text;
  }
}

TEST(SettledReading, HoldsWhereOtherNumbersSuggestSomethingElse)
{
  // Both parameters are constant in each run; in the second table k is the same in all of them.
  const DescribedTable found = described("run,time,k,X\n0,0,1,2\n0,1,1,3\n1,0,2,4\n1,1,2,5\n");
  const std::string later = "run,time,k,X\n0,0,1,2\n0,1,1,3\n1,0,1,4\n1,1,1,5\n";
  ASSERT_EQ(found.report.parameters, Names{"k"});
  EXPECT_EQ(described(later).report.parameters, Names());
  EXPECT_EQ(described(later, found.report.settled).report.parameters, Names{"k"});
}

TEST_F(KeptReading, ComesBackWithTheSession)
{
  ImportRequest said;
  said.conditions = {"k"};
  save(openTable(tables[0], said));
  reopen();
  ASSERT_TRUE(opened.study.reading);
  const ImportRequest reading = *opened.study.reading;
  EXPECT_EQ(reading.layout, "stacked");
  EXPECT_EQ(reading.time, "time");
  EXPECT_EQ(reading.conditions, (Names{"k", "drug"}));
  EXPECT_EQ(reading.separator, ',');
  // As it was saved, so is it saved again.
  save(opened.study);
  reopen();
  ASSERT_TRUE(opened.study.reading);
  EXPECT_EQ(reading.layout, opened.study.reading->layout);
}

TEST_F(KeptReading, IsTheReadingOfOtherTablesOnTheCommandLine)
{
  save(openTable(tables[2]));
  const auto read = [this](std::vector<std::string> arguments)
  {
    arguments.insert(arguments.end(), {"--like", path().toStdString(), "other.csv"});
    return parseCommandLine(arguments);
  };
  const Result<CommandLineOptions> like = read({});
  ASSERT_EQ(like.error(), "");
  EXPECT_EQ(like.value().import.layout, "tidy");
  EXPECT_EQ(like.value().import.time, "time");
  EXPECT_EQ(read({"--time", "t"}).value().import.time, "t") << "what else is said";
  const std::string nothing = folder.filePath("table.csv").toStdString();
  EXPECT_EQ(parseCommandLine({"--like", nothing, "other.csv"}).error(),
            "--like needs a session that tells how its table was read; " + nothing + " does not");
}

TEST_F(KeptReading, TimesThatRunsHadComeBackWithTheSession)
{
  save(openTable("run,time,X\n0,0,1\n0,1,2\n1,0.5,3\n"));
  reopen();
  ASSERT_TRUE(opened.study.measured);
  EXPECT_EQ(opened.study.measured->times, (std::vector<double>{0, 1, 0.5}));
}
