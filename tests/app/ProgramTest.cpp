#include "app/document/PlotChoice.h"
#include "app/document/PlotSession.h"
#include "app/document/RunNormaliser.h"
#include "app/document/ShownStudy.h"
#include "app/examples/Gallery.h"
#include "app/import/RunTableImport.h"
#include "plot/PlotContainer.h"
#include "support/PdfPages.h"
#include "support/Pictures.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>

#include <algorithm>
#include <string>

#include "RunningProgram.h"
#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

class Program : public RunningProgram
{
};

QByteArray withoutDates(const QByteArray& pdf)
{
  return QString::fromLatin1(pdf)
      .remove(QRegularExpression(QStringLiteral("/CreationDate \\([^)]*\\)")))
      .toLatin1();
}

} // namespace

TEST_F(Program, PrintsHelpAndVersion)
{
  const Ended help = run({"--help"});
  EXPECT_EQ(help.status, 0);
  EXPECT_TRUE(help.output.startsWith("Usage: talmesh-plot"));
  const Ended version = run({"--version"});
  EXPECT_EQ(version.status, 0);
  EXPECT_TRUE(version.output.startsWith("talmesh-plot "));
}

TEST_F(Program, ExportsAUsersRunsInEveryFormat)
{
  const QString csv = write("runs.csv", sampleRuns());
  expectSuccess({csv, "--y", "X,Y", "--x", "time", "--size", "420x280", "--export",
                 path("plot.png"), "--export", path("plot.pdf"), "--export", path("plot.csv")});
  EXPECT_EQ(QImage(path("plot.png")).size(), QSize(420, 280));
  EXPECT_TRUE(contentOf(path("plot.pdf")).startsWith("%PDF"));
  EXPECT_TRUE(contentOf(path("plot.csv")).startsWith("\"Molecule: X\",\"Molecule: Y\""));
}

TEST_F(Program, TellsWhatItLeavesOutOfAnExport)
{
  const QString csv = write("runs.csv", "time,X,drug\n0,1,aspirin\n1,2,aspirin\n");
  const Ended ended = run({csv, "--export", path("plot.csv")});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.errors.toStdString(),
            "talmesh-plot: The column \"drug\" holds the same text in all rows, \"aspirin\", and "
            "is left out.\n");
}

TEST_F(Program, ExportsForPrint)
{
  const QString csv = write("runs.csv", sampleRuns());
  expectSuccess({csv, "--paper", "90x60", "--dpi", "200", "--export", path("plot.png")});
  EXPECT_EQ(QImage(path("plot.png")).size(), QSize(709, 472));
  EXPECT_GT(paintedPixels(QImage(path("plot.png"))), 1000);
}

TEST_F(Program, MakesVectorsOfWhatItIsAskedTo)
{
  const QString csv = write("runs.csv", sampleRuns());
  for (const char* vectors : {"all", "auto", "none"})
  {
    expectSuccess({csv, "--vector", vectors, "--dpi", "150", "--export", path("plot.pdf")});
    // Two lines are the table's head; three runs are shapes unless none shall be.
    const QStringList pictures =
        outputOf("pdfimages", {"-list", path("plot.pdf")}).trimmed().split(QLatin1Char('\n'));
    EXPECT_EQ(pictures.size() > 2, std::string(vectors) == "none") << vectors;
  }
}

TEST_F(Program, RefusesMorePixelsThanItCanPaint)
{
  const QString csv = write("runs.csv", sampleRuns());
  expectError({csv, "--paper", "1200x1200", "--dpi", "1200", "--export", path("plot.png")},
              "--paper and --dpi: 56693 x 56693 pixels are too many: a side may have 20000");
  EXPECT_FALSE(QFile::exists(path("plot.png")));
}

TEST_F(Program, ExportsInEveryStyle)
{
  const QString csv = write("runs.csv", sampleRuns());
  for (const char* style : {"xyPlot", "reservedStyle1", "reservedStyle2", "scatterPlotMatrix",
                            "xyzPlot", "multiPlot", "selectionCdfPlot", "scatterWithErrorBars",
                            "fitParameterDistribution", "parallelCoordinates"})
  {
    expectSuccess({csv, "--style", style, "--size", "300x200", "--export", path("plot.png")});
    const QImage picture(path("plot.png"));
    EXPECT_EQ(picture.size(), QSize(300, 200)) << style;
    // The reserved styles show a line of text alone.
    EXPECT_GT(paintedPixels(picture), 100) << style;
    QFile::remove(path("plot.png"));
  }
}

