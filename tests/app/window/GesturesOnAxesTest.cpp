#include "app/window/FilterLine.h"

#include <vtkTooltipItem.h>

#include <QLineEdit>
#include <QProcess>
#include <QWheelEvent>

#include <functional>
#include <sstream>

#include "window/GesturesInWindow.h"

namespace
{

using namespace Talmesh::app;
using Runs = std::set<int>;

/// What an axis shows in place of small whole numbers.
struct Shown
{
  double offset;
  double scale;
  bool logarithmic;

  /// What the table holds.
  double value(double number) const
  {
    return logarithmic ? std::pow(10.0, place(number)) : place(number);
  }
  /// Where the axis shows it.
  double place(double number) const { return offset + scale * number; }
};

struct Axes
{
  const char* name;
  Shown x;
  Shown y;
};

constexpr Shown plain{0, 1, false};
const Axes manyAxes[] = {{"plain", plain, plain},
                         {"late times", {1e9, 1, false}, plain},
                         {"tiny values", plain, {0, 1e-15, false}},
                         {"huge values", plain, {-3e18, 1e18, false}},
                         {"small differences", {1e5, 0.001, false}, {1e6, 0.001, false}},
                         {"logarithmic values", plain, {-8, 3, true}},
                         {"logarithmic times", {-3, 1, true}, plain},
                         {"both logarithmic", {2, 0.5, true}, {0, 1, true}}};

struct Gesture
{
  const char* name;
  Talmesh::SelectionTool tool;
  GestureRule rule;
  std::vector<std::pair<double, double>> places;
  Runs hit;
};

const Gesture gestures[] = {
    {"click", Talmesh::SelectionTool::Rectangle, GestureRule::Through, {{2.5, 2.5}}, {1}},
    {"through",
     Talmesh::SelectionTool::Rectangle,
     GestureRule::Through,
     {{1.4, 2.8}, {1.6, 4.8}},
     {2, 3}},
    {"inside",
     Talmesh::SelectionTool::Rectangle,
     GestureRule::Inside,
     {{1.2, 3.2}, {2.8, 1.03}},
     {1}},
    {"lasso",
     Talmesh::SelectionTool::Lasso,
     GestureRule::Through,
     {{3.4, 2.3}, {3.6, 2.3}, {3.6, 2.9}, {3.4, 2.9}},
     {2}},
    {"line", Talmesh::SelectionTool::Line, GestureRule::Through, {{4.5, 1.7}, {4.5, 3}}, {3}},
};

/// Four runs over the times 1 to 5, whose lines look the same on all axes.
class GesturesOnAxes : public GesturesInWindow
{
protected:
  GesturesOnAxes()
  {
    bool isScaled = false;
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&isScaled);
    EXPECT_EQ(plot().devicePixelRatioF(), isScaled ? scale : 1);
  }

  void open(const Axes& wanted)
  {
    axes = wanted;
    const int heights[4][5] = {{1, 1, 1, 1, 1}, {1, 2, 3, 4, 5}, {5, 4, 3, 2, 1}, {3, 5, 3, 1, 3}};
    std::ostringstream text;
    text.precision(17);
    text << "run,time,k,X\n";
    for (int run = 0; run < 4; ++run)
      for (int point = 0; point < 5; ++point)
        text << run << ',' << axes.x.value(point + 1) << ',' << run << ','
             << axes.y.value(heights[run][point]) << '\n';
    QFile file(folder.filePath("axes.csv"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(text.str()));
    file.close();
    window.openFile(file.fileName());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
    PlotChoice choice = window.plotDock()->choice();
    choice.style = xyPlot;
    choice.logX = axes.x.logarithmic;
    choice.logY = axes.y.logarithmic;
    window.plotDock()->setChoice(choice);
    emit window.plotDock()->choiceChanged();
    plot().updatePlot(true);
  }

  QPoint pixelAt(const std::pair<double, double>& numbers)
  {
    return pixelOf(axes.x.place(numbers.first), axes.y.place(numbers.second));
  }

  void point(const Gesture& gesture, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    choose(gesture.tool);
    choose(gesture.rule);
    std::vector<QPoint> pixels;
    for (const auto& place : gesture.places)
      pixels.push_back(pixelAt(place));
    drawPixels(pixels, modifiers);
  }

  void zoomIn()
  {
    const QPoint place = pixelAt({3, 3});
    QWheelEvent wheel(place, plot().mapToGlobal(place), {}, QPoint(0, 240), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&plot(), &wheel);
    QCoreApplication::processEvents();
  }

  QString words() { return window.filterLine()->findChild<QLineEdit*>()->text(); }

  Axes axes{"", plain, plain};
};

} // namespace

