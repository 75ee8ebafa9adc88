#ifndef LineSetFixture_h
#define LineSetFixture_h

#include "vtk/vtkPlotLineSet.h"

#include <vtkContext2D.h>
#include <vtkDoubleArray.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkStringArray.h>

#include <gtest/gtest.h>

#include <numeric>

#include "VtkTestSupport.h"

inline const char* const Remainder = "vtkRemainderSelection";

class ExposedLineSet : public Exposed<vtkPlotLineSet>
{
public:
  using vtkPlotLineSet::NumberOfRemainderRows;
  using vtkPlotLineSet::RemainderSelection;
  using vtkPlotLineSet::SelectedLineIds;
};

/// The rows that a painted line covers: the first one and their number.
using Line = std::pair<int, std::size_t>;
using Lines = std::vector<Line>;

class LineSet : public ::testing::Test
{
protected:
  // The x column counts the rows, so that a line tells which rows it covers.
  void setRows(int count, const std::vector<int>& badRows = {})
  {
    std::vector<double> x(static_cast<std::size_t>(count));
    std::iota(x.begin(), x.end(), 0.0);
    std::vector<double> y(x.size(), 1.0);
    for (const int row : badRows)
      y[static_cast<std::size_t>(row)] = NaN;
    table = makeTable({{"x", x}, {"y", y}});
    item->SetInputData(table, "x", "y");
  }

  void mark(const std::vector<int>& rows)
  {
    std::vector<double> markers(static_cast<std::size_t>(table->GetNumberOfRows()), 0.0);
    for (const int row : rows)
      markers[static_cast<std::size_t>(row)] = 1.0;
    table->AddColumn(makeColumn<vtkIdTypeArray>(Remainder, markers));
  }

  Lines lines(bool highlighted)
  {
    recording.device->clear();
    EXPECT_TRUE(item->Paint(recording.painter));
    Lines found;
    for (const auto& call : recording.device->calls())
    {
      EXPECT_EQ(call.kind, Kind::Poly);
      for (std::size_t i = 1; i < call.points.size(); ++i)
        EXPECT_EQ(call.points[i].first, call.points[0].first + static_cast<float>(i));
      if ((call.penColor == HighlightColor) == highlighted)
        found.emplace_back(static_cast<int>(call.points[0].first), call.points.size());
    }
    return found;
  }
  Lines runs() { return lines(false); }
  Lines highlights() { return lines(true); }

  void TearDown() override { EXPECT_EQ(vtkOutput.text(), ""); }

  vtkSmartPointer<ExposedLineSet> item = makeExposed<ExposedLineSet>();
  vtkSmartPointer<vtkTable> table;
  RecordingPainter recording;
  VtkErrors vtkOutput;
};

#endif
