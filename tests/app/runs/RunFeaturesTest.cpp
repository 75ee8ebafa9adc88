#include "app/runs/RunFeatures.h"

#include "app/runs/RunFilter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

#include "runs/SampleCourses.h"

using Talmesh::app::featureOf;
using Talmesh::app::featureWords;
using Talmesh::app::FilterFault;
using Talmesh::app::readFeature;
using Talmesh::app::RunCourse;
using Talmesh::app::RunFeature;
using Talmesh::app::runFeatures;
using Talmesh::app::RunFilter;

namespace
{

TEST(RunFeatures, AreTheNumbersThatFiltersCompute)
{
  const SampleCourses runs;
  std::size_t compared = 0;
  for (const RunFeature feature : runFeatures())
    for (std::size_t run = 0; run < runs.numberOfRuns(); ++run)
    {
      const double value = featureOf(feature, runs.course(run, 1, -1));
      std::ostringstream words;
      words << "abs(" << featureWords(feature, "TetR") << " - " << std::setprecision(17) << value
            << ") < 1e-9";
      FilterFault fault;
      // A missing number has no words, and equals none.
      const RunFilter filter = RunFilter::read(
          std::isnan(value) ? featureWords(feature, "TetR") + " > -1e300" : words.str(), runs,
          fault);
      ASSERT_EQ(fault.text, "") << words.str();
      EXPECT_EQ(filter.selects(runs, run), !std::isnan(value)) << words.str() << " of " << run;
      ++compared;
    }
  EXPECT_EQ(compared, 28u);
}

TEST(RunFeatures, CountPeaksAndTheirDistance)
{
  const std::vector<double> times{0, 1, 2, 3, 4, 5, 6};
  const std::vector<double> values{0, 5, 0, 5, 1, 5, 0};
  const RunCourse course{times.data(), values.data(), times.size()};
  EXPECT_EQ(featureOf(RunFeature::Peaks, course), 3);
  EXPECT_EQ(featureOf(RunFeature::Period, course), 2);
  EXPECT_EQ(featureOf(RunFeature::Mean, course), 16.0 / 7);
}

TEST(RunFeatures, AreReadFromTheirWords)
{
  for (const RunFeature feature : runFeatures())
    for (const std::string item : {"TetR", "Molecule: cI", "a \"b\", c", "max", "and"})
    {
      const auto read = readFeature(featureWords(feature, item));
      ASSERT_TRUE(read) << featureWords(feature, item);
      EXPECT_EQ(read->feature, feature);
      EXPECT_EQ(read->item, item);
    }
  EXPECT_EQ(featureWords(RunFeature::Final, "Molecule: cI"), "final(\"Molecule: cI\")");
}

TEST(RunFeatures, AreNotReadFromOtherWords)
{
  for (const char* words :
       {"TetR", "max", "max()", "max(TetR, 1)", "max(3)", "through(TetR)", "abs(TetR)",
        "max(TetR) > 3", "-max(TetR)", "max(a over b)", "max(TetR", "", "max(min(TetR))"})
    EXPECT_FALSE(readFeature(words)) << words;
}

} // namespace
