#include "app/session/SessionImport.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include <memory>
#include <string>

#include "session/SavedSession.h"

using namespace Talmesh::app;

namespace
{

class KeptImport : public SavedSession
{
protected:
  static Study study()
  {
    ImportReport report;
    const auto read = importTable("run,time,drug,X\n0,0,none,1\n0,1,none,2\n1,0,wild type,3\n",
                                  ImportTask(), report);
    EXPECT_EQ(read.error(), "");
    const ImportedTable& table = read.value();
    return {"study", table.runs, table.table, nullptr, table.categories, table.measured};
  }
};

} // namespace

TEST_F(KeptImport, KeepsCategoriesAndMeasuredTimes)
{
  save(study());
  reopen();
  ASSERT_EQ(opened.study.categories.size(), 1U);
  EXPECT_EQ(opened.study.categories[0].column, "Parameter: drug");
  EXPECT_EQ(opened.study.categories[0].levels, (std::vector<std::string>{"none", "wild type"}));
  ASSERT_TRUE(opened.study.measured);
  EXPECT_EQ(opened.study.measured->starts, (std::vector<std::size_t>{0, 2, 3}));
  EXPECT_EQ(opened.study.measured->times, (std::vector<double>{0, 1, 0}));
}

TEST(SessionImportObject, LeavesOutWhatIsDamaged)
{
  SessionImport import;
  auto measured = std::make_shared<MeasuredTimes>();
  measured->starts = {0, 2};
  measured->times = {0.1, -1e300};
  import.measured = measured;
  QJsonObject object = objectOf(import);
  EXPECT_EQ(readImport(object).measured->times, measured->times);
  QJsonObject times = object["measured"].toObject();
  times["starts"] = QJsonArray{0, 3, 2};
  object["measured"] = times;
  EXPECT_FALSE(readImport(object).measured);
  object["categories"] = QJsonArray{1, QJsonObject{{"column", "a"}}};
  EXPECT_TRUE(readImport(object).categories.empty());
}

TEST(SessionImportObject, LeavesOutWhatIsTooLarge)
{
  SessionImport import;
  import.categories = {{"a", { "x", "y" }}, { "b", { std::string(2 << 20, 'z') } }};
  auto measured = std::make_shared<MeasuredTimes>();
  measured->times.resize(1 << 18);
  measured->starts = {0, measured->times.size()};
  import.measured = measured;
  const SessionImport read = readImport(objectOf(import));
  EXPECT_EQ(read.categories.size(), 1U);
  EXPECT_FALSE(read.measured);
}
