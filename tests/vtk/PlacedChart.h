#ifndef PlacedChart_h
#define PlacedChart_h

#include <vtkAxis.h>
#include <vtkChartXY.h>
#include <vtkContext2D.h>
#include <vtkContextScene.h>
#include <vtkMatrix3x3.h>

#include <vector>

#include "VtkTestSupport.h"

/// Records shapes where they come to lie on the screen.
class PlacingDevice : public RecordingDevice
{
public:
  static PlacingDevice* New()
  {
    auto* device = new PlacingDevice;
    device->InitializeObjectBase();
    return device;
  }

  void DrawPoly(float* points, int n, unsigned char* colors, int components) override
  {
    RecordingDevice::DrawPoly(place(points, n), n, colors, components);
  }
  void DrawLines(float* points, int n, unsigned char* colors, int components) override
  {
    RecordingDevice::DrawLines(place(points, n), n, colors, components);
  }
  void DrawMarkers(int shape, bool highlight, float* points, int n, unsigned char* colors,
                   int components) override
  {
    RecordingDevice::DrawMarkers(shape, highlight, place(points, n), n, colors, components);
  }
  void DrawQuad(float* points, int n) override { RecordingDevice::DrawQuad(place(points, n), n); }
  void DrawQuadStrip(float* points, int n) override
  {
    RecordingDevice::DrawQuadStrip(place(points, n), n);
  }

private:
  float* place(const float* points, int n)
  {
    vtkNew<vtkMatrix3x3> matrix;
    GetMatrix(matrix);
    placed.clear();
    for (int i = 0; i < n; ++i)
    {
      const double point[3] = {points[2 * i], points[2 * i + 1], 1};
      double end[3];
      matrix->MultiplyPoint(point, end);
      placed.insert(placed.end(), {static_cast<float>(end[0]), static_cast<float>(end[1])});
    }
    return placed.data();
  }

  std::vector<float> placed;
};

/// A chart with axes of a fixed range, painted on such a device.
class PlacedChart : public ::testing::Test
{
protected:
  PlacedChart()
  {
    device->setSize(400, 300);
    painter->Begin(device);
    scene->SetGeometry(400, 300);
    scene->AddItem(chart);
  }
  ~PlacedChart() override { painter->End(); }

  void setAxis(int position, double minimum, double maximum)
  {
    vtkAxis* axis = chart->GetAxis(position);
    axis->SetBehavior(vtkAxis::FIXED);
    axis->SetUnscaledRange(minimum, maximum);
  }

  void paintChart()
  {
    // The first pass settles the axes, as the first frame on a screen does.
    for (int pass = 0; pass < 2; ++pass)
    {
      device->clear();
      scene->Paint(painter);
    }
  }

  vtkNew<PlacingDevice> device;
  vtkNew<vtkContext2D> painter;
  vtkNew<vtkContextScene> scene;
  vtkNew<vtkChartXY> chart;
};

#endif
