# The libraries that read the viewer's files: talmesh_file_formats. Clients of the library need none of them.
find_package(ZLIB REQUIRED)
# The C library for one process; Debian has others beside it.
set(HDF5_PREFER_PARALLEL OFF)
find_package(HDF5 1.10.7 REQUIRED COMPONENTS C)
# The package configuration of libzip names programs that Debian has in another package.
find_path(LIBZIP_INCLUDE_DIR zip.h REQUIRED)
find_library(LIBZIP_LIBRARY zip REQUIRED)
mark_as_advanced(LIBZIP_INCLUDE_DIR LIBZIP_LIBRARY)

add_library(talmesh_file_formats INTERFACE)
target_include_directories(talmesh_file_formats SYSTEM INTERFACE ${LIBZIP_INCLUDE_DIR} ${HDF5_C_INCLUDE_DIRS})
target_link_libraries(talmesh_file_formats INTERFACE ZLIB::ZLIB ${LIBZIP_LIBRARY} ${HDF5_C_LIBRARIES})
