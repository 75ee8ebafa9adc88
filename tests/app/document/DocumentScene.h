#ifndef DocumentScene_h
#define DocumentScene_h

#include "app/document/Document.h"
#include "app/document/OwnChart.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"
#include "plot/TableColumns.h"
#include "support/PlotScene.h"

#include <vtkChartXY.h>
#include <vtkPlot.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "SampleStudies.h"

/// Six runs over eight points with two parameters, numbered from 0. Columns: 0 X, 1 Y, 2 time, 3
/// Run Index, 4 k, 5 m.
inline std::string sixRuns()
{
  std::ostringstream text;
  text << "run,time,k,m,X,Y\n";
  for (int run = 0; run < 6; ++run)
    for (int point = 0; point < 8; ++point)
      text << run << ',' << point << ',' << 1 + run << ',' << (run * 5) % 6 + 1 << ','
           << (run + 1) * (run % 2 == 0 ? point + 1 : 8 - point) << ',' << point + run << '\n';
  return text.str();
}

/// A document in a scene without a window.
class DocumentScene : public ::testing::Test
{
protected:
  DocumentScene()
  {
    QObject::connect(&document, &Talmesh::app::Document::drawn, [this] { ++announced; });
    QObject::connect(&document, &Talmesh::app::Document::studyChanged, [this] { ++studies; });
  }

  std::string open(const std::string& text = sixRuns(), const Talmesh::app::PlotWishes& wishes = {})
  {
    Talmesh::app::OpenedStudy opened;
    opened.study = sampleStudy(text);
    return document.open(opened, wishes);
  }

  /// As `open`, in the XY plot.
  void openInXYPlot()
  {
    Talmesh::app::PlotWishes wishes;
    wishes.style = xyPlot;
    ASSERT_EQ(open(sixRuns(), wishes), "");
  }

  PlotContainer& container() { return *document.container(); }
  PlotMetaData& settings() { return *container().getMetaData(); }
  vtkChartXY& chart() { return *container().getChartXY(); }

  /// Sorts the runs into groups as the document says.
  void group()
  {
    if (const auto clustering = document.groups().clustering())
    {
      EXPECT_TRUE(clustering->compute());
      document.takeGroups(*clustering);
    }
  }

  void select(const std::set<int>& runs)
  {
    ParameterSelection selection;
    selection.runs = runs;
    container().setSelection(&selection, 0);
    QCoreApplication::processEvents();
  }
  std::set<int> selectedRuns()
  {
    return std::unique_ptr<ParameterSelection>(container().getSelection())->runs;
  }

  double value(int column, vtkIdType row)
  {
    return Talmesh::plot::doubleColumn(container().getTable(), column)->GetValue(row);
  }

  std::vector<std::string> labels()
  {
    std::vector<std::string> found;
    for (vtkIdType i = 0; i < chart().GetNumberOfPlots(); ++i)
      found.push_back(chart().GetPlot(i)->GetLabel());
    return found;
  }

  /// Drawings of the container now shown, whoever asked for them.
  unsigned long drawingsSoFar() { return stateOf(container()).drawings; }
  /// Counts drawings of the container now shown from now on.
  void countDrawings()
  {
    QCoreApplication::processEvents();
    container().removeDrawingSteps(&counter);
    container().addCompletion(&counter, [this] { ++drawings; });
    drawings = 0;
    announced = 0;
  }
  /// Drawings and announcements since the last call.
  void expectOneDrawing(const char* of)
  {
    QCoreApplication::processEvents();
    EXPECT_EQ(std::exchange(drawings, 0), 1) << of;
    EXPECT_EQ(std::exchange(announced, 0), 1) << of;
  }

  PlotScene scene;
  QTemporaryDir folder;
  QObject counter;
  int drawings = 0;
  int announced = 0;
  int studies = 0;
  Talmesh::app::Document document{[this](PlotContainer& shown) { shown.setScene(scene.scene()); }};
};

#endif
