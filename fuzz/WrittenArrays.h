#ifndef WrittenArrays_h
#define WrittenArrays_h

#include <string>

/// An HDF5 file, written by its library, whose groups, data sets and attributes the bytes choose.
std::string hdf5File(const std::string& choices);

#endif
