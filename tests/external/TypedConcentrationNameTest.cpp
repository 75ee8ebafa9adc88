#include "external/TypedConcentrationName.h"

#include "external/LinePlotData.h"

#include <gtest/gtest.h>

#include <type_traits>

using Talmesh::DataType;
using Talmesh::TypedConcentrationName;

TEST(TypedConcentrationName, EachKindHasItsWord)
{
  EXPECT_EQ(Talmesh::dataTypeLabel(DataType(0)), "Complex");
  EXPECT_EQ(Talmesh::dataTypeLabel(DataType(1)), "Molecule");
  EXPECT_EQ(Talmesh::dataTypeLabel(DataType(2)), "Complex With Molecule");
  EXPECT_EQ(Talmesh::dataTypeLabel(DataType(3)), "Pattern");
  EXPECT_EQ(Talmesh::dataTypeLabel(DataType(4)), "");
  EXPECT_EQ(Talmesh::dataTypeLabel(DataType(5)), "Parameter");
  EXPECT_EQ(Talmesh::dataTypeLabel(DataType(6)), "Undefined Type");
}

TEST(TypedConcentrationName, EnumeratorsHaveTheStoredNumbers)
{
  EXPECT_EQ(int(Talmesh::Complex), 0);
  EXPECT_EQ(int(Talmesh::Molecule), 1);
  EXPECT_EQ(int(Talmesh::ComplexWithMolecule), 2);
  EXPECT_EQ(int(Talmesh::Pattern), 3);
  EXPECT_EQ(int(Talmesh::TimeOrValue), 4);
  EXPECT_EQ(int(Talmesh::Parameter), 5);
  EXPECT_EQ(int(Talmesh::UndefinedType), 6);
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<DataType>, int>));
}

TEST(TypedConcentrationName, LabelIsWordColonBlankName)
{
  EXPECT_EQ(Talmesh::selectionPairToString({Talmesh::Parameter, "k1"}), "Parameter: k1");
  EXPECT_EQ(Talmesh::selectionPairToString({Talmesh::Complex, ""}), "Complex: ");
}

TEST(TypedConcentrationName, LabelOfATimeHasNoWord)
{
  EXPECT_EQ(Talmesh::selectionPairToString({Talmesh::TimeOrValue, "Time [s]"}), ": Time [s]");
}

TEST(TypedConcentrationName, LabelOfAnUnknownKindHasNoWord)
{
  EXPECT_EQ(Talmesh::selectionPairToString({DataType(7), "x"}), ": x");
  EXPECT_EQ(Talmesh::selectionPairToString({DataType(2147483647), "x"}), ": x");
  EXPECT_EQ(Talmesh::selectionPairToString({DataType(-1), "x"}), ": x");
}

TEST(TypedConcentrationName, SeriesAreFoundByKindAndName)
{
  std::vector<double> values{1.0, 2.0};
  LinePlotData data;
  data.series[{Talmesh::Molecule, "A"}] = &values;
  EXPECT_EQ(data.series.at({Talmesh::Molecule, "A"}), &values);
  EXPECT_EQ(data.series.count({Talmesh::Pattern, "A"}), 0u);
  EXPECT_EQ(data.series.count({Talmesh::Molecule, "B"}), 0u);
  EXPECT_EQ(data.xValues, nullptr);
}
