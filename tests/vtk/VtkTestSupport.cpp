#include "VtkTestSupport.h"

#include <vtkDataArray.h>
#include <vtkDoubleArray.h>
#include <vtkIndent.h>

#include <cstring>
#include <sstream>

ErrorLog::ErrorLog(vtkObject* observed)
    : object(observed)
    , tag(observed->AddObserver(vtkCommand::ErrorEvent, this, &ErrorLog::append))
{
}

ErrorLog::~ErrorLog()
{
  object->RemoveObserver(tag);
}

void ErrorLog::append(vtkObject*, unsigned long, void* callData)
{
  messages.emplace_back(static_cast<const char*>(callData));
}

std::string onlyMessage(const ErrorLog& log)
{
  const std::string prefix = "ERROR: In ";
  if (log.messages.size() != 1 || log.messages[0].compare(0, prefix.size(), prefix) != 0)
    return {};
  const std::string message = log.messages[0].substr(prefix.size());
  const auto comma = message.find(", line ");
  const auto slash = message.rfind('/', comma);
  const std::string file = message.substr(slash == std::string::npos ? 0 : slash + 1,
                                          comma - (slash == std::string::npos ? 0 : slash + 1));
  return file.substr(0, file.find('.')) + message.substr(comma);
}

std::string expectedMessage(vtkObject* object, int line, const std::string& text)
{
  std::ostringstream message;
  message << object->GetClassName() << ", line " << line << "\n"
          << object->GetClassName() << " (" << object << "): " << text << "\n\n";
  return message.str();
}

vtkSmartPointer<vtkTable> makeTable(const std::vector<NamedColumn>& columns)
{
  auto table = vtkSmartPointer<vtkTable>::New();
  for (const auto& column : columns)
    table->AddColumn(makeColumn<vtkDoubleArray>(column.first, column.second));
  return table;
}

vtkSmartPointer<vtkIdTypeArray> makeIds(const std::vector<vtkIdType>& ids)
{
  auto array = vtkSmartPointer<vtkIdTypeArray>::New();
  for (const vtkIdType id : ids)
    array->InsertNextValue(id);
  return array;
}

std::vector<vtkIdType> idColumn(vtkTable* table, const char* name)
{
  auto* column = vtkIdTypeArray::SafeDownCast(table->GetColumnByName(name));
  std::vector<vtkIdType> values;
  for (vtkIdType i = 0; column && i < column->GetNumberOfValues(); ++i)
    values.push_back(column->GetValue(i));
  return values;
}

std::vector<double> numbers(vtkTable* table, const char* name)
{
  auto* column = vtkDataArray::SafeDownCast(table->GetColumnByName(name));
  std::vector<double> values;
  for (vtkIdType i = 0; column && i < column->GetNumberOfTuples(); ++i)
    values.push_back(column->GetTuple1(i));
  return values;
}

std::vector<std::string> printedNames(vtkObject* object)
{
  std::ostringstream text;
  object->PrintSelf(text, vtkIndent());
  std::istringstream lines(text.str());
  std::vector<std::string> names;
  for (std::string line; std::getline(lines, line);)
    names.push_back(line.substr(0, line.find(':')));
  return names;
}