TEST_F(Program, OpensTheExampleStudyWithoutAFile)
{
  expectSuccess({"--export", path("example.csv")});
  EXPECT_TRUE(contentOf(path("example.csv")).startsWith("\"Molecule: TetR\""));
  EXPECT_EQ(contentOf(path("example.csv")).count('\n'), 80001);
}

TEST_F(Program, WritesTheGallery)
{
  const QString csv = write("runs.csv", sampleRuns());
  expectSuccess({csv, "--gallery", path("gallery"), "--size", "300x200"});
  EXPECT_EQ(QDir(path("gallery")).entryList(QDir::Files).size(),
            2 * static_cast<int>(galleryViews().size()));
}

TEST_F(Program, KeepsNumbersReadableWhateverTheLocale)
{
  if (!QFile::exists(QStringLiteral("/usr/share/i18n/locales/de_DE")))
    GTEST_SKIP() << "The sources of locales are not installed.";
  const QProcessEnvironment before = environment;
  makeLocaleWithDecimalCommas();
  // Otherwise the rest would show nothing.
  ASSERT_EQ(numberPrintedInTheLocale(), "0,5");
  const QString csv = write("runs.csv", sampleRuns());
  expectSuccess({csv, "--export", path("commas.csv"), "--export", path("commas.pdf")});
  environment = before;
  expectSuccess({csv, "--export", path("plot.csv"), "--export", path("plot.pdf")});
  // Not EXPECT_EQ, which would print the files byte by byte.
  EXPECT_TRUE(contentOf(path("commas.csv")) == contentOf(path("plot.csv")));
  EXPECT_TRUE(withoutDates(contentOf(path("commas.pdf"))) ==
              withoutDates(contentOf(path("plot.pdf"))));
}

TEST_F(Program, RefusesBadOptions)
{
  expectError({"--frobnicate"}, "unknown option --frobnicate");
  expectError({"--size", "0x0"},
              "--size takes WIDTHxHEIGHT in pixels, each from 16 to 16384, not 0x0");
  expectError({"--export", "plot.svg"},
              "cannot export to plot.svg: the name must end with .png, .pdf or .csv");
  expectError({"--style", "pie"},
              "unknown style pie; the styles are xyPlot, reservedStyle1, reservedStyle2, "
              "scatterPlotMatrix, xyzPlot, multiPlot, selectionCdfPlot, scatterWithErrorBars, "
              "fitParameterDistribution, parallelCoordinates");
}

TEST_F(Program, RefusesAMissingFileWithAndWithoutAWindow)
{
  const QString missing = path("missing.csv");
  expectError({missing, "--export", path("plot.png")}, missing + ": there is no such file");
  expectError({missing}, missing + ": there is no such file");
  EXPECT_FALSE(QFile::exists(path("plot.png")));
}

TEST_F(Program, RefusesAMissingColumnWithAndWithoutAWindow)
{
  const QString csv = write("runs.csv", sampleRuns());
  const QString message = "no such column: Z; the columns are X, Y, time, Run Index, k";
  expectError({csv, "--x", "Z", "--export", path("plot.png")}, message);
  expectError({csv, "--y", "X,Z"}, message);
  EXPECT_FALSE(QFile::exists(path("plot.png")));
}

TEST_F(Program, RefusesWhatIsNoTable)
{
  const QString text = write("letter.txt", "Dear reader\nthis is prose\n");
  expectError({text, "--export", path("plot.png")},
              text + ": not a table: no column holds numbers");
  const QString binary = write("plot.bin", std::string("\x7f"
                                                       "ELF\0\0\1",
                                                       7));
  expectError({binary, "--gallery", path("out")},
              binary + ": not a table: the file holds binary data");
  EXPECT_FALSE(QFile::exists(path("out")));
}

