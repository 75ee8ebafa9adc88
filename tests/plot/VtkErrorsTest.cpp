#include "support/VtkErrors.h"

#include "support/SampleTables.h"

#include <gtest/gtest.h>

TEST(VtkErrorsOfTheTests, AreCollected)
{
  VtkErrors errors;
  const auto table = tableOf({{"a", {1}}});
  table->AddColumn(Talmesh::plot::makeColumn("longer", {1, 2}));
  EXPECT_NE(errors.text().find("longer"), std::string::npos);
}
