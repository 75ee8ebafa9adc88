# Installs the library, its public headers in the folders of the tree, the CMake package and the viewer.
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/TalmeshPlot)

install(TARGETS talmeshplot EXPORT TalmeshPlotTargets)
if(TARGET talmesh-plot)
  install(TARGETS talmesh-plot)
endif()
foreach(header IN LISTS TALMESH_PUBLIC_HEADERS)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/talmeshplot/${folder})
endforeach()

install(EXPORT TalmeshPlotTargets NAMESPACE Talmesh:: DESTINATION ${package_folder})
list(JOIN TALMESH_PUBLIC_VTK_COMPONENTS " " public_vtk_components)
list(JOIN TALMESH_PUBLIC_QT_COMPONENTS " " public_qt_components)
configure_package_config_file(cmake/TalmeshPlotConfig.cmake.in TalmeshPlotConfig.cmake
  INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(TalmeshPlotConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/TalmeshPlotConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/TalmeshPlotConfigVersion.cmake
  DESTINATION ${package_folder})
