#ifndef SelectionGesture_h
#define SelectionGesture_h

#include <vtkType.h>

#include <optional>
#include <string>
#include <vector>

class vtkTable;

namespace Talmesh
{

/// What the select button draws in a chart.
enum class SelectionTool
{
  Rectangle,
  Lasso,
  Line
};

/// What the user has pointed at in a chart with the select button.
struct SelectionGesture
{
  enum class Kind
  {
    /// Two opposite corners.
    Rectangle,
    /// One point.
    Click,
    /// Three or more corners of a polygon.
    Lasso,
    /// Two ends.
    Line,
    /// Parts of axes that stand side by side.
    Brushes
  };
  /// What becomes of what is selected already.
  enum class Mode
  {
    Replace,
    /// With the control key.
    Add,
    /// With the shift key.
    Subtract,
    /// With both.
    Toggle
  };
  struct Point
  {
    double x;
    double y;
  };
  /// A plot of the chart that can be selected in.
  struct Series
  {
    /// Names of columns; that of x is empty where the rows' numbers stand in for it.
    std::string x;
    std::string y;
    /// Whether the rows are runs whose points are joined, see vtkPlotLineSet. Otherwise points
    /// count.
    bool lines = false;
  };
  /// What is brushed of an axis that shows one column.
  struct Brush
  {
    std::string column;
    double low;
    double high;
    /// How much of the axis a pixel covers.
    double units;
  };

  Kind kind = Kind::Rectangle;
  Mode mode = Mode::Replace;
  /// None of brushes. In units of the data, whatever the chart's axes are scaled and shifted by,
  /// and within the axes.
  std::vector<Point> points;
  /// What of each axis, or of its decades where it is logarithmic, a pixel of the scene covers.
  double unitsX = 0;
  double unitsY = 0;
  bool logX = false;
  bool logY = false;
  /// What all series are drawn from. Not owned.
  vtkTable* table = nullptr;
  /// From the lowest to the topmost one; of brushes each column over itself.
  std::vector<Series> series;
  /// What is meant lies within all of them.
  std::vector<Brush> brushes;
  /// The rows of the table that are meant, where the chart tells because they are not drawn along
  /// two axes: then there are neither points nor series.
  std::optional<std::vector<vtkIdType>> rows;
};

} // namespace Talmesh

#endif
