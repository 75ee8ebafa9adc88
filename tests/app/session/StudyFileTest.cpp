#include "app/session/StudyFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <new>
#include <stdexcept>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

void write(const QString& path, const QByteArray& content)
{
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(content);
}

} // namespace

TEST(StudyFile, OpensATableAndNamesItAfterTheFile)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("runs.csv"));
  write(path, QByteArray::fromStdString(sampleRuns()));
  const Result<OpenedStudy> opened = openStudyFile(path);
  ASSERT_TRUE(opened.hasValue()) << opened.error();
  EXPECT_EQ(opened.value().study.name, "runs.csv");
  EXPECT_EQ(studySize(opened.value().study), "3 runs, 4 points each, 1 parameter");
}

TEST(StudyFile, BeginsItsErrorsWithTheFile)
{
  const QTemporaryDir folder;
  const QString missing = folder.filePath(QStringLiteral("missing.csv"));
  EXPECT_EQ(openStudyFile(missing).error(), missing.toStdString() + ": there is no such file");
  EXPECT_EQ(openStudyFile(folder.path()).error(),
            folder.path().toStdString() + ": this is not a file");
  EXPECT_EQ(openStudyFile(QStringLiteral("/dev/zero")).error(), "/dev/zero: this is not a file");
  const QString empty = folder.filePath(QStringLiteral("empty.csv"));
  write(empty, {});
  EXPECT_EQ(openStudyFile(empty).error(), empty.toStdString() + ": the file is empty");
}

TEST(StudyFile, ReadsNoFurtherThanAZeroByte)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("sparse.csv"));
  write(path, "time,a\n0,1\n");
  ASSERT_TRUE(QFile::resize(path, qint64(64) << 20));
  int reports = 0;
  const Result<OpenedStudy> opened = openStudyFile(path, [&reports](double) { return ++reports; });
  EXPECT_EQ(opened.error(), path.toStdString() + ": not a table: the file holds binary data");
  EXPECT_EQ(reports, 0);
}

TEST(StudyFile, CanBeCancelledWhileItReads)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("runs.csv"));
  write(path, QByteArray::fromStdString(sampleRuns()));
  const Result<OpenedStudy> opened = openStudyFile(path, [](double) { return false; });
  EXPECT_TRUE(opened.isCancelled());
  EXPECT_FALSE(opened.hasValue());
}

TEST(StudyFile, TellsWhateverGoesWrongInOneLine)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("runs.csv"));
  write(path, QByteArray::fromStdString(sampleRuns()));
  const Result<OpenedStudy> broken =
      openStudyFile(path, [](double) -> bool { throw std::runtime_error("broken"); });
  EXPECT_EQ(broken.error(), path.toStdString() + ": cannot be opened: broken");
  EXPECT_FALSE(broken.hasValue());
  const Result<OpenedStudy> large =
      openStudyFile(path, [](double) -> bool { throw std::bad_alloc(); });
  EXPECT_EQ(large.error(), path.toStdString() + ": the table does not fit into memory");
}

TEST(StudyFile, FindsTheConditionsOfACollectionByTheNameOfTheMeasurements)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("measurementData_X.tsv"));
  write(path, "observableId\tsimulationConditionId\ttime\tmeasurement\n"
              "A\tc1\t0\t1\nA\tc1\t5\t2\nA\tc2\t0\t3\nA\tc2\t5\t4\n");
  write(folder.filePath(QStringLiteral("experimentalCondition_X.tsv")),
        "conditionId\tdose\nc1\t1\nc2\tk\n");
  write(folder.filePath(QStringLiteral("parameters_X.tsv")), "parameterId\tnominalValue\nk\t7\n");
  const Result<OpenedStudy> opened = openStudyFile(path);
  ASSERT_TRUE(opened.hasValue()) << opened.error();
  EXPECT_EQ(studySize(opened.value().study), "2 runs, 2 points each, 2 parameters");
}

TEST(StudyFile, TakesTheRowsOfAScanForRuns)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("a.scan"));
  write(path, "# IPTG  GFP\n1 0\n2 5\n4 6\n");
  const Result<OpenedStudy> opened = openStudyFile(path);
  ASSERT_TRUE(opened.hasValue()) << opened.error();
  ASSERT_TRUE(opened.value().study.runs);
  EXPECT_EQ(opened.value().study.runs->numberOfTrajectories, 3u);
}
