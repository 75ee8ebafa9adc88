#include "app/memory/PaintingMemory.h"

#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/export/PictureFile.h"
#include "app/import/SystemMemory.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/TightMemory.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

/// A column that counts its copies.
class CountedColumn : public vtkDoubleArray
{
public:
  static CountedColumn* New() { VTK_STANDARD_NEW_BODY(CountedColumn); }
  int copies() const { return count; }

protected:
  vtkObjectBase* NewInstanceInternal() const override
  {
    ++count;
    return vtkDoubleArray::New();
  }

private:
  mutable int count = 0;
};

} // namespace

TEST(PaintingMemory, GrowsWithPointsAndPixels)
{
  PlotContainer container(nullptr);
  showStudy(sampleStudy(sampleRuns(3, 4)), container);
  const std::size_t few = memoryToPaint(container, {100, 100});
  EXPECT_GE(few, std::size_t{100 * 100 * 4});
  EXPECT_GE(memoryToPaint(container, {20000, 20000}), std::size_t{20000} * 20000 * 4);
  showStudy(sampleStudy(sampleRuns(3, 4000)), container);
  EXPECT_GT(memoryToPaint(container, {100, 100}), few + 3 * 3996 * sizeof(float));
}

TEST(PaintingMemory, IsThatOfEveryPairAndEveryAxisOfARow)
{
  PlotContainer container(nullptr);
  showStudy(sampleStudy(sampleRuns(10, 1000)), container);
  container.getMetaData()->blockSignals(true);
  const auto neededBy = [&container](plotStyles style)
  {
    container.getMetaData()->setPlotStyle(style);
    return memoryToPaint(container, {100, 100});
  };
  const std::size_t pixels = memoryToPaint(PlotContainer(nullptr), {100, 100});
  const std::size_t plain = neededBy(xyPlot);
  container.getMetaData()->setLimitColumVisibility(false);
  const auto columns = static_cast<std::size_t>(container.getTable()->GetNumberOfColumns());
  EXPECT_EQ(neededBy(scatterPlotMatrix) - pixels, columns * (columns - 1) / 2 * (plain - pixels));
  container.getMetaData()->setLimitColumVisibility(true);
  // The parameter k and two more are three pairs.
  EXPECT_EQ(neededBy(scatterPlotMatrix) - pixels, 3 * (plain - pixels));
  EXPECT_EQ(neededBy(parallelCoordinates) - pixels, columns * (plain - pixels));
}

TEST(PaintingMemory, IsNoneForMarksOfASelection)
{
  PlotContainer container(nullptr);
  showStudy(sampleStudy(sampleRuns(10, 100)), container);
  container.getMetaData()->blockSignals(true);
  container.getMetaData()->setPlotStyle(parallelCoordinates);
  const std::size_t before = memoryToPaint(container, {100, 100});
  container.addColumn(std::vector<double>(1000, 0.0), "vtkRemainderSelection");
  EXPECT_EQ(memoryToPaint(container, {100, 100}), before);
  container.addColumn(std::vector<double>(1000, 0.0), "further");
  EXPECT_GT(memoryToPaint(container, {100, 100}), before);
}

TEST(PaintingMemory, IsThatOfEveryChartOfAPage)
{
  PlotContainer container(nullptr);
  showStudy(sampleStudy(sampleRuns(10, 1000)), container);
  PlotMetaData& settings = *container.getMetaData();
  settings.blockSignals(true);
  const std::size_t pixels = memoryToPaint(PlotContainer(nullptr), {100, 100});
  const auto neededBy = [&](plotStyles style)
  {
    settings.setPlotStyle(style);
    return memoryToPaint(container, {100, 100}) - pixels;
  };
  settings.yColumns.resize(1);
  const std::size_t chart = neededBy(xyPlot);
  settings.yColumns = {3, 4};
  for (const std::size_t parameters : {0, 1, 2, 5})
  {
    settings.parameterColumns.assign(parameters, 2);
    const std::size_t pairs = parameters * (parameters - 1) / 2;
    EXPECT_EQ(neededBy(multiPlot), parameters == 0 ? 0 : (pairs + 1) * chart) << parameters;
    EXPECT_EQ(neededBy(fitParameterDistribution), (pairs + parameters) * chart) << parameters;
    EXPECT_EQ(neededBy(selectionCdfPlot), chart) << parameters;
  }
}

