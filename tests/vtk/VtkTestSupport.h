#ifndef VtkTestSupport_h
#define VtkTestSupport_h

#include "support/RecordingDevice.h"

#include <vtkCommand.h>
#include <vtkIdTypeArray.h>
#include <vtkObject.h>
#include <vtkSmartPointer.h>
#include <vtkStringOutputWindow.h>
#include <vtkTable.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

/// Collects the texts of the ErrorEvents of one object while it lives.
class ErrorLog
{
public:
  explicit ErrorLog(vtkObject* observed);
  ~ErrorLog();
  ErrorLog(const ErrorLog&) = delete;
  ErrorLog& operator=(const ErrorLog&) = delete;

  std::vector<std::string> messages;

private:
  void append(vtkObject* caller, unsigned long event, void* callData);

  vtkSmartPointer<vtkObject> object;
  unsigned long tag;
};

/// The one message of @p log with everything before the file's stem and the file's extension cut
/// away, as "<stem>, line <n>\n<class> (<address>): <text>\n\n"; empty if there is not exactly one.
std::string onlyMessage(const ErrorLog& log);

/// What onlyMessage() must give for a message of @p object.
std::string expectedMessage(vtkObject* object, int line, const std::string& text);

/// Takes the place of VTK's output window while it lives.
class CapturedVtkOutput
{
public:
  CapturedVtkOutput();
  ~CapturedVtkOutput();
  CapturedVtkOutput(const CapturedVtkOutput&) = delete;
  CapturedVtkOutput& operator=(const CapturedVtkOutput&) = delete;

  std::string text() const { return window->GetOutput(); }

private:
  vtkNew<vtkStringOutputWindow> window;
  vtkSmartPointer<vtkOutputWindow> previous;
};

/// An item type with its protected members in reach of a test.
template <class Item>
class Exposed : public Item
{
public:
  static vtkSmartPointer<Exposed> create()
  {
    auto* item = new Exposed;
    item->InitializeObjectBase();
    return vtkSmartPointer<Exposed>::Take(item);
  }

  using Item::BadPoints;
  using Item::Points;
  using Item::SelectedPoints;
  using Item::ValidPointMask;
};

/// A table of double columns.
using NamedColumn = std::pair<const char*, std::vector<double>>;
vtkSmartPointer<vtkTable> makeTable(const std::vector<NamedColumn>& columns);

template <class Array>
vtkSmartPointer<Array> makeColumn(const char* name, const std::vector<double>& values)
{
  auto column = vtkSmartPointer<Array>::New();
  column->SetName(name);
  for (const double value : values)
    column->InsertNextTuple1(value);
  return column;
}

vtkSmartPointer<vtkIdTypeArray> makeIds(const std::vector<vtkIdType>& ids);

/// The values of an id column, empty if @p table has none of that name.
std::vector<vtkIdType> idColumn(vtkTable* table, const char* name);

/// The values of a numeric column, empty if @p table has none of that name.
std::vector<double> numbers(vtkTable* table, const char* name);

/// The names of the properties that an object prints, in order.
std::vector<std::string> printedNames(vtkObject* object);

using Kind = RecordingDevice::Kind;
using Point = RecordingDevice::Point;
using Points = std::vector<Point>;
inline const double NaN = std::numeric_limits<double>::quiet_NaN();
inline const RecordingDevice::Color HighlightColor{255, 50, 0, 150};

#endif
