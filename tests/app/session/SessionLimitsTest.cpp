#include "app/document/PlotSession.h"
#include "app/document/ShownStudy.h"
#include "app/session/DumpedTable.h"
#include "app/session/SessionFile.h"
#include "app/session/SessionTable.h"
#include "app/session/StudyFile.h"
#include "external/PlotMetaData.h"
#include "plot/BinaryDump.h"
#include "plot/ColumnList.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/SelectionFlags.h"
#include "plot/TableColumns.h"
#include "support/CapturedOutput.h"
#include "support/PlotScene.h"
#include "support/TightMemory.h"
#include "vtk/SelectionColumns.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <memory>

#include "SampleStudies.h"

using namespace Talmesh::app;
namespace plot = Talmesh::plot;

namespace
{

const std::string damaged = "the session's table is damaged";

/// A study of runs of one point, one item per column.
Study studyOf(const std::vector<Talmesh::TypedConcentrationName>& items, int runs = 2)
{
  auto table = boost::make_shared<LinePlotTable>();
  table->items = items;
  table->pointsPerTrajectory = 1;
  table->numberOfTrajectories = static_cast<std::size_t>(runs);
  for (const auto& item : items)
  {
    table->values.push_back(new double[static_cast<std::size_t>(runs)]);
    for (int run = 0; run < runs; ++run)
      table->values.back()[run] = run;
    if (item.first == Talmesh::Parameter)
      table->parameterRanges.emplace_back(0.0, runs - 1.0);
  }
  return {"runs", table, nullptr};
}

Study studyOfParameters(int parameters)
{
  std::vector<Talmesh::TypedConcentrationName> items = {{Talmesh::Molecule, "A"},
                                                        {Talmesh::TimeOrValue, "Time [s]"}};
  for (int i = 0; i < parameters; ++i)
    items.emplace_back(Talmesh::Parameter, "k" + std::to_string(i));
  return studyOf(items);
}

QByteArray dumpOf(vtkSmartPointer<vtkTable> table)
{
  plot::PlotState state;
  state.table = table;
  return plot::writeDump(state);
}

class SessionLimits : public ::testing::Test
{
protected:
  QString path() const { return folder.filePath("study.talmesh"); }

  static QByteArray dumpOfStudy(const Study& study)
  {
    PlotContainer container(nullptr);
    showStudy(study, container);
    return dumpStudy(study, container, container.getTable());
  }

  Result<OpenedSession> open(const QByteArray& settings, const QByteArray& dump)
  {
    const CapturedOutput errors(std::cerr);
    EXPECT_EQ(saveSessionFile(path(), {settings, dump}), "");
    return openSession(path());
  }

  std::string save(const Study& study)
  {
    PlotContainer container(nullptr);
    showStudy(study, container);
    return saveSession(path(), sessionOf(study, container, choiceOf(container)));
  }

  /// What a study looks like with the settings of a plot, written as JSON.
  PlotContainer& show(const Study& study, const QByteArray& plotSettings)
  {
    const Result<OpenedSession> read =
        open("{\"pointsPerRun\": " + QByteArray(study.runs ? "1" : "0") +
                 ", \"plot\": " + plotSettings + "}",
             dumpOfStudy(study));
    EXPECT_EQ(read.error(), "");
    const OpenedSession opened = read.hasValue() ? read.value() : OpenedSession();
    restored = std::make_unique<PlotContainer>(nullptr);
    restored->setScene(view.scene());
    if (opened.session)
    {
      showStudy(opened.study, *restored);
      restoreSettings(*opened.session, *restored);
      restoreWindow(*opened.session, *restored);
    }
    return *restored;
  }

  plotStyles styleOf(const Study& study, const QByteArray& plotSettings)
  {
    return show(study, plotSettings).getMetaData()->getPlotStyle();
  }

  QTemporaryDir folder;
  PlotScene view;
  std::unique_ptr<PlotContainer> restored;
};

} // namespace

