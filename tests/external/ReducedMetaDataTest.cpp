#include "external/ReducedMetaData.h"

#include "external/CoordinateWindow.h"

#include <boost/unordered_map.hpp>
#include <gtest/gtest.h>

TEST(ReducedMetaData, EqualKeysHaveEqualHashes)
{
  const ReducedMetaData a{1, 2, 3};
  const ReducedMetaData b{1, 2, 3};
  EXPECT_TRUE(a == b);
  EXPECT_FALSE(a != b);
  EXPECT_EQ(hash_value(a), hash_value(b));
}

TEST(ReducedMetaData, EachPartDistinguishesKeys)
{
  const ReducedMetaData key{1, 2, 3};
  EXPECT_FALSE(key == (ReducedMetaData{0, 2, 3}));
  EXPECT_FALSE(key == (ReducedMetaData{1, 0, 3}));
  EXPECT_FALSE(key == (ReducedMetaData{1, 2, 0}));
}

TEST(ReducedMetaData, HashDependsOnEachPartAndOnTheirOrder)
{
  const std::size_t hash = hash_value(ReducedMetaData{1, 2, 3});
  EXPECT_NE(hash, hash_value(ReducedMetaData{0, 2, 3}));
  EXPECT_NE(hash, hash_value(ReducedMetaData{1, 0, 3}));
  EXPECT_NE(hash, hash_value(ReducedMetaData{1, 2, 0}));
  EXPECT_NE(hash, hash_value(ReducedMetaData{2, 1, 3}));
}

TEST(ReducedMetaData, AnotherStyleIsAnotherEntryOfTheMap)
{
  boost::unordered_map<ReducedMetaData, CoordinateWindow> windows;
  windows[{0, 1, 0}].xMax = 10.0;
  windows[{0, 1, 7}].xMax = 20.0;
  EXPECT_EQ(windows.size(), 2u);
  EXPECT_EQ((windows[{0, 1, 0}].xMax), 10.0);
  EXPECT_EQ((windows[{0, 1, 7}].xMax), 20.0);
}