TEST(PaintingMemory, IsThereOrNot)
{
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "The sanitizer takes addresses without bound.";
#endif
  const TightMemory tight(std::size_t{64} << 20U);
  EXPECT_TRUE(hasMemory(0));
  EXPECT_TRUE(hasMemory(1 << 20));
  EXPECT_FALSE(hasMemory(std::size_t{128} << 20U));
}

TEST(PaintingMemory, IsNotTakenFromOtherPrograms)
{
  std::ifstream file("/proc/meminfo");
  std::map<std::string, std::size_t> bytes;
  std::string name;
  for (std::size_t number = 0; file >> name >> number; file.ignore(1024, '\n'))
    bytes[name] = number * 1024;
  ASSERT_GT(bytes["MemAvailable:"], 0U);
  const std::size_t present = bytes["MemTotal:"] + bytes["SwapTotal:"];
  const std::size_t available = bytes["MemAvailable:"] + bytes["SwapFree:"];
  EXPECT_TRUE(hasMemory(available / 2));
  // The system itself refuses only what would never fit.
  EXPECT_FALSE(hasMemory(available + (present - available) / 2));
}

TEST(PaintingMemory, IsMissedBeforeAnythingIsPainted)
{
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "The sanitizer takes addresses without bound.";
#endif
  const QTemporaryDir folder;
  const auto widget = makeHiddenPlot(QSize(200, 150));
  showStudy(sampleStudy(), *widget->plotContainer());
  applyChoice(*widget->plotContainer(), choiceOf(*widget->plotContainer()));
  const QString path = folder.filePath(QStringLiteral("plot.png"));
  ASSERT_EQ(exportPlot(*widget, path), "");
  ASSERT_TRUE(QFile::remove(path));
  const TightMemory tight(std::size_t{128} << 20U);
  EXPECT_EQ(exportPlot(*widget, path, {QSizeF(400.0, 400.0), 1200}),
            path.toStdString() + ": there is not enough memory for this picture");
  EXPECT_FALSE(QFile::exists(path));
}

TEST(PaintingMemory, IsMissedBeforeATableIsCopied)
{
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "The sanitizer takes addresses without bound.";
#endif
  const QTemporaryDir folder;
  const auto widget = makeHiddenPlot(QSize(200, 150));
  showStudy(sampleStudy(sampleRuns(100, 1000)), *widget->plotContainer());
  vtkTable* table = widget->plotContainer()->getTable();
  const vtkNew<CountedColumn> column;
  column->SetName("counted");
  column->SetNumberOfTuples(table->GetNumberOfRows());
  column->FillValue(1.0);
  table->AddColumn(column);
  const auto bytes = static_cast<std::size_t>(table->GetNumberOfRows()) *
                     static_cast<std::size_t>(table->GetNumberOfColumns()) * sizeof(double);
  const QString path = folder.filePath(QStringLiteral("table.csv"));
  {
    const TightMemory tight(bytes - 4096);
    EXPECT_EQ(paintPlot(*widget, path, {}).error(),
              path.toStdString() + ": there is not enough memory for this picture");
    EXPECT_EQ(column->copies(), 0);
    EXPECT_EQ(exportPlot(*widget, path), "") << "without a copy";
  }
  // Writing makes short ones of some rows.
  const int before = column->copies();
  EXPECT_EQ(paintPlot(*widget, path, {}).error(), "");
  EXPECT_EQ(column->copies(), before + 1);
}
