#include "vtk/vtkPlotLineSet.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkImageData.h>
#include <vtkPlotLine.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkWindowToImageFilter.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "VtkTestSupport.h"

/// The pictures of line sets on the screen, beside VTK's own lines, which it draws as triangles.
namespace
{
constexpr int width = 420;
constexpr int height = 300;

class LineSetScreen : public ::testing::Test
{
protected:
  using Axis = std::function<double(int)>;

  void SetUp() override
  {
    view->GetRenderWindow()->SetSize(width, height);
    view->GetRenderWindow()->SetMultiSamples(0);
    view->GetRenderer()->SetBackground(1, 1, 1);
  }

  static vtkSmartPointer<vtkTable> waves(const Axis& x, const Axis& y)
  {
    std::vector<double> across;
    std::vector<double> up;
    for (int i = 0; i < 200; ++i)
    {
      across.push_back(x(i));
      up.push_back(y(i));
    }
    return makeTable({{"x", across}, {"y", up}});
  }

  template <class Item>
  void show(vtkChartXY* chart, vtkTable* table)
  {
    chart->ClearPlots();
    vtkNew<Item> item;
    if constexpr (std::is_same_v<Item, vtkPlotLineSet>)
    {
      item->SetStride(200);
      item->OnlyShowSelectedOff();
    }
    item->SetWidth(3);
    item->SetColor(0, 0, 0, 255);
    item->SetInputData(table, "x", "y");
    chart->AddPlot(item);
  }

  // Darkness of the pixels, 0 to 1, row by row from the lowest.
  std::vector<double> picture(int scale = 1)
  {
    // The first frames settle the axes.
    for (int frame = 0; frame < 3; ++frame)
      view->GetRenderWindow()->Render();
    vtkNew<vtkWindowToImageFilter> reader;
    reader->SetInput(view->GetRenderWindow());
    reader->SetScale(scale);
    reader->ReadFrontBufferOff();
    reader->Update();
    const auto* values = static_cast<unsigned char*>(reader->GetOutput()->GetScalarPointer());
    std::vector<double> dark;
    for (int i = 0; i < width * scale * height * scale; ++i)
      dark.push_back(1.0 - values[3 * i] / 255.0);
    return dark;
  }

  // Mean heights of what a chart shows in its columns, and how much that is.
  struct Column
  {
    double height = 0;
    double ink = 0;
  };
  // Where the chart lay when it was painted last, in the parts of a larger window too.
  static std::vector<Column> columns(const std::vector<double>& dark, vtkChartXY* chart, int scale)
  {
    const int* low = chart->GetPoint1();
    const int* high = chart->GetPoint2();
    std::vector<Column> found;
    for (int x = low[0] + 4; x < high[0] - 4; ++x)
    {
      Column column;
      for (int y = low[1] + 3; y < high[1] - 3; ++y)
      {
        const double ink = dark[static_cast<std::size_t>(y * width * scale + x)];
        // The grid is lighter than this.
        if (ink < 0.15)
          continue;
        column.height += ink * y;
        column.ink += ink;
      }
      if (column.ink > 0)
        column.height /= column.ink;
      found.push_back(column);
    }
    return found;
  }

  void expectAlike(const std::vector<vtkChartXY*>& charts, vtkTable* table, int scale = 1)
  {
    for (vtkChartXY* chart : charts)
      show<vtkPlotLine>(chart, table);
    const auto lines = picture(scale);
    for (vtkChartXY* chart : charts)
      show<vtkPlotLineSet>(chart, table);
    const auto pictures = picture(scale);
    for (vtkChartXY* chart : charts)
    {
      const auto expected = columns(lines, chart, scale);
      const auto found = columns(pictures, chart, scale);
      ASSERT_GT(expected.size(), 50u);
      double difference = 0;
      double ink = 0;
      double foundInk = 0;
      for (std::size_t i = 0; i < expected.size(); ++i)
      {
        if (expected[i].ink > 1)
        {
          EXPECT_NEAR(found[i].height, expected[i].height, 1.5) << i;
          difference += std::abs(found[i].height - expected[i].height);
        }
        ink += expected[i].ink;
        foundInk += found[i].ink;
      }
      EXPECT_LT(difference / static_cast<double>(expected.size()), 0.3);
      EXPECT_NEAR(foundInk / ink, 1.0, 0.05);
    }
  }

  vtkChartXY* addChart(const vtkRectf& place)
  {
    vtkNew<vtkChartXY> chart;
    chart->SetLayoutStrategy(vtkChart::AXES_TO_RECT);
    chart->SetAutoSize(false);
    chart->SetSize(place);
    view->GetScene()->AddItem(chart);
    return chart;
  }

