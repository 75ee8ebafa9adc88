#ifndef RowCopies_h
#define RowCopies_h

#include <vtkSmartPointer.h>
#include <vtkType.h>

#include <vector>

class vtkIdTypeArray;
class vtkTable;

/// Tables made of rows of other tables.
namespace Talmesh
{
/// Rows that follow each other.
struct RowBlock
{
  vtkIdType first;
  vtkIdType count;
};

/// Adds a row behind others.
void addRow(std::vector<RowBlock>& blocks, vtkIdType row);

/// The rows one by one.
std::vector<vtkIdType> rowsOf(const std::vector<RowBlock>& blocks);

/// Gives @p target the columns of @p source, without rows.
void copyColumnStructure(vtkTable* source, vtkTable* target);

/// Appends rows of @p source to @p target, which must have its column structure. Where a column is
/// too short to have the row, the cell is NaN, 0 in a column of whole numbers, or an empty text.
void appendRows(vtkTable* source, const std::vector<RowBlock>& blocks, vtkTable* target);
void appendRows(vtkTable* source, const std::vector<vtkIdType>& rows, vtkTable* target);

/// A new one-component column.
vtkSmartPointer<vtkIdTypeArray> makeIdColumn(const char* name,
                                             const std::vector<vtkIdType>& values);
} // namespace Talmesh

#endif
