#include "app/comparison/ComparisonDock.h"
#include "app/comparison/ComparisonResults.h"
#include "app/document/SelectionController.h"
#include "app/styles/ViewerStyles.h"
#include "app/window/MainWindow.h"
#include "app/window/PlotDock.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "vtk/RowSelections.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAnnotationLink.h>
#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QUndoStack>
#include <QWheelEvent>

#include <cmath>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <random>
#include <sstream>

#include "window/PlotMouse.h"

using namespace Talmesh::app;

namespace
{

constexpr int patience = 60000;
constexpr int runCount = 20;
constexpr int pointsPerRun = 15;
constexpr int steps = 1000;

std::string studyOfFourParameters()
{
  std::mt19937 generator(7);
  // Runs with equal parameters would be fewer values than runs.
  const auto any = [&generator] { return static_cast<double>(generator()) / 1073741824.0; };
  std::ostringstream text;
  text.precision(12);
  text << "run,time,a,b,c,d,X,Y\n";
  for (int run = 0; run < runCount; ++run)
  {
    const double parameters[] = {any() - 2.0, any(), any() * any(), std::exp(any())};
    for (int point = 0; point < pointsPerRun; ++point)
    {
      text << run << ',' << point;
      for (const double parameter : parameters)
        text << ',' << parameter;
      text << ',' << any() + parameters[1] * point << ',' << any() << '\n';
    }
  }
  return text.str();
}

/// The seed of this session: the same every time unless the environment names another.
unsigned seedOfSession()
{
  const char* wanted = std::getenv("TALMESH_TEST_SEED");
  return wanted ? static_cast<unsigned>(std::atoi(wanted)) : 20261121U;
}

class RandomSession : public ::testing::Test
{
protected:
  RandomSession()
  {
    QFile file(folder.filePath(QStringLiteral("runs.csv")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(studyOfFourParameters()));
    file.close();
    window.resize(640, 480);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.openFile(file.fileName());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
    columns = static_cast<int>(container().getLabels().size());
  }

  PlotContainer& container() { return *window.plotWidget()->plotContainer(); }
  VtkPlotWidget& plot() { return *window.plotWidget(); }
  QUndoStack& history() { return window.selectionController()->undoStack(); }

  int below(int end) { return static_cast<int>(generator() % static_cast<unsigned>(end)); }
  bool maybe() { return below(2) == 1; }

  const char* changePlot()
  {
    const std::vector<ViewerStyle>& styles = viewerStyles();
    PlotChoice choice = window.plotDock()->choice();
    switch (below(4))
    {
    case 0:
      choice.x = below(columns);
      break;
    case 1:
      choice.y = {below(columns)};
      if (maybe())
        choice.y.push_back(below(columns));
      break;
    case 2:
      choice.lines = maybe();
      choice.legend = maybe();
      choice.logX = maybe();
      choice.logY = maybe();
      choice.z = below(columns);
      break;
    default:
      choice.style = styles[static_cast<std::size_t>(below(static_cast<int>(styles.size())))].style;
    }
    window.plotDock()->setChoice(choice);
    emit window.plotDock()->choiceChanged();
    return "plot";
  }

  const char* changeComparison()
  {
    static constexpr const char* controls[] = {
        "pThreshold",       "ksThreshold",   "density",          "commonDensityScale",
        "logParameterAxes", "quartileBands", "distributionPage", "pairPage"};
    auto* control = window.findChild<QWidget*>(QLatin1String(controls[below(8)]));
    const bool number = control->inherits("QDoubleSpinBox");
    QTest::keyClick(control, !number ? Qt::Key_Space : maybe() ? Qt::Key_Up : Qt::Key_PageDown);
    return "comparison";
  }

  const char* select()
  {
    ParameterSelection runs;
    std::vector<vtkIdType> rows;
    switch (below(5))
    {
    case 0:
      for (int count = below(runCount + 1); count > 0; --count)
        runs.runs.insert(below(runCount));
      container().setSelection(&runs, below(pointsPerRun));
      return "select runs";
    case 1:
      for (int count = below(40); count > 0; --count)
        rows.push_back(below(runCount * pointsPerRun + 5));
      container().getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection(rows));
      return "select rows";
    case 2:
      window.selectionController()->selectAll();
      return "select all";
    case 3:
      window.selectionController()->clear();
      return "select nothing";
    default:
      maybe() ? history().undo() : history().redo();
      return "undo or redo";
    }
  }

