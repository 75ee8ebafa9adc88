# Properties, dependencies and installation of the library whose sources the layer folders list.
target_link_libraries(talmeshplot
  PUBLIC
    VTK::ChartsCore VTK::CommonCore VTK::CommonDataModel VTK::CommonExecutionModel
    VTK::FiltersStatistics VTK::GUISupportQt VTK::ViewsContext2D
    Qt5::Core Qt5::Gui Qt5::Widgets
    Boost::headers
  PRIVATE
    ${VTK_LIBRARIES}
    Eigen3::Eigen
    $<BUILD_INTERFACE:talmesh_options>)
target_include_directories(talmeshplot PUBLIC
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
  $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/talmeshplot>)
target_compile_features(talmeshplot PUBLIC cxx_std_17)
# VTK's headers may include those of oneTBB, which have functions named "emit": the library writes Q_EMIT.
target_compile_definitions(talmeshplot PRIVATE QT_NO_EMIT)
set_target_properties(talmeshplot PROPERTIES
  EXPORT_NAME Plot
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR})
vtk_module_autoinit(TARGETS talmeshplot MODULES ${VTK_LIBRARIES})
talmesh_precompile(talmeshplot)