TEST_F(SessionLimits, NoValueMayBeMissing)
{
  const QByteArray runs = dumpOfStudy(sampleStudy());
  for (int size = 1; size < runs.size(); ++size)
    ASSERT_EQ(open(R"({"pointsPerRun": 4})", runs.left(size)).error(), damaged) << size;
  const QByteArray table = dumpOfStudy(sampleStudy("a,b\n1,2\n3,4\n"));
  for (int size = 1; size < table.size(); ++size)
    ASSERT_EQ(open("{}", table.left(size)).error(), damaged) << size;
}

TEST_F(SessionLimits, TwoColumnsOfOneNameAreNotSaved)
{
  const Study study = studyOf({{Talmesh::Molecule, "A"}, {Talmesh::Molecule, "A"}});
  EXPECT_EQ(save(study), path().toStdString() + ": two columns have the name \"Molecule: A\"; a "
                                                "session needs a name for each");
  EXPECT_FALSE(QFile::exists(path()));
  EXPECT_EQ(save(studyOf({{Talmesh::Molecule, "A"}, {Talmesh::Complex, "A"}})), "");
}

TEST_F(SessionLimits, OnlyAsManyColumnsAreSavedAsCanBeOpened)
{
  std::vector<Talmesh::TypedConcentrationName> items;
  // The last column is that of the selection.
  for (int i = 1; i < mostSessionColumns; ++i)
    items.emplace_back(Talmesh::Molecule, std::to_string(i));
  Study study = studyOf(items);
  const Study shown = studyOf({items.front()});
  PlotContainer container(nullptr);
  showStudy(shown, container);
  EXPECT_EQ(saveSession(path(), sessionOf(study, container, choiceOf(container))), "");
  EXPECT_EQ(openSession(path()).error(), "");
  items.emplace_back(Talmesh::Molecule, "one more");
  study = studyOf(items);
  EXPECT_EQ(saveSession(path(), sessionOf(study, container, choiceOf(container))),
            path().toStdString() + ": the table is too large for a session");
}

TEST_F(SessionLimits, MoreColumnsThanAreImportedAreNotOpened)
{
  plot::ColumnList columns;
  for (int i = 0; i <= mostSessionColumns; ++i)
  {
    const auto column = vtkSmartPointer<vtkDoubleArray>::New();
    column->SetNumberOfValues(1);
    column->SetValue(0, 1.0);
    columns.add(std::to_string(i), column);
  }
  const vtkSmartPointer<vtkTable> table = columns.makeTable();
  EXPECT_EQ(open("{}", dumpOf(table)).error(),
            "the table has 20101 columns; at most 20100 can be read");
  table->RemoveColumn(0);
  EXPECT_EQ(open("{}", dumpOf(table)).error(), "");
}

TEST_F(SessionLimits, OpeningCanBeCancelledAtEveryStep)
{
  EXPECT_EQ(save(sampleStudy()), "");
  std::vector<double> parts;
  const Result<OpenedSession> read = openSession(path(),
                                                 [&parts](double part)
                                                 {
                                                   parts.push_back(part);
                                                   return true;
                                                 });
  ASSERT_TRUE(read.hasValue());
  ASSERT_GE(parts.size(), 2 + read.value().study.runs->items.size());
  EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
  EXPECT_LE(parts.back(), 1.0);
  for (std::size_t step = 1; step <= parts.size(); ++step)
  {
    std::size_t told = 0;
    const Result<OpenedStudy> opened = openStudyFile(path(), [&](double) { return ++told < step; });
    EXPECT_TRUE(opened.isCancelled()) << step;
    EXPECT_EQ(opened.error(), "") << step;
    EXPECT_FALSE(opened.hasValue()) << step;
    EXPECT_EQ(told, step) << "nothing goes on after it";
  }
}

TEST_F(SessionLimits, ParametersAreThoseThatTheTableHas)
{
  const Study study = studyOfParameters(3);
  using Columns = std::vector<int>;
  const auto parameters = [&](const QByteArray& named)
  { return show(study, "{\"parameters\": " + named + "}").getMetaData()->parameterColumns; };
  const Columns found = {2, 3, 4};
  EXPECT_EQ(parameters("[3, 2]"), (Columns{3, 2}));
  for (const char* wrong : {"[]", "[0]", "[2, 3, 4, 1]", "[2, 99]", "3"})
    EXPECT_EQ(parameters(wrong), found) << wrong;
}

