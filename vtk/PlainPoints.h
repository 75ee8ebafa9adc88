#ifndef PlainPoints_h
#define PlainPoints_h

#include <vtkFloatArray.h>
#include <vtkNew.h>
#include <vtkUnsignedCharArray.h>

namespace Talmesh
{

/// Points and colours as a painting device without a memory of its own takes them.
class PlainPoints
{
public:
  /// @param colors_ of the points; may be null. The arrays have to live as long.
  PlainPoints(vtkDataArray* positions, vtkUnsignedCharArray* colors_)
      : given(vtkFloatArray::SafeDownCast(positions))
      , colors(colors_ && colors_->GetNumberOfTuples() > 0 ? colors_ : nullptr)
  {
    if (given)
      return;
    converted->DeepCopy(positions);
    given = converted;
  }

  int size() const { return static_cast<int>(given->GetNumberOfTuples()); }
  float* points() const { return given->GetPointer(0); }
  unsigned char* colorData() const { return colors ? colors->GetPointer(0) : nullptr; }
  int components() const { return colors ? colors->GetNumberOfComponents() : 0; }

private:
  vtkFloatArray* given;
  vtkNew<vtkFloatArray> converted;
  vtkUnsignedCharArray* colors;
};

} // namespace Talmesh

#endif
