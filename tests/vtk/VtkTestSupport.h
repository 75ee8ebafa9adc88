#ifndef VtkTestSupport_h
#define VtkTestSupport_h

#include "support/ArrayColumns.h"
#include "support/RecordingDevice.h"
#include "support/VtkErrors.h"

#include <vtkCommand.h>
#include <vtkIdTypeArray.h>
#include <vtkNew.h>
#include <vtkObject.h>
#include <vtkPlotPoints.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <gtest/gtest.h>

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

/// A new object of a class made for tests, which has no New() of its own.
template <class Item>
vtkSmartPointer<Item> makeExposed()
{
  auto* item = new Item;
  item->InitializeObjectBase();
  return vtkSmartPointer<Item>::Take(item);
}

/// An item type with its protected members in reach of a test.
template <class Item>
class Exposed : public Item
{
public:
  using Item::BadPoints;
  using Item::Points;
  using Item::SelectedPoints;
  using Item::ValidPointMask;
};

/// A table of double columns.
using NamedColumn = std::pair<const char*, std::vector<double>>;
vtkSmartPointer<vtkTable> makeTable(const std::vector<NamedColumn>& columns);

vtkSmartPointer<vtkIdTypeArray> makeIds(const std::vector<vtkIdType>& ids);

/// The values of an id column, empty if @p table has none of that name.
std::vector<vtkIdType> idColumn(vtkTable* table, const char* name);

/// The values of a numeric column, empty if @p table has none of that name.
std::vector<double> numbers(vtkTable* table, const char* name);

/// The names of the properties that an object prints, in order.
std::vector<std::string> printedNames(vtkObject* object);

/// Expects of an item what VTK asks of its subclasses: its name, making others of its kind, and
/// that it prints no properties beyond those of vtkPlotPoints.
template <class Item>
void expectConventionsOfVtk(const char* className)
{
  vtkNew<Item> item;
  EXPECT_STREQ(item->GetClassName(), className);
  EXPECT_TRUE(item->IsA("vtkPlotPoints"));
  const auto other = vtkSmartPointer<Item>::Take(item->NewInstance());
  EXPECT_STREQ(other->GetClassName(), className);
  EXPECT_EQ(printedNames(item), printedNames(vtkNew<vtkPlotPoints>()));
}

using Kind = RecordingDevice::Kind;
using Point = RecordingDevice::Point;
using Points = std::vector<Point>;
inline const double NaN = std::numeric_limits<double>::quiet_NaN();
inline const RecordingDevice::Color HighlightColor{255, 50, 0, 150};

#endif
