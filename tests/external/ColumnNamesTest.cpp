#include "external/ColumnNames.h"

#include <gtest/gtest.h>

using namespace Talmesh;

TEST(ColumnNames, TellTheTimeAmongItsKind)
{
  const TypedConcentrationName other(TimeOrValue, "other");
  const TypedConcentrationName value(TimeOrValue, "Value");
  const TypedConcentrationName time(TimeOrValue, "Time [s]");
  const TypedConcentrationName molecule(Molecule, "Time [s]");
  EXPECT_EQ(timeItem({}), -1);
  EXPECT_EQ(timeItem({molecule}), -1) << "of another kind";
  EXPECT_EQ(timeItem({molecule, other, runIndexItem()}), 1) << "the first of its kind";
  EXPECT_EQ(timeItem({other, value, value, other}), 2) << "the last value";
  EXPECT_EQ(timeItem({value, other, time, time, value}), 2) << "the first time in seconds";
}

TEST(ColumnNames, TellTheNumberOfARun)
{
  EXPECT_EQ(selectionPairToString(runIndexItem()), ": Run Index");
  EXPECT_TRUE(labelsRunIndex(": Run Index"));
  EXPECT_TRUE(labelsRunIndex("Index"));
  EXPECT_FALSE(labelsRunIndex(": Run number"));
  EXPECT_FALSE(labelsRunIndex("index"));
}

TEST(ColumnNames, TellTheTimeByPartsOfLabels)
{
  for (const char* label : {": Time [s]", "Value", "Molecule: TimeLag", "Period of X"})
    EXPECT_TRUE(labelsTime(label)) << label;
  for (const char* label : {"time", ": t / s", "Parameter: k", ""})
    EXPECT_FALSE(labelsTime(label)) << label;
}
