#include "plot/DelimitedFiles.h"

#include <vtkDataArray.h>
#include <vtkDataSetAttributes.h>
#include <vtkDelimitedTextReader.h>
#include <vtkDelimitedTextWriter.h>
#include <vtkNew.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <memory>
#include <system_error>

namespace Talmesh::plot
{

namespace
{

constexpr char quote = '"';
constexpr char escape = '\\';
/// Enough to outweigh the writer's own work.
constexpr vtkIdType rowsOfAPiece = 4096;

/// Whether the text of a file says something else to VTK's reader than to everybody else: VTK takes
/// a quote that is doubled within quotes for two strings, and a backslash for an escape.
bool needsTranslation(std::istream& file)
{
  char before = '\0';
  for (std::istreambuf_iterator<char> next(file), end; next != end; before = *next++)
  {
    if (*next == escape || (*next == quote && before == quote))
      return true;
  }
  return false;
}

/// Escapes backslashes and the quotes that are doubled within quotes, as VTK's reader wants it.
std::string translated(std::istream& file)
{
  std::string text;
  bool quoted = false;
  bool maybeEnd = false;
  for (std::istreambuf_iterator<char> next(file), end; next != end; ++next)
  {
    const bool doubled = maybeEnd && *next == quote;
    if (maybeEnd && !doubled)
      text += quote;
    quoted = quoted && (!maybeEnd || doubled);
    maybeEnd = *next == quote && quoted && !doubled;
    if (doubled || *next == escape)
      text += escape;
    if (!maybeEnd)
      text += *next;
    quoted = quoted || *next == quote;
  }
  if (maybeEnd)
    text += quote;
  return text;
}

/// @return whether there was something to translate
bool readTranslated(vtkDelimitedTextReader* reader, const std::string& fileName)
{
  // A pipe could be read only once.
  std::error_code unknown;
  if (!std::filesystem::is_regular_file(fileName, unknown))
    return false;
  std::ifstream file(fileName, std::ios::binary);
  if (!file || !needsTranslation(file))
    return false;
  file.clear();
  file.seekg(0);
  const std::string text = translated(file);
  // The reader counts in int.
  if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
    return false;
  reader->SetInputString(text);
  reader->ReadFromInputStringOn();
  return true;
}

bool hasQuote(const std::string& text)
{
  return text.find(quote) != std::string::npos;
}

std::string withDoubledQuotes(const std::string& text)
{
  std::string doubled;
  for (const char character : text)
    doubled.append(character == quote ? 2 : 1, character);
  return doubled;
}

bool hasQuote(vtkAbstractArray* column)
{
  if (column->GetName() && hasQuote(column->GetName()))
    return true;
  auto* texts = vtkStringArray::SafeDownCast(column);
  const vtkIdType count = texts ? texts->GetNumberOfValues() : 0;
  for (vtkIdType i = 0; i < count; ++i)
  {
    if (hasQuote(texts->GetValue(i)))
      return true;
  }
  return false;
}

/// Shares the values of numbers. Without a name.
vtkSmartPointer<vtkAbstractArray> copyOf(vtkAbstractArray* column)
{
  auto copy = vtkSmartPointer<vtkAbstractArray>::Take(column->NewInstance());
  if (auto* numbers = vtkDataArray::SafeDownCast(copy))
    numbers->ShallowCopy(vtkDataArray::SafeDownCast(column));
  else
    copy->DeepCopy(column);
  copy->SetName(nullptr);
  return copy;
}

void doubleQuotes(vtkStringArray* texts)
{
  for (vtkIdType i = 0; i < texts->GetNumberOfValues(); ++i)
    texts->SetValue(i, withDoubledQuotes(texts->GetValue(i)));
}

/// `table`, or a copy, as VTK's writer needs it, which puts texts between quotes as they are.
vtkSmartPointer<vtkTable> withDoubledQuotes(vtkTable* table)
{
  const int columns = static_cast<int>(table->GetNumberOfColumns());
  bool asItIs = true;
  for (int i = 0; i < columns; ++i)
    asItIs = asItIs && !hasQuote(table->GetColumn(i));
  if (asItIs)
    return table;
  auto doubled = vtkSmartPointer<vtkTable>::New();
  // Named only afterwards, because arrays of one name would replace each other.
  for (int i = 0; i < columns; ++i)
    doubled->GetRowData()->AddArray(copyOf(table->GetColumn(i)));
  for (int i = 0; i < columns; ++i)
  {
    if (table->GetColumnName(i))
      doubled->GetColumn(i)->SetName(
          withDoubledQuotes(std::string(table->GetColumnName(i))).c_str());
    if (auto* texts = vtkStringArray::SafeDownCast(doubled->GetColumn(i)))
      doubleQuotes(texts);
  }
  return doubled;
}

/// A copy of some rows.
vtkSmartPointer<vtkTable> someRows(vtkTable* table, vtkIdType first, vtkIdType count)
{
  auto rows = vtkSmartPointer<vtkTable>::New();
  const int columns = static_cast<int>(table->GetNumberOfColumns());
  for (int i = 0; i < columns; ++i)
  {
    vtkAbstractArray* column = table->GetColumn(i);
    const auto part = vtkSmartPointer<vtkAbstractArray>::Take(column->NewInstance());
    part->SetNumberOfComponents(column->GetNumberOfComponents());
    part->SetNumberOfTuples(count);
    // A client's columns may be of different lengths.
    const vtkIdType there = std::clamp<vtkIdType>(column->GetNumberOfTuples() - first, 0, count);
    auto* numbers = vtkDataArray::SafeDownCast(part);
    if (numbers && there < count)
      numbers->Fill(0.0);
    if (there > 0)
      part->InsertTuples(0, there, first, column);
    rows->GetRowData()->AddArray(part);
  }
  // Named only afterwards, because arrays of one name would replace each other.
  for (int i = 0; i < columns; ++i)
    rows->GetColumn(i)->SetName(table->GetColumnName(i));
  return rows;
}

/// The table is complete, as the writer needs it.
std::string textOf(vtkTable* table)
{
  vtkNew<vtkDelimitedTextWriter> writer;
  writer->SetInputData(table);
  writer->WriteToOutputStringOn();
  writer->Write();
  const std::unique_ptr<char[]> text(writer->RegisterAndGetOutputString());
  return text ? text.get() : "";
}

} // namespace

vtkSmartPointer<vtkTable> readDelimited(const std::string& fileName)
{
  vtkNew<vtkDelimitedTextReader> reader;
  if (!readTranslated(reader, fileName))
    reader->SetFileName(fileName.c_str());
  reader->SetHaveHeaders(true);
  reader->SetDetectNumericColumns(true);
  reader->SetForceDouble(true);
  reader->Update();
  return reader->GetOutput();
}

bool writeDelimitedInPieces(vtkTable* table,
                            const std::function<bool(const char*, std::size_t, double)>& take)
{
  const vtkSmartPointer<vtkTable> whole = withDoubledQuotes(table);
  const vtkIdType rows = whole->GetNumberOfRows();
  const std::string head = textOf(someRows(whole, 0, 0));
  bool taken = take(head.data(), head.size(), rows > 0 ? 0.0 : 1.0);
  for (vtkIdType row = 0; row < rows && taken; row += rowsOfAPiece)
  {
    const vtkIdType count = std::min(rowsOfAPiece, rows - row);
    const std::string text = textOf(someRows(whole, row, count));
    taken = take(text.data() + head.size(), text.size() - head.size(),
                 static_cast<double>(row + count) / static_cast<double>(rows));
  }
  return taken;
}

char* writeDelimited(vtkTable* table, const std::string& fileName)
{
  vtkNew<vtkDelimitedTextWriter> writer;
  writer->SetInputData(withDoubledQuotes(table));
  if (!fileName.empty())
  {
    writer->SetFileName(fileName.c_str());
    writer->Write();
    return nullptr;
  }
  writer->WriteToOutputStringOn();
  writer->Write();
  return writer->RegisterAndGetOutputString();
}

} // namespace Talmesh::plot
