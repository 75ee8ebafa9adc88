#ifndef FirstDraw_h
#define FirstDraw_h

#include <cstdint>

/// What two source files saw when they were loaded: the number that each drew directly behind its
/// include of the shared types.
std::uint_fast32_t firstDrawOfOneFile();
std::uint_fast32_t firstDrawOfAnotherFile();

#endif
