#include "app/session/RunFiles.h"

#include "app/session/StudyFile.h"

#include <QDir>
#include <QFile>

#include "formats/WrittenFiles.h"
#include "formats/WrittenSheets.h"

using namespace Talmesh::app;

namespace
{

class RunFiles : public WrittenFiles
{
protected:
  OpenedStudy opened(const QStringList& paths, const ImportRequest& request = {})
  {
    const Result<OpenedStudy> result = openStudyFiles(paths, {}, request, &report);
    EXPECT_EQ(result.error(), "");
    return result.hasValue() ? result.value() : OpenedStudy();
  }

  /// Three runs of two, two and three points.
  void writeRuns() const
  {
    write("run1.csv", "time,A\n0,1\n1,2\n");
    write("run2.csv", "time;A\n0;3,5\n1;4,5\n");
    write("run10.tsv", "time\tA\n0\t5\n1\t6\n2\t7\n");
  }

  QStringList all(const QString& pattern) const
  {
    QStringList names;
    for (const QString& file : namedFiles({folder.filePath(pattern)}))
      names.append(QDir(folder.path()).relativeFilePath(file));
    return names;
  }

  ImportReport report;
};

} // namespace

TEST_F(RunFiles, AreThoseOfAFolderInTheOrderOfTheirNumbers)
{
  writeRuns();
  write("notes.pdf", "%PDF");
  EXPECT_EQ(all(QString()), (QStringList{"run1.csv", "run2.csv", "run10.tsv"}));
  EXPECT_EQ(all(QStringLiteral("*.csv")), (QStringList{"run1.csv", "run2.csv"}));
  EXPECT_EQ(all(QStringLiteral("run?.csv")), (QStringList{"run1.csv", "run2.csv"}));
  EXPECT_EQ(all(QStringLiteral("missing.csv")), QStringList{"missing.csv"});
  EXPECT_EQ(all(QStringLiteral("missing*")), QStringList{"missing*"});
}

TEST_F(RunFiles, MayHaveStarsInTheirNames)
{
  write("a*.csv", "time,A\n0,1\n");
  write("ab.csv", "time,A\n0,1\n");
  EXPECT_EQ(all(QStringLiteral("a*.csv")), QStringList{"a*.csv"});
}

TEST_F(RunFiles, OfAFolderAreRunsOfAnyLength)
{
  writeRuns();
  const OpenedStudy study = opened({folder.path()});
  ASSERT_TRUE(study.study.runs);
  EXPECT_EQ(report.runs, 3U);
  EXPECT_EQ(report.fewestPoints, 2U);
  EXPECT_EQ(report.mostPoints, 3U);
  EXPECT_EQ(report.items, std::vector<std::string>{"A"});
  EXPECT_EQ(study.study.name, "3 files of " + QDir(folder.path()).dirName().toStdString());
}

TEST_F(RunFiles, HaveTheirParametersInOneOfThem)
{
  write("x1.csv", "time,A\n0,1\n1,2\n");
  write("x2.csv", "time,A\n0,3\n1,4\n");
  write("design.csv", "file,k1,drug\nx2.csv,0.5,none\nx1.csv,0.25,aspirin\n");
  opened({path("x1.csv"), path("x2.csv"), path("design.csv")});
  EXPECT_EQ(report.runs, 2U);
  EXPECT_EQ(report.parameters, std::vector<std::string>{"k1"});
  EXPECT_EQ(report.categories, std::vector<std::string>{"drug"});
}

TEST_F(RunFiles, HaveTheirParametersInATableThatIsNamed)
{
  writeRuns();
  QDir(folder.path()).mkdir(QStringLiteral("design"));
  write("design/k.csv", "k1\n1\n2\n3\n");
  ImportRequest request;
  request.parameterTable = path("design/k.csv").toStdString();
  const Result<OpenedStudy> unsure = openStudyFiles({folder.path()}, {}, request, &report);
  EXPECT_NE(unsure.error().find("--join order"), std::string::npos);
  EXPECT_TRUE(report.isUnsure());
  report = ImportReport();
  request.join = "order";
  opened({folder.path()}, request);
  EXPECT_EQ(report.parameters, std::vector<std::string>{"k1"});
}

TEST_F(RunFiles, ThatHoldSeveralRunsHaveBothNames)
{
  write("x1.csv", "run,time,A\n1,0,1\n1,1,2\n2,0,3\n2,1,4\n");
  write("x2.csv", "run,time,A\n1,0,5\n1,1,6\n2,0,7\n2,1,8\n");
  opened({path("x1.csv"), path("x2.csv")});
  EXPECT_EQ(report.runs, 4U);
}

TEST_F(RunFiles, SayWhichOfThemCannotBeRead)
{
  writeRuns();
  write("run3.csv", "time,A\n0,\"1\n");
  const std::string error = openStudyFiles({folder.path()}).error();
  EXPECT_EQ(error.rfind(folder.path().toStdString() + ": run3.csv: ", 0), 0U) << error;
}

TEST_F(RunFiles, OfOtherFormatsAreImported)
{
  std::vector<double> values(3 * 2 * 2);
  for (std::size_t i = 0; i < values.size(); ++i)
    values[i] = static_cast<double>(i * i);
  const QString arrays =
      writeZip("a.npz", {{"data.npy", npy("'<f8'", "(3, 2, 2)", bytesOf(values))},
                         {"time.npy", npy("'<f8'", "(2,)", bytesOf<double>({0.0, 0.5}))},
                         {"k1.npy", npy("'<f8'", "(3,)", bytesOf<double>({5, 6, 7}))}});
  const OpenedStudy study = opened({arrays});
  EXPECT_EQ(studySize(study.study), "3 runs, 2 points each, 1 parameter");
  EXPECT_EQ(report.parameters, std::vector<std::string>{"k1"});
  EXPECT_EQ(report.items, (std::vector<std::string>{"Column 1", "Column 2"}));

  report = ImportReport();
  const QString sheet = writeZip(
      "a.xlsx", xlsxMembers({{"Runs", "<row><c t='s'><v>0</v></c><c t='s'><v>1</v></c></row>"
                                      "<row><c><v>0</v></c><c><v>5</v></c></row>"
                                      "<row><c><v>1</v></c><c><v>6</v></c></row>"
                                      "<row><c><v>0</v></c><c><v>7</v></c></row>"
                                      "<row><c><v>1</v></c><c><v>8</v></c></row>"}}));
  EXPECT_EQ(studySize(opened({sheet}).study), "2 runs, 2 points each, 0 parameters");
  EXPECT_EQ(report.items, std::vector<std::string>{"B"});
}
