#include "app/import/ImportReport.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Talmesh::app;

namespace
{

QJsonObject read(const ImportReport& report)
{
  return QJsonDocument::fromJson(QByteArray::fromStdString(jsonOf(report))).object();
}

} // namespace

TEST(ImportReport, WritesEveryKey)
{
  ImportReport report;
  report.layout = "tidy";
  report.runs = 300;
  report.fewestPoints = report.mostPoints = 200;
  report.time = "t \"s\"";
  report.items = {"A", "\u00E4"};
  const QJsonObject json = read(report);
  EXPECT_EQ(json.keys(), (QStringList{"categories", "ignored", "items", "layout", "parameters",
                                      "points", "reasons", "runs", "time", "warnings"}));
  EXPECT_EQ(json["layout"], QJsonValue("tidy"));
  EXPECT_EQ(json["runs"], QJsonValue(300));
  EXPECT_EQ(json["points"], QJsonValue(200));
  EXPECT_EQ(json["time"], QJsonValue("t \"s\""));
  EXPECT_EQ(json["items"], QJsonValue(QJsonArray({"A", QString::fromUtf8("\u00E4")})));
  EXPECT_EQ(json["parameters"], QJsonValue(QJsonArray()));
}

TEST(ImportReport, WritesTheFewestAndTheMostPoints)
{
  ImportReport report;
  report.fewestPoints = 3;
  report.mostPoints = 4;
  const QJsonObject json = read(report);
  EXPECT_EQ(json["points"], QJsonValue(QJsonArray({3, 4})));
  EXPECT_TRUE(json["time"].isNull());
}

TEST(ImportReport, WritesTheCandidatesOfWhatIsUnsure)
{
  ImportReport report;
  report.candidates = {{"--layout wide", "wide", 0.5, "why"}};
  const QJsonObject candidate = read(report)["candidates"].toArray().at(0).toObject();
  EXPECT_EQ(candidate["option"], QJsonValue("--layout wide"));
  EXPECT_EQ(candidate["layout"], QJsonValue("wide"));
  EXPECT_EQ(candidate["reason"], QJsonValue("why"));
}