TEST_F(SessionLimits, PagesOfTooManyChartsOpenAsAnXYPlot)
{
  const Study sixty = studyOfParameters(60);
  const Study more = studyOfParameters(61);
  for (const char* style : {"multiPlot", "fitParameterDistribution"})
  {
    const QByteArray settings = QByteArray("{\"style\": \"") + style + "\"}";
    EXPECT_NE(styleOf(sixty, settings), xyPlot) << style;
    EXPECT_EQ(styleOf(more, settings), xyPlot) << style;
    EXPECT_FALSE(restored->getMetaData()->signalsBlocked());
  }
  // Two columns beside the parameters.
  const QByteArray chosen = R"({"style": "scatterPlotMatrix", "chosenColumnsOnly": true})";
  EXPECT_EQ(styleOf(studyOfParameters(58), chosen), scatterPlotMatrix);
  EXPECT_EQ(styleOf(studyOfParameters(59), chosen), xyPlot);
  const QByteArray all = R"({"style": "scatterPlotMatrix", "chosenColumnsOnly": false})";
  EXPECT_EQ(styleOf(studyOfParameters(58), all), scatterPlotMatrix);
  EXPECT_EQ(styleOf(studyOfParameters(59), all), xyPlot);
}

TEST_F(SessionLimits, PagesOfThousandsOfColumnsOpenAsAnXYPlot)
{
  const Study many = studyOfParameters(3601);
  EXPECT_EQ(styleOf(many, R"({"style": "selectionCdfPlot"})"), xyPlot);
  EXPECT_EQ(styleOf(many, R"({"style": "parallelCoordinates", "y": [0, 1]})"), xyPlot);
  EXPECT_EQ(styleOf(many, R"({"style": "parallelCoordinates", "y": [0, 1, 2]})"),
            parallelCoordinates);
}

TEST_F(SessionLimits, RunsKeepTheirLengthWhateverTheStrideSays)
{
  const Result<OpenedSession> opened =
      open(R"({"pointsPerRun": 4, "plot": {"stride": 3}})", dumpOfStudy(sampleStudy()));
  ASSERT_TRUE(opened.hasValue());
  EXPECT_EQ(opened.value().session->settings.plot->getStride(), 4);
}

TEST_F(SessionLimits, MarksOfASelectionAreNoColumns)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  const char* marks[] = {"selected points", Talmesh::ComplementSelectionColumn,
                         Talmesh::ReducedSelectionColumn, Talmesh::RemainderSelectionColumn,
                         Talmesh::OriginalRowIdsColumn};
  for (const char* mark : marks)
    table->AddColumn(plot::makeColumn(mark, {1.0, 0.0}));
  EXPECT_EQ(open("{}", dumpOf(table)).error(), damaged);
  table->AddColumn(plot::makeColumn("a", {1.0, 2.0}));
  const Result<OpenedSession> opened = open("{}", dumpOf(table));
  ASSERT_EQ(opened.error(), "");
  vtkTable* columns = opened.value().study.table;
  ASSERT_EQ(columns->GetNumberOfColumns(), 1);
  EXPECT_EQ(plot::columnName(columns, 0), "a");
}

TEST_F(SessionLimits, SaysThatThereIsNoMemoryToSave)
{
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizer needs all addresses";
#endif
  constexpr vtkIdType rows = 16 << 20;
  auto table = vtkSmartPointer<vtkTable>::New();
  vtkNew<vtkIntArray> column;
  column->SetName("a");
  column->SetNumberOfValues(rows);
  column->FillValue(1);
  table->AddColumn(column);
  const Study study = {"large", nullptr, table};
  PlotContainer container(nullptr);
  showStudy(study, container);
  std::string error;
  {
    const TightMemory tight(16 << 20);
    error = saveSession(path(), sessionOf(study, container, choiceOf(container)));
  }
  EXPECT_EQ(error, path().toStdString() + ": there is not enough memory to save the session");
  EXPECT_FALSE(QFile::exists(path()));
}
