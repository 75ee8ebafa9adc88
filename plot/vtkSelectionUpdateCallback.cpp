#include "plot/vtkSelectionUpdateCallback.h"

#include <vtkObjectFactory.h>

vtkStandardNewMacro(vtkSelectionUpdateCallback);

void vtkSelectionUpdateCallback::Execute(vtkObject*, unsigned long, void*) {}
