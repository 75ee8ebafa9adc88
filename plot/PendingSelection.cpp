#include "plot/PlotContainer.h"

vtkIntArray* PlotContainer::getCurrentSelection() const
{
  return nullptr;
}
void PlotContainer::selectionFromFlagColumn() {}
void PlotContainer::setSelection(ParameterSelection*, int) {}
ParameterSelection* PlotContainer::getSelection()
{
  return nullptr;
}
void PlotContainer::setExternalSelection(ParameterSelection*) {}
