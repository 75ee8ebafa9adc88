#include "support/Pictures.h"

#include <gtest/gtest.h>

#include <QFile>

#include <cmath>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "RunningProgram.h"

namespace
{

/// What is known of a parameter.
struct Expected
{
  int selected;
  int others;
  double distance;
  double low;
  double high;
  double p;
  double adjusted;
  double superiority;
  double medians;
};

/// The numbers that the program writes, compared with those of other programs and closed forms.
class ComparedNumbers : public RunningProgram
{
protected:
  using Row = std::map<QString, QString>;

  /// A table of runs of two points; X is 1 above `height` at the second one.
  template <typename Parameters, typename Height>
  QString study(const char* names, int runs, Parameters parameters, Height height)
  {
    std::ostringstream text;
    text << "run,time," << names << ",X\n";
    for (int run = 0; run < runs; ++run)
      for (int point = 0; point < 2; ++point)
        text << run << ',' << point << ',' << parameters(run) << ',' << height(run) + point << '\n';
    return write("runs.csv", text.str());
  }

  /// Lines of the comparison by the names of their parameters.
  std::map<QString, Row> comparison(const QString& csv, const char* condition,
                                    const std::string& remark = {})
  {
    QFile::remove(path("out.csv"));
    expectSuccess({csv, "--select", condition, "--compare", path("out.csv")}, remark);
    const QStringList lines = QString::fromUtf8(contentOf(path("out.csv"))).trimmed().split('\n');
    const QStringList names = lines.first().split(',');
    std::map<QString, Row> rows;
    for (const QString& line : lines.mid(1))
    {
      const QStringList cells = line.split(',');
      for (int cell = 0; cell < cells.size(); ++cell)
        rows[cells.first()][names.value(cell)] = cells[cell];
    }
    return rows;
  }

  static void expectRow(const Row& row, const Expected& expected)
  {
    const auto number = [&row](const char* name) { return row.at(name).toDouble(); };
    EXPECT_EQ(number("selected"), expected.selected);
    EXPECT_EQ(number("others"), expected.others);
    EXPECT_NEAR(number("D"), expected.distance, 1e-15);
    EXPECT_NEAR(number("D_low"), expected.low, 1e-15);
    EXPECT_NEAR(number("D_high"), expected.high, 1e-15);
    EXPECT_NEAR(number("p"), expected.p, 1e-12);
    EXPECT_NEAR(number("p_adjusted"), expected.adjusted, 1e-12);
    EXPECT_NEAR(number("superiority"), expected.superiority, 1e-15);
    EXPECT_NEAR(number("median_difference"), expected.medians, 1e-15);
    EXPECT_EQ(row.at("method"), "Kolmogorov-Smirnov (exact)");
  }
};

} // namespace

// R 4.2.2:
//   r <- 0:59; s <- r %/% 6 + (r*11) %% 5 > 6
//   row <- function(x) { a <- x[s & !is.na(x)]; b <- x[!s & !is.na(x)]; z <- sort(c(a, b))
//     D <- max(abs(ecdf(a)(z) - ecdf(b)(z)))
//     e <- sqrt(log(80)/2/length(a)) + sqrt(log(80)/2/length(b))
//     c(length(a), length(b), D, max(0, D - e), min(1, D + e), ks.test(a, b, exact=TRUE)$p.value,
//       mean(outer(a, b, '>') + outer(a, b, '==')/2), median(a) - median(b)) }
//   w <- (r*7) %% 60; w[r %in% c(3, 10, 17)] <- NA
//   m <- sapply(list(r %% 6, r %/% 6, w), row); m; p.adjust(m[6,], 'BH')
TEST_F(ComparedNumbers, AreThoseOfROnAGridWithAMissingValue)
{
  const QString csv = study(
      "u,v,w,fixed", 60,
      [](int run)
      {
        const bool missing = run == 3 || run == 10 || run == 17;
        return std::to_string(run % 6) + ',' + std::to_string(run / 6) + ',' +
               (missing ? std::string() : std::to_string(run * 7 % 60)) + ",3";
      },
      [](int run) { return run / 6 + run * 11 % 5; });
  auto rows = comparison(csv, "max(X) > 7.5",
                         "talmesh-plot: The same value stands in all rows of \"fixed\".\n");
  ASSERT_EQ(rows.size(), 3U) << "what does not vary is no parameter";
  expectRow(rows["u"], {30, 30, 0, 0, 0.54049524417728112, 1, 1, 0.5, 0});
  expectRow(rows["v"], {30, 30, 0.73333333333333339, 0.19283808915605227, 1, 1.9308951548779874e-08,
                        5.7926854646339621e-08, 0.95999999999999996, 5});
  expectRow(rows["w"], {30, 27, 0.18148148148148147, 0, 0.73659510958496688, 0.66156304591457116,
                        0.99234456887185674, 0.55679012345679013, 0.5});
  EXPECT_EQ(rows["v"]["direction"], "larger in selected");
}

/// Of the rank sums of one among twenty, two are as far out as its: p = 2 / 20.
TEST_F(ComparedNumbers, AreExactForOneRunAndForAllButOne)
{
  const auto value = [](int run) { return std::to_string(0.5 * run); };
  const QString csv = study("k", 20, value, [](int run) { return run; });
  for (const char* condition : {"max(X) > 19.5", "max(X) < 19.5", "run = 0", "run > 0"})
  {
    auto row = comparison(csv, condition)["k"];
    EXPECT_NEAR(row["p"].toDouble(), 2.0 / 20.0, 1e-15) << condition;
    EXPECT_EQ(row["D"], "1") << condition;
    EXPECT_EQ(row["D_high"], "1") << condition;
  }
  EXPECT_EQ(comparison(csv, "run = 19")["k"]["median_difference"], "5") << "9.5 and 4.5";
  EXPECT_EQ(comparison(csv, "run = 0")["k"]["direction"], "smaller in selected");
}

TEST_F(ComparedNumbers, AreThereForTwoRuns)
{
  const QString csv = study(
      "k", 2, [](int run) { return std::to_string(run); }, [](int run) { return run; });
  auto row = comparison(csv, "run = 1")["k"];
  EXPECT_EQ(row["D"], "1");
  EXPECT_EQ(row["p"], "1") << "either of the two would differ as much";
  EXPECT_EQ(row["superiority"], "1");
}

/// Two of choose(120, 60) selections separate the halves.
TEST_F(ComparedNumbers, KeepTheDigitsOfSmallP)
{
  const QString csv = study(
      "k", 120, [](int run) { return std::to_string(run); }, [](int run) { return run; });
  auto row = comparison(csv, "max(X) > 60.5")["k"];
  double p = 2;
  for (int i = 1; i <= 60; ++i)
    p *= i / (60.0 + i);
  EXPECT_NEAR(row["p"].toDouble() / p, 1, 1e-12);
}

// R 4.2.2: x <- 0:299; s <- x %in% c(212, 260, 280); ks.test(x[s], x[!s], exact=TRUE)
TEST_F(ComparedNumbers, AreExactForThreeOfManyRuns)
{
  const QString csv = study(
      "k", 300, [](int run) { return std::to_string(run); }, [](int run) { return run; });
  auto row = comparison(csv, "runs(212, 260, 280)")["k"];
  EXPECT_NEAR(row["D"].toDouble(), 0.713804713804713775, 1e-15);
  EXPECT_NEAR(row["p"].toDouble(), 0.049263091737259512, 1e-12);
}
