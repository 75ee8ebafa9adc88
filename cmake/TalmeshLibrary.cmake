# The layers list their sources for talmesh_objects, which compiles them once. From the objects come
#   talmeshplot         the shared library that clients and the viewer link; it shows what is declared for them
#   talmesh_internals   an archive for tests and measurements, which reach all of it
# A program links one of them, never both: each has static objects, meta objects and type names of its own.
# talmesh_tree is what the tree's own sources compile with, whichever of the two their program links.
include(TalmeshPublicHeaders)

list(TRANSFORM TALMESH_PUBLIC_VTK_COMPONENTS PREPEND VTK:: OUTPUT_VARIABLE public_vtk)
list(TRANSFORM TALMESH_PUBLIC_QT_COMPONENTS PREPEND Qt${QT_VERSION_MAJOR}:: OUTPUT_VARIABLE public_qt)
list(TRANSFORM TALMESH_QT_COMPONENTS PREPEND Qt${QT_VERSION_MAJOR}:: OUTPUT_VARIABLE all_qt)
set(public_libraries ${public_vtk} ${public_qt} Boost::headers)
set(all_libraries ${public_vtk} ${all_qt} Boost::headers ${VTK_LIBRARIES})

add_library(talmesh_tree INTERFACE)
target_include_directories(talmesh_tree INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_features(talmesh_tree INTERFACE cxx_std_17)
target_link_libraries(talmesh_tree INTERFACE ${all_libraries})

target_link_libraries(talmesh_objects PRIVATE talmesh_tree Eigen3::Eigen talmesh_options)
# VTK's headers may include those of oneTBB, which have functions named "emit": the library writes Q_EMIT.
target_compile_definitions(talmesh_objects PRIVATE QT_NO_EMIT)
set_target_properties(talmesh_objects PROPERTIES
  POSITION_INDEPENDENT_CODE ON
  CXX_VISIBILITY_PRESET hidden
  VISIBILITY_INLINES_HIDDEN ON)
vtk_module_autoinit(TARGETS talmesh_objects MODULES ${VTK_LIBRARIES})
talmesh_precompile(talmesh_objects)
talmesh_compile_together(talmesh_objects)

# The tree's public headers and nothing else, under the paths that they are installed at.
set(public_include ${PROJECT_BINARY_DIR}/include)
file(REMOVE_RECURSE ${public_include}/talmeshplot)
foreach(header IN LISTS TALMESH_PUBLIC_HEADERS)
  get_filename_component(folder ${public_include}/talmeshplot/${header} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${header} ${public_include}/talmeshplot/${header} SYMBOLIC)
endforeach()

add_library(talmeshplot SHARED $<TARGET_OBJECTS:talmesh_objects>)
add_library(Talmesh::Plot ALIAS talmeshplot)
target_link_libraries(talmeshplot
  PUBLIC ${public_libraries}
  PRIVATE ${all_libraries} $<BUILD_INTERFACE:talmesh_options>)
# Clients write <talmeshplot/plot/PlotContainer.h>; earlier ones wrote "plot/PlotContainer.h".
target_include_directories(talmeshplot INTERFACE
  $<BUILD_INTERFACE:${public_include}>
  $<BUILD_INTERFACE:${public_include}/talmeshplot>
  $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
  $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/talmeshplot>)
target_compile_features(talmeshplot PUBLIC cxx_std_17)
set_target_properties(talmeshplot PROPERTIES
  EXPORT_NAME Plot
  LINKER_LANGUAGE CXX
  AUTOMOC OFF AUTOUIC OFF AUTORCC OFF
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

add_library(talmesh_internals STATIC EXCLUDE_FROM_ALL $<TARGET_OBJECTS:talmesh_objects>)
target_link_libraries(talmesh_internals PUBLIC talmesh_tree PRIVATE talmesh_options)
set_target_properties(talmesh_internals PROPERTIES
  LINKER_LANGUAGE CXX
  AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
