# What most sources include, compiled once a target: headers of VTK, Boost and Qt take most of a file's compile time.
# -fpch-preprocess lets ccache look into what was precompiled.
set(TALMESH_PRECOMPILED_STANDARD
  <algorithm> <array> <cmath> <functional> <limits> <map> <memory> <optional> <set> <sstream> <string> <utility> <vector>)
set(TALMESH_PRECOMPILED_CHARTS
  <QObject> <QString>
  <boost/functional/hash.hpp> <boost/shared_ptr.hpp> <boost/unordered_map.hpp>
  <vtkAnnotationLink.h> <vtkAxis.h> <vtkChartMatrix.h> <vtkChartXY.h> <vtkContextScene.h> <vtkDoubleArray.h>
  <vtkFloatArray.h> <vtkIdTypeArray.h> <vtkIntArray.h> <vtkNew.h> <vtkPen.h> <vtkPlotPoints.h> <vtkSelection.h>
  <vtkSelectionNode.h> <vtkSmartPointer.h> <vtkTable.h>)
# For targets that hold windows, in addition.
set(TALMESH_PRECOMPILED_WINDOWS
  <QComboBox> <QDockWidget> <QFormLayout> <QJsonObject> <QPointer> <QTreeWidget>)

function(talmesh_precompile target)
  target_precompile_headers(${target} PRIVATE
    ${TALMESH_PRECOMPILED_STANDARD} ${TALMESH_PRECOMPILED_CHARTS} ${ARGN})
  talmesh_preprocess_precompiled(${target})
endfunction()

# For targets with the flags of `host`.
function(talmesh_share_precompiled target host)
  target_precompile_headers(${target} REUSE_FROM ${host})
  talmesh_preprocess_precompiled(${target})
endfunction()

function(talmesh_preprocess_precompiled target)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${target} PRIVATE -fpch-preprocess)
  endif()
endfunction()
