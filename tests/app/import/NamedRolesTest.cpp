#include <gtest/gtest.h>

#include "import/DescribedTable.h"

using namespace Talmesh::app;

namespace
{

const char* const constantInRuns = "run,time,A,k\n0,0,1,5\n0,1,2,5\n1,0,3,6\n1,1,4,6\n";

} // namespace

TEST(NamedRoles, MakeColumnsMeasuredThatAreConstantInRuns)
{
  EXPECT_EQ(described(constantInRuns).report.parameters, Names{"k"});
  ImportRequest request;
  request.measured = {"k"};
  const DescribedTable table = described(constantInRuns, request);
  EXPECT_TRUE(table.report.parameters.empty());
  EXPECT_EQ(table.report.items, (Names{"A", "k"}));
}

TEST(NamedRoles, TakeTimeFromAColumnThatIsCalledSo)
{
  ImportRequest request;
  request.layout = "stacked";
  request.ignored = {"time"};
  const DescribedTable table = described(constantInRuns, request);
  EXPECT_EQ(table.error, "");
  EXPECT_EQ(table.report.time, "");
  EXPECT_EQ(table.report.ignored, Names{"time"});
}
