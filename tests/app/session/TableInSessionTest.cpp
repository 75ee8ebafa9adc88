#include "app/document/ShownStudy.h"
#include "external/PlotMetaData.h"
#include "plot/TableColumns.h"
#include "vtk/RowSelections.h"

#include <QFile>

#include <limits>
#include <vector>

#include "session/SavedSession.h"

using namespace Talmesh::app;
namespace plot = Talmesh::plot;

namespace
{

std::vector<double> valuesOf(vtkTable* table, const std::string& name)
{
  auto* column = vtkDoubleArray::SafeDownCast(plot::columnNamed(table, name));
  if (!column)
    return {};
  return {column->GetPointer(0), column->GetPointer(0) + column->GetNumberOfValues()};
}

class TableInSession : public SavedSession
{
};

} // namespace

TEST_F(TableInSession, KeepsParametersThatAreTheSameInAllRuns)
{
  // Plots leave them out.
  const Study study = sampleStudy(": Time [s],Molecule: A,Parameter: c,Parameter: k,: Run Index\n"
                                  "0,1,7,2,0\n1,2,7,2,0\n0,3,7,3,1\n1,4,7,3,1\n");
  save(study);
  PlotContainer& container = reopen();
  EXPECT_EQ(opened.study.runs->items, study.runs->items);
  EXPECT_EQ(opened.study.runs->parameterRanges, study.runs->parameterRanges);
  EXPECT_EQ(opened.study.runs->values[2][3], 7.0);
  EXPECT_EQ(container.getLabels(), shown->getLabels());
  EXPECT_FALSE(container.getLabels().contains("Parameter: c"));
}

TEST_F(TableInSession, KeepsBoundsThatAreInfinite)
{
  const Study study = sampleStudy();
  study.runs->parameterRanges[0] = {0.25, std::numeric_limits<double>::infinity()};
  save(study);
  reopen();
  EXPECT_EQ(opened.study.runs->parameterRanges, study.runs->parameterRanges);
}

TEST_F(TableInSession, RestoresAPlainTable)
{
  const Study study = sampleStudy("a,b\n1,2\n3,nan\n");
  save(study);
  PlotContainer& container = reopen();
  EXPECT_FALSE(opened.study.runs);
  EXPECT_EQ(container.getLabels(), QStringList({"a", "b"}));
  EXPECT_EQ(valuesOf(container.getTable(), "a"), (std::vector<double>{1, 3}));
}

TEST_F(TableInSession, KeepsNamesOfAnyLetters)
{
  save(sampleStudy("time,\xce\xb1 [\xc2\xb5M]\n0,1\n1,2\n"));
  EXPECT_TRUE(reopen().getLabels().contains(QString::fromUtf8("Molecule: \xce\xb1 [\xc2\xb5M]")));
}

TEST_F(TableInSession, KeepsColumnsThatWereAddedLater)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  const std::vector<double> later = {12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1};
  container.addColumn(later, "later");
  save(study, container);
  PlotContainer& again = reopen();
  EXPECT_EQ(again.getLabels(), container.getLabels());
  EXPECT_EQ(valuesOf(again.getTable(), "later"), later);
}

TEST_F(TableInSession, FindsColumnsBehindTheMarksOfASelection)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  const QStringList before = container.getLabels();
  container.getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection({4, 5, 6, 7}));
  ASSERT_GT(container.getLabels().size(), before.size());
  container.addColumn(std::vector<double>(12, 3.0), "later");
  container.getMetaData()->yColumns = {0, static_cast<int>(container.getLabels().size()) - 1};
  save(study, container);
  PlotContainer& again = reopen();
  const std::vector<int> y = again.getMetaData()->yColumns;
  EXPECT_EQ(y, (std::vector<int>{0, static_cast<int>(before.size())}));
  EXPECT_EQ(plot::columnName(again.getTable(), y[1]), "later");
}

TEST_F(TableInSession, TakesAColumnForOneItemOnly)
{
  // Two items "Molecule: X" and one column of that name, of one row.
  const QByteArray dump =
      QByteArray::fromHex("000000020000000100000002005800000001000000020058000000010000"
                          "000100000016004d006f006c006500630075006c0065003a00200058013f"
                          "f0000000000000");
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 1})", dump}), "the session's table is damaged");
}

TEST_F(TableInSession, RefusesTablesThatDoNotFitTheirRuns)
{
  const QByteArray dump = dumpOf(sampleStudy());
  const std::string damaged = "the session's table is damaged";
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 5})", dump}), damaged);
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 4})", QByteArray(12, '\0')}), damaged);
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 4})", dumpOf(sampleStudy("a,b\n1,2\n"))}), damaged);
  EXPECT_EQ(errorOf({"{}", QByteArray(12, '\0')}), damaged);
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 4})", dump}), "");
}

TEST_F(TableInSession, FindsBoundsThatAreMissing)
{
  const Study study = sampleStudy();
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 4})", dumpOf(study)}), "");
  EXPECT_EQ(openSession(path()).value().study.runs->parameterRanges, study.runs->parameterRanges);
}

TEST_F(TableInSession, NothingMayFollowTheLastValue)
{
  EXPECT_EQ(errorOf({R"({"pointsPerRun": 4})", dumpOf(sampleStudy()) + '\0'}),
            "the session's table is damaged");
}

TEST_F(TableInSession, AFileOfTwoGibibytesWithoutATableIsRefusedAtOnce)
{
  save(sampleStudy());
  QFile file(path());
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  // The header names 4 bytes of settings and a dump of nearly 2 GiB, which takes no room on the
  // disk; the file ends as any other.
  file.seek(12);
  const qint64 dumpSize = 0x7FFFFF00;
  file.write(QByteArray::fromHex("00000004"
                                 "000000007fffff00") +
             "{}  ");
  file.resize(24 + 4);
  file.resize(24 + 4 + dumpSize + sessionChecksumSize);
  file.seek(file.size() - sessionChecksumSize);
  file.write(QByteArray(sessionChecksumSize, 'x'));
  file.close();
  int steps = 0;
  const Result<OpenedSession> cut = openSession(path(), [&steps](double) { return ++steps < 2; });
  EXPECT_EQ(cut.error(), "the session's table is damaged");
  EXPECT_EQ(steps, 0) << "none of the table was read";
}