  QPoint anywhere() { return {below(plot().width()), below(plot().height())}; }

  const char* useMouse()
  {
    const QPoint from = anywhere();
    const QPoint to = anywhere();
    constexpr Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ControlModifier,
                                                   Qt::ShiftModifier};
    if (below(4) == 0)
    {
      QWheelEvent wheel(from, plot().mapToGlobal(from), {}, QPoint(0, maybe() ? 120 : -120),
                        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
      QCoreApplication::sendEvent(&plot(), &wheel);
      return "wheel";
    }
    drag(plot(), maybe() ? Qt::RightButton : Qt::LeftButton, from, to, modifiers[below(3)]);
    return "drag";
  }

  const char* resizeWindow()
  {
    window.resize(420 + below(300), 320 + below(250));
    return "resize";
  }

  const char* step()
  {
    const int kind = below(20);
    if (kind < 6)
      return changePlot();
    if (kind < 11)
      return changeComparison();
    if (kind < 16)
      return select();
    return kind < 19 ? useMouse() : resizeWindow();
  }

  void checkDrawing()
  {
    PlotMetaData& settings = *container().getMetaData();
    EXPECT_FALSE(settings.signalsBlocked());
    EXPECT_EQ(settings.getPlotStyle(), window.plotDock()->choice().style);
    EXPECT_EQ(settings.getStride(), pointsPerRun);
    EXPECT_EQ(settings.parameterColumns.size(), 4U);
    vtkContextScene* scene = plot().contextView()->GetScene();
    ASSERT_EQ(scene->GetNumberOfItems(), 1U);
    EXPECT_EQ(scene->GetItem(0), container().getItem());
    EXPECT_EQ(container().getTable()->GetNumberOfRows(), runCount * pointsPerRun);
    // The split of the runs adds its three columns of marks once.
    EXPECT_LE(container().getTable()->GetNumberOfColumns(), columns + 3);
  }

  void checkSelection()
  {
    const std::unique_ptr<ParameterSelection> selected(container().getSelection());
    ASSERT_TRUE(selected);
    for (const int run : selected->runs)
      EXPECT_TRUE(run >= 0 && run < runCount) << run;
    EXPECT_EQ(
        window.selectionText(),
        QStringLiteral("%1 of 20 runs selected").arg(static_cast<int>(selected->runs.size())));
  }

  void checkComparison()
  {
    const std::size_t tables = container().getDerivedTables().size();
    EXPECT_TRUE(tables == 0 || tables == 2 || tables == 8) << tables;
    const Comparison& comparison = window.document().comparison().current();
    const bool compared = comparison.state == Comparison::State::compared;
    EXPECT_EQ(comparison.parameters.size(), compared ? 4U : 0U);
    for (const ComparedParameter& parameter : comparison.parameters)
    {
      const Talmesh::stats::ParameterComparison& result = parameter.result;
      EXPECT_TRUE(result.distance >= 0.0 && result.distance <= 1.0);
      const bool tested = parameter.obstacle == TestObstacle::none;
      EXPECT_EQ(result.p >= 0.0 && result.p <= 1.0, tested) << result.p;
      EXPECT_EQ(result.adjusted >= result.p, tested);
      EXPECT_GT(result.selected, 0U);
      EXPECT_LE(result.selected + result.others, static_cast<std::size_t>(runCount));
    }
  }

  std::mt19937 generator{seedOfSession()};
  QTemporaryDir folder;
  MainWindow window;
  int columns = 0;
};

} // namespace

TEST_F(RandomSession, KeepsTheWindowInOrder)
{
  // A crash leaves no report, so the seed is said before.
  std::cout << "TALMESH_TEST_SEED=" << seedOfSession() << std::endl;
  for (int number = 0; number < steps && !HasFailure(); ++number)
  {
    const char* done = step();
    QCoreApplication::processEvents();
    SCOPED_TRACE(testing::Message()
                 << "seed " << seedOfSession() << ", step " << number << ": " << done);
    checkDrawing();
    checkSelection();
    checkComparison();
  }
}
