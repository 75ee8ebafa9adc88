#ifndef BenchMain_h
#define BenchMain_h

/// What the programs that share the main function of BenchMain.cpp do differently: runs before
/// there is an application, and makes benchmarks known that depend on the program.
void prepareProgram();

#endif
