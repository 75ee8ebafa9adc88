#ifndef SelectionBuilders_h
#define SelectionBuilders_h

#include <vtkAnnotation.h>
#include <vtkAnnotationLayers.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <vector>

/// A node of row indices.
vtkSmartPointer<vtkSelectionNode> makeRowNode(const std::vector<vtkIdType>& rows,
                                              bool inverse = false);

/// A selection of one node of row indices.
vtkSmartPointer<vtkSelection> makeRowSelection(const std::vector<vtkIdType>& rows,
                                               bool inverse = false);

/// Whether an annotation says that it is enabled, or hidden, or says nothing about it.
enum class Says
{
  Nothing,
  No,
  Yes
};

/// @param selection may be null.
vtkSmartPointer<vtkAnnotation> makeAnnotation(vtkSelection* selection, Says enabled = Says::Nothing,
                                              Says hidden = Says::Nothing);

vtkSmartPointer<vtkAnnotationLayers>
makeLayers(const std::vector<vtkSmartPointer<vtkAnnotation>>& annotations);

/// Everything that a selection says about its nodes, for comparison.
struct NodeText
{
  int contentType;
  int fieldType;
  int inverse;
  std::vector<vtkIdType> ids;

  bool operator==(const NodeText& other) const
  {
    return contentType == other.contentType && fieldType == other.fieldType &&
           inverse == other.inverse && ids == other.ids;
  }
};
std::vector<NodeText> describe(vtkSelection* selection);

/// Rows 0 to 8 in a column "row", times 0, 1, 2 repeated three times in a column "Time".
vtkSmartPointer<vtkTable> makeThreeRuns();

#endif
