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

# Compiles several sources of a target in one go, which halves the time of a build of everything. Which ones go together
# follows from the names of the files alone, so that a new one joins a group and moves no other. What the sources of a
# group name in unnamed namespaces must differ.
function(talmesh_compile_together target)
  if(NOT TALMESH_COMPILE_TOGETHER)
    return()
  endif()
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "\\.cpp$")
  list(LENGTH sources count)
  set(groups 1)
  while(groups LESS count AND groups LESS_EQUAL 32)
    math(EXPR files "${count} / ${groups}")
    if(files LESS 6)
      break()
    endif()
    math(EXPR groups "${groups} * 2")
  endwhile()
  foreach(source IN LISTS sources)
    get_source_file_property(alone ${source} TARGET_DIRECTORY ${target} SKIP_PRECOMPILE_HEADERS)
    if(NOT alone)
      get_filename_component(name ${source} NAME)
      string(MD5 digest ${name})
      string(SUBSTRING ${digest} 0 6 digest)
      math(EXPR group "0x${digest} % ${groups}")
      set_source_files_properties(${source} TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP ${group})
    endif()
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
