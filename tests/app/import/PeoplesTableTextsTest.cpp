#include "PeoplesTables.h"

namespace
{

class PeoplesTableTexts : public PeoplesTables
{
};

const QJsonObject courseFound{{"layout", "stacked"},
                              {"runs", 1},
                              {"points", 20},
                              {"time", "time"},
                              {"items", QJsonArray{"A", "B"}}};

} // namespace

TEST_F(PeoplesTableTexts, NamesMayStandInAComment)
{
  const std::string blanks = rows(
      20,
      [](int t) {
        return "   " + QByteArray::number(t * 0.5, 'e', 8).toStdString() + "   1.25e+01  3.00e+00";
      });
  expectInVariants("course.gdat", "#           time              A              B\n" + blanks,
                   courseFound);
  expectInVariants("data.exp", "# time\tA\tB\n" + blanks, courseFound);
  expectInVariants("c.csv", "# Model of 2000\n" + course("# time,A,B"), courseFound);
}

TEST_F(PeoplesTableTexts, WhatStandsAboveTheTableIsPassedOver)
{
  expectAsExported(course("# exported by Anna\n# model of k=3\n\ntime,A,B"), courseFound);
  expectInVariants("r.csv", course("[Settings]\nSolver, implicit\n\n[Results]\ntime,A,B"),
                   courseFound);
  expectInVariants("s.csv", course("sep=,\ntime,A,B"), courseFound);
  expectInVariants("e.csv", course("Experiment 7, plate 3, May 2000, by Anna, 2nd\n\ntime,A,B"),
                   courseFound);
}

TEST_F(PeoplesTableTexts, SeparatorsMayBeDeclaredBesideDecimalCommas)
{
  const std::string text = replaced(replaced(course("time,A,B"), ',', ";"), '.', ",");
  expectInVariants("sep.csv", "sep=;\n" + text, courseFound);
}

TEST_F(PeoplesTableTexts, UnitsBelowTheNamesBelongToThem)
{
  expectAsExported(course("time,A,B\ns,nM,nM"), {{"runs", 1},
                                                 {"points", 20},
                                                 {"time", "time [s]"},
                                                 {"items", QJsonArray{"A [nM]", "B [nM]"}}});
}

TEST_F(PeoplesTableTexts, NamesOfRowsAreLeftOut)
{
  const std::string r =
      "\"time\" \"A\" \"B\"\n" +
      rows(20, [](int t)
           { return "\"" + std::to_string(t + 1) + "\" " + std::to_string(t) + " 1.5 2"; });
  expectInVariants("r.txt", r, courseFound);
  for (const std::string name : {"rownames", "X", "...1", "Unnamed: 0", "index", ""})
    expectInVariants("n.csv",
                     name + ",time,A,B\n" +
                         rows(20,
                              [](int t)
                              {
                                return std::to_string(t + 1) + "," + std::to_string(2 * t) + "," +
                                       number(7.5 - t) + "," + number(t * 0.5);
                              }),
                     courseFound);
}

TEST_F(PeoplesTableTexts, ValuesBelowTheLimitAreMissing)
{
  const QJsonObject json = describe(write("pk.csv", "ID,TIME,CONC\n1,0,.\n1,2,3.5\n1,8,<BLQ\n"
                                                    "2,0,<0.05\n2,2,4.5\n2,8,BLOQ\n"));
  EXPECT_EQ(json["runs"], QJsonValue(2));
  EXPECT_EQ(json["points"], QJsonValue(3));
  EXPECT_EQ(textOf(json["items"]), "[[\"CONC\"]]");
  EXPECT_FALSE(json["warnings"].toArray().isEmpty());
}

TEST_F(PeoplesTableTexts, DatesAreTimes)
{
  const auto day = [](int i) { return "2024-03-0" + std::to_string(i + 1) + ",7.5,1"; };
  expectInVariants("cases.csv", "date,cases,deaths\n" + rows(9, day),
                   {{"runs", 1}, {"points", 9}, {"time", "date [d]"}});
  const auto hour = [](int i) { return "2024-03-31T0" + std::to_string(i) + ":00:00Z,7.5"; };
  expectInVariants("log.csv", "timestamp,temperature\n" + rows(9, hour),
                   {{"runs", 1}, {"points", 9}, {"time", "timestamp [s]"}});
}

TEST_F(PeoplesTableTexts, NumbersThatMayHaveThousandsAreAsked)
{
  const auto value = [](int t) { return std::to_string(t) + ";1," + std::to_string(137 + 31 * t); };
  EXPECT_EQ(askedOptions(write("thousands.csv", "time;A\n" + rows(20, value))),
            (QStringList{"--decimal ,", "--decimal ."}));
}

TEST_F(PeoplesTableTexts, LatinNamesAndDecimalCommasAreRead)
{
  const auto row = [](int i)
  { return std::to_string(i / 5 + 1) + ";" + std::to_string(i % 5) + ",5;2,25"; };
  expectUnderstood(write("zeit.csv", "Lauf;Zeit [s];Gr\xf6\xdf\x65 [\xb5M]\n" + rows(15, row)),
                   {{"runs", 3},
                    {"points", 5},
                    {"time", "Zeit [s]"},
                    {"items", QJsonArray{QString::fromUtf8("Größe [µM]")}}});
}
