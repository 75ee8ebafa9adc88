# Compiles the translations and builds them into the library, which therefore has them wherever it is installed.
find_package(Qt${QT_VERSION_MAJOR} ${TALMESH_QT_VERSION} REQUIRED COMPONENTS LinguistTools)

set(translations_tree ${CMAKE_CURRENT_BINARY_DIR}/translations)
set(catalogue ${CMAKE_CURRENT_SOURCE_DIR}/translations/talmeshplot_de.ts)
set_source_files_properties(${catalogue} PROPERTIES OUTPUT_LOCATION ${translations_tree})
qt_add_translation(compiled_catalogues ${catalogue})
# The resource compiler looks for the catalogues beside the list of them.
configure_file(translations/talmeshplot.qrc ${translations_tree}/talmeshplot.qrc COPYONLY)
qt_add_resources(translations_source ${translations_tree}/talmeshplot.qrc)
set_source_files_properties(${translations_source} PROPERTIES SKIP_AUTOGEN ON)
target_sources(talmesh_objects PRIVATE ${translations_source})
