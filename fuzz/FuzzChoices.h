#ifndef FuzzChoices_h
#define FuzzChoices_h

#include "external/TypedConcentrationName.h"

#include <vtkAbstractArray.h>
#include <vtkSelection.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// The decisions of a random session, one byte each; zeros once the bytes are used up.
class FuzzChoices
{
public:
  FuzzChoices(const std::uint8_t* bytes, std::size_t size);

  bool atEnd() const { return left == 0; }
  /// A number below `count`, which is at most 256.
  int pick(int count);
  bool flip() { return pick(2) == 1; }
  /// Everyday numbers, and those at which arithmetic or charts end.
  double number();
  /// Columns that exist, some that do not.
  int column() { return pick(10) - 1; }
  /// Names that mean something to some part of the library, and others.
  std::string name();
  std::vector<int> columns();
  std::vector<double> numbers(int most);
  Talmesh::TypedConcentrationName item();
  std::vector<Talmesh::TypedConcentrationName> items();
  /// Columns of every kind, also without a name, of one name, and of different lengths.
  vtkSmartPointer<vtkTable> table();
  vtkSmartPointer<vtkAbstractArray> array(int rows);
  vtkSmartPointer<vtkSelection> selection();

private:
  const std::uint8_t* next;
  std::size_t left;
};

#endif
