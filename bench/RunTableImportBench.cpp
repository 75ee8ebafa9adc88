#include "app/import/RunTableImport.h"
#include "app/session/StudyFile.h"

#include <cstdlib>
#include <sstream>
#include <string>

#include "BenchStudies.h"
#include "ProcessMemory.h"

namespace
{

/// A table as a simulator writes it: run, time, two items and the parameters in each row.
std::string tableOfRuns(int runs)
{
  std::ostringstream text;
  text.precision(9);
  text << "run,time,X,Y";
  for (int p = 1; p <= studyParameters; ++p)
    text << ",k" << p;
  text << '\n';
  const std::vector<double> values = normalSample(static_cast<std::size_t>(runs), 3);
  for (int run = 0; run < runs; ++run)
  {
    for (int point = 0; point < studyPoints; ++point)
    {
      const double parameter = values[static_cast<std::size_t>(run)];
      text << run << ',' << 0.1 * point << ',' << parameter * point << ',' << parameter - point;
      for (int p = 1; p <= studyParameters; ++p)
        text << ',' << parameter * p;
      text << '\n';
    }
  }
  return text.str();
}

/// Reading the text of a table, from memory.
void importTable(benchmark::State& state)
{
  const std::string text = tableOfRuns(static_cast<int>(state.range(0)));
  for (auto _ : state)
  {
    const auto table = Talmesh::app::importRunTable(text);
    if (!table.hasValue())
      state.SkipWithError(table.error().c_str());
  }
  state.SetComplexityN(state.range(0));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(importTable)->Apply(runCounts)->Complexity();

/// Reading the file that TALMESH_BENCH_CSV names, as the viewer does. The most memory that it took
/// says something only in a process that measures nothing else.
void importFile(benchmark::State& state)
{
  const char* path = std::getenv("TALMESH_BENCH_CSV");
  if (!path)
    state.SkipWithError("TALMESH_BENCH_CSV names no file");
  for (auto _ : state)
  {
    const ProcessMemory memory;
    const auto opened = Talmesh::app::openStudyFile(QString::fromLocal8Bit(path));
    if (!opened.hasValue() || !opened.value().study.runs)
    {
      state.SkipWithError(opened.error().c_str());
      return;
    }
    const LinePlotTable& runs = *opened.value().study.runs;
    memory.report(state, runs.numberOfTrajectories * runs.pointsPerTrajectory * runs.items.size());
  }
}
BENCHMARK(importFile)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

} // namespace
