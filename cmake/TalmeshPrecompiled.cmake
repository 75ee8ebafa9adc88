# What most sources include, compiled once a target: VTK's headers take most of a file's compile time.
# -fpch-preprocess lets ccache look into what was precompiled.
set(TALMESH_PRECOMPILED_STANDARD
  <algorithm> <array> <cmath> <functional> <limits> <map> <memory> <optional> <set> <sstream> <string> <utility> <vector>)
set(TALMESH_PRECOMPILED_CHARTS
  <QObject> <QString>
  <vtkAnnotationLink.h> <vtkAxis.h> <vtkChartMatrix.h> <vtkChartXY.h> <vtkContextScene.h> <vtkDoubleArray.h>
  <vtkFloatArray.h> <vtkIdTypeArray.h> <vtkIntArray.h> <vtkNew.h> <vtkPen.h> <vtkPlotPoints.h> <vtkSelection.h>
  <vtkSelectionNode.h> <vtkSmartPointer.h> <vtkTable.h>)

function(talmesh_precompile target)
  target_precompile_headers(${target} PRIVATE
    ${TALMESH_PRECOMPILED_STANDARD} ${TALMESH_PRECOMPILED_CHARTS} ${ARGN})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
endfunction()
