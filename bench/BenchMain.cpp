#include "BenchMain.h"

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
  prepareProgram();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  QApplication application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