TEST_F(Program, NamesTheRunWhoseTimesAreNotTheOthers)
{
  const QString csv = write("runs.csv", "time,X\n0,1\n1,2\n0,1\n");
  expectError({csv, "--export", path("plot.csv")},
              csv + ": run 1 (from line 4, where time falls back) has 1 point, other runs have 2. "
                    "If a run starts wherever time falls back, say --layout stacked; if a column "
                    "names the runs, --run and its name; if there are none, --layout table");
  const Ended asked = run({csv, "--layout", "stacked", "--export", path("plot.csv")});
  EXPECT_EQ(asked.status, 0);
  EXPECT_EQ(asked.errors.toStdString(),
            "talmesh-plot: The runs have different times. They are shown at all 2 of them, with "
            "gaps where a run has no point.\n");
}

TEST_F(Program, SpeaksGermanInAGermanEnvironment)
{
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
  expectError({path("no.csv"), "--export", path("a.png")},
              path("no.csv") + ": es gibt keine solche Datei");
}

TEST_F(Program, ExportsASession)
{
  // A table with the column Time of two rows, and no settings.
  const QByteArray session =
      QByteArray::fromHex("8954414c4d455348000000010000000200000000000000297b7d000000000000"
                          "0001000000020000000800540069006d0065013ff00000000000004000000000"
                          "0000005dbab94ab924455a2e3c29914fb8e4f346308bc3b0e2936efeb48e761f"
                          "df4738");
  expectSuccess({write("a.talmesh", session.toStdString()), "--export", path("a.csv")});
  EXPECT_EQ(contentOf(path("a.csv")).toStdString(), "\"Time\"\n1\n2\n");
}

TEST_F(Program, ExportsTheRunsOfASessionAsNormalisedAsTheyWereShown)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  const auto largestExported = [&](const RunNormaliser& normaliser)
  {
    EXPECT_EQ(saveSession(path("a.talmesh"),
                          sessionOf(study, container, choiceOf(container), &normaliser)),
              "");
    expectSuccess({path("a.talmesh"), "--export", path("a.csv")});
    const ImportedTable table = importRunTable(contentOf(path("a.csv")).toStdString()).value();
    const double* values = table.runs->values.front();
    return *std::max_element(values, values + table.runs->numberOfTrajectories *
                                                  table.runs->pointsPerTrajectory);
  };
  RunNormaliser normaliser;
  normaliser.follow(&container);
  const double largest = largestExported(normaliser);
  EXPECT_GT(largest, 1.0);
  normaliser.setNormalised({0}, true);
  EXPECT_EQ(largestExported(normaliser), 1.0);
  normaliser.setNormalised({0}, false);
  EXPECT_EQ(largestExported(normaliser), largest);
}

TEST_F(Program, ShowsTheLegendOfASessionInTheXYPlot)
{
  const Study study = sampleStudy();
  PlotContainer container(nullptr);
  showStudy(study, container);
  container.setPlotStyle(scatterPlotMatrix);
  const auto exported = [&](bool shown)
  {
    PlotChoice choice = choiceOf(container);
    choice.legend = shown;
    EXPECT_EQ(saveSession(path("a.talmesh"), sessionOf(study, container, choice)), "");
    expectSuccess({path("a.talmesh"), "--style", "xyPlot", "--size", "300x200", "--export",
                   path("plot.png")});
    return QImage(path("plot.png"));
  };
  const QImage plain = exported(false);
  EXPECT_EQ(plain.size(), QSize(300, 200));
  EXPECT_NE(exported(true), plain);
  EXPECT_EQ(exported(false), plain);
}

TEST_F(Program, SelectsRunsByWords)
{
  const QString csv = write("runs.csv", sampleRuns());
  const auto exported = [&](const QStringList& options)
  {
    expectSuccess(QStringList{csv, "--size", "420x280", "--export", path("plot.png")} + options);
    return QImage(path("plot.png"));
  };
  const QImage plain = exported({});
  const QImage some = exported({"--select", "run = 0"});
  EXPECT_NE(some, plain);
  EXPECT_NE(exported({"--select", "run = 0", "--select", "run = 1"}), some);
  const Ended wrong = run({csv, "--select", "max(X) >", "--export", path("plot.png")});
  EXPECT_EQ(wrong.status, 1);
  EXPECT_EQ(wrong.errors,
            "talmesh-plot: max(X) >: at character 9: a name or a number is missing here\n");
}