  vtkNew<vtkContextView> view;
};
} // namespace

TEST_F(LineSetScreen, LieWhereLinesDo)
{
  vtkNew<vtkChartXY> chart;
  view->GetScene()->AddItem(chart);
  expectAlike({chart}, waves([](int i) { return i; }, [](int i) { return std::sin(0.05 * i); }));
}

TEST_F(LineSetScreen, LieWhereLinesDoWithExtremeRanges)
{
  vtkNew<vtkChartXY> chart;
  view->GetScene()->AddItem(chart);
  // The chart shifts and scales the points of such axes.
  expectAlike({chart}, waves([](int i) { return 1.0e12 + i; },
                             [](int i) { return 1.0e-15 * std::sin(0.05 * i); }));
}

TEST_F(LineSetScreen, LieWhereLinesDoOnLogarithmicAxes)
{
  vtkNew<vtkChartXY> chart;
  chart->GetAxis(vtkAxis::BOTTOM)->LogScaleOn();
  chart->GetAxis(vtkAxis::LEFT)->LogScaleOn();
  view->GetScene()->AddItem(chart);
  expectAlike({chart}, waves([](int i) { return 1 + i; },
                             [](int i) { return 10 * (1.5 + std::sin(0.05 * i)); }));
}

TEST_F(LineSetScreen, LieWhereLinesDoInSeveralCharts)
{
  vtkChartXY* left = addChart({20, 20, 150, 250});
  vtkChartXY* right = addChart({220, 60, 180, 200});
  expectAlike({left, right},
              waves([](int i) { return i; }, [](int i) { return std::sin(0.05 * i); }));
}

TEST_F(LineSetScreen, LieWhereLinesDoInPartsOfALargerWindow)
{
  vtkNew<vtkChartXY> chart;
  view->GetScene()->AddItem(chart);
  expectAlike({chart}, waves([](int i) { return i; }, [](int i) { return std::sin(0.05 * i); }), 2);
}

TEST_F(LineSetScreen, EndAtTheEdgesOfTheChart)
{
  vtkNew<vtkChartXY> chart;
  view->GetScene()->AddItem(chart);
  const auto table = waves([](int i) { return i; }, [](int i) { return 10 * std::sin(0.05 * i); });
  chart->GetAxis(vtkAxis::BOTTOM)->SetBehavior(vtkAxis::FIXED);
  chart->GetAxis(vtkAxis::BOTTOM)->SetRange(40.0, 90.0);
  chart->GetAxis(vtkAxis::LEFT)->SetBehavior(vtkAxis::FIXED);
  chart->GetAxis(vtkAxis::LEFT)->SetRange(-3.0, 4.0);
  show<vtkPlotLineSet>(chart, table);
  chart->GetPlot(0)->SetColor(0, 0, 0, 0);
  const auto empty = picture();
  show<vtkPlotLineSet>(chart, table);
  const auto shown = picture();
  int changed = 0;
  for (int y = 0; y < height; ++y)
  {
    for (int x = 0; x < width; ++x)
    {
      const auto i = static_cast<std::size_t>(y * width + x);
      const bool inside = x >= chart->GetPoint1()[0] && x <= chart->GetPoint2()[0] &&
                          y >= chart->GetPoint1()[1] && y <= chart->GetPoint2()[1];
      EXPECT_TRUE(inside || shown[i] == empty[i]) << x << " " << y;
      changed += shown[i] != empty[i];
    }
  }
  EXPECT_GT(changed, 500);
}

TEST_F(LineSetScreen, BlendIntoWhatLiesBelow)
{
  vtkNew<vtkChartXY> chart;
  view->GetScene()->AddItem(chart);
  const auto table = waves([](int i) { return i; }, [](int) { return 1.0; });
  show<vtkPlotLineSet>(chart, table);
  chart->GetPlot(0)->SetColor(0, 0, 0, 51);
  chart->GetPlot(0)->SetWidth(6);
  const auto dark = picture();
  const int middle = (chart->GetPoint1()[0] + chart->GetPoint2()[0]) / 2 + 7;
  double darkest = 0;
  for (int y = chart->GetPoint1()[1] + 3; y < chart->GetPoint2()[1] - 3; ++y)
    darkest = std::max(darkest, dark[static_cast<std::size_t>(y * width + middle)]);
  EXPECT_NEAR(darkest, 0.2 + 0.8 * 0.05, 0.05) << "on white or on a line of the grid";
}