TEST_F(GesturesOnAxes, SelectTheSameRunsWhateverTheAxesShow)
{
  for (const Axes& shown : manyAxes)
  {
    open(shown);
    for (const Gesture& gesture : gestures)
    {
      point(gesture);
      EXPECT_EQ(runs(), gesture.hit)
          << shown.name << ", " << gesture.name << ": " << words().toStdString();
      select("runs(0)");
      point(gesture, Qt::ControlModifier | Qt::ShiftModifier);
      Runs toggled = gesture.hit;
      toggled.insert(0);
      EXPECT_EQ(runs(), toggled) << shown.name << ", " << gesture.name;
    }
  }
}

TEST_F(GesturesOnAxes, SayWordsThatSelectTheSameRunsAgain)
{
  for (const Axes& shown : manyAxes)
  {
    open(shown);
    for (const Gesture& gesture : gestures)
    {
      point(gesture);
      const QString said = words();
      select("runs(0)");
      select(said.toUtf8().constData());
      EXPECT_EQ(runs(), gesture.hit) << shown.name << ", " << said.toStdString();
    }
  }
}

TEST_F(GesturesOnAxes, MayBeNoWiderThanALine)
{
  for (const Axes& shown : manyAxes)
  {
    open(shown);
    for (const Rule rule : {Rule::Through, Rule::Inside})
    {
      choose(rule);
      const QPoint below = pixelAt({1.5, 2.8});
      drawPixels({below, QPoint(below.x(), pixelAt({1.5, 4.8}).y())});
      EXPECT_EQ(runs(), (Runs{2, 3})) << shown.name << ": " << words().toStdString();
    }
    choose(Rule::Through);
    const QPoint left = pixelAt({1.1, 4.3});
    drawPixels({left, QPoint(pixelAt({1.8, 4.3}).x(), left.y())});
    EXPECT_EQ(runs(), (Runs{2, 3})) << shown.name << ": " << words().toStdString();
  }
}

TEST_F(GesturesOnAxes, NameTheRunThatIsThere)
{
  for (const Axes& shown : manyAxes)
  {
    open(shown);
    const QPoint pixel = pixelAt({2.5, 3.5});
    QMouseEvent move(QEvent::MouseMove, pixel, plot().mapToGlobal(pixel), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&plot(), &move);
    vtkTooltipItem* tooltip = container().getChartXY()->GetTooltip();
    EXPECT_TRUE(tooltip->GetVisible()) << shown.name;
    EXPECT_EQ(std::string(tooltip->GetText()).substr(0, 10), "Run 2, X: ") << shown.name;
  }
}

TEST_F(GesturesOnAxes, EndAtTheAxesThatAreShown)
{
  for (const Axes& shown : {manyAxes[0], manyAxes[4], manyAxes[7]})
  {
    open(shown);
    zoomIn();
    ASSERT_GT(container().getChartXY()->GetAxis(vtkAxis::LEFT)->GetMinimum(), axes.y.place(1))
        << shown.name;
    // Down to the window's edge, far below the lines that are shown.
    drawPixels({pixelAt({2.95, 3.3}), QPoint(pixelAt({3.05, 3}).x(), plot().height() - 1)});
    EXPECT_EQ(runs(), (Runs{1, 2, 3})) << shown.name << ": " << words().toStdString();
  }
}

/// The scale is fixed when a program starts.
TEST(GesturesOnADenseScreen, SelectTheSameRuns)
{
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_SCALE_FACTOR", "2");
  QProcess process;
  process.setProcessEnvironment(environment);
  process.start(QCoreApplication::applicationFilePath(),
                {"--gtest_filter=GesturesOnAxes.SelectTheSameRuns*"});
  ASSERT_TRUE(process.waitForFinished(300000));
  const QByteArray output = process.readAllStandardOutput();
  EXPECT_EQ(process.exitCode(), 0) << output.toStdString();
  EXPECT_TRUE(output.contains("[  PASSED  ] 1 test.")) << output.toStdString();
}
