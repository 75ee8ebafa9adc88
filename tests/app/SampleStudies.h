#ifndef SampleStudies_h
#define SampleStudies_h

#include "app/import/RunTableImport.h"
#include "app/import/Study.h"

#include <cmath>
#include <sstream>
#include <string>

/// A table of runs as text: `runs` runs of `points` points of a wave X and its square Y, with the
/// parameter k.
inline std::string sampleRuns(int runs = 3, int points = 4)
{
  std::ostringstream text;
  text << "run,time,k,X,Y\n";
  for (int run = 0; run < runs; ++run)
    for (int point = 0; point < points; ++point)
    {
      const double x = 2.0 + std::sin(point * 0.3 + run);
      text << run << ',' << point << ',' << 0.5 + run << ',' << x << ',' << x * x << '\n';
    }
  return text.str();
}

inline Talmesh::app::Study sampleStudy(const std::string& text = sampleRuns())
{
  const Talmesh::app::ImportedTable imported = Talmesh::app::importRunTable(text).value();
  return {"sample", imported.runs, imported.table};
}

#endif
