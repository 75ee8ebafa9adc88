#include "app/CommandLine.h"

#include "app/CommandLineHelp.h"
#include "app/export/PictureFile.h"
#include "app/styles/ViewerStyles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Talmesh::app;

namespace
{

CommandLineOptions parsed(const std::vector<std::string>& arguments)
{
  const Result<CommandLineOptions> line = parseCommandLine(arguments);
  EXPECT_EQ(line.error(), "");
  return line.hasValue() ? line.value() : CommandLineOptions();
}

std::string errorOf(const std::vector<std::string>& arguments)
{
  return parseCommandLine(arguments).error();
}

} // namespace

TEST(CommandLine, OpensTheExampleStudyWithoutArguments)
{
  const CommandLineOptions options = parsed({});
  EXPECT_EQ(options.file, "");
  EXPECT_FALSE(options.style);
  EXPECT_FALSE(options.writesOnly());
  EXPECT_EQ(options.width, 0);
}

TEST(CommandLine, ReadsEveryOption)
{
  const CommandLineOptions options = parsed(
      {"runs.csv", "--style", "xyzPlot", "--x", "Time [s]", "--y", "A,B", "--z", "C", "--export",
       "a.png", "--export", "dir/b.pdf", "--gallery", "out", "--size", "800x600"});
  EXPECT_EQ(options.file, "runs.csv");
  EXPECT_EQ(options.style, xyzPlot);
  EXPECT_EQ(options.x, "Time [s]");
  EXPECT_EQ(options.y, (std::vector<std::string>{"A", "B"}));
  EXPECT_EQ(options.z, "C");
  EXPECT_EQ(options.exports, (std::vector<std::string>{"a.png", "dir/b.pdf"}));
  EXPECT_EQ(options.gallery, "out");
  EXPECT_EQ(options.width, 800);
  EXPECT_EQ(options.height, 600);
  EXPECT_TRUE(options.writesOnly());
}

TEST(CommandLine, TakesAValueBehindAnEqualsSign)
{
  const CommandLineOptions options = parsed({"--x=a=b", "--style=xyPlot"});
  EXPECT_EQ(options.x, "a=b");
  EXPECT_EQ(options.style, xyPlot);
}

TEST(CommandLine, GathersTheNamesOfRepeatedYOptions)
{
  EXPECT_EQ(parsed({"--y", "A", "--y", "B,C"}).y, (std::vector<std::string>{"A", "B", "C"}));
}

TEST(CommandLine, TakesEverythingAfterTwoDashesAsAFile)
{
  EXPECT_EQ(parsed({"--x", "t", "--", "--odd.csv"}).file, "--odd.csv");
  EXPECT_EQ(parsed({"--", "--help"}).file, "--help");
  EXPECT_FALSE(parsed({"--", "--help"}).help);
}

TEST(CommandLine, TakesALoneDashAsAFileAndADashAsAValue)
{
  EXPECT_EQ(parsed({"-"}).file, "-");
  EXPECT_EQ(parsed({"--x", "-1"}).x, "-1");
}

TEST(CommandLine, GivesHelpHoweverWrongTheRestIs)
{
  EXPECT_TRUE(parsed({"--style", "none", "--help"}).help);
  EXPECT_TRUE(parsed({"-h"}).help);
  EXPECT_TRUE(parsed({"--version"}).version);
  EXPECT_FALSE(parsed({"--version", "--help"}).version);
}

TEST(CommandLine, KnowsEveryStyleByItsEnumerator)
{
  for (const ViewerStyle& style : viewerStyles())
    EXPECT_EQ(parsed({"--style", style.name}).style, style.style);
  EXPECT_EQ(viewerStyles().size(), 10u);
}

TEST(CommandLine, RefusesAnUnknownStyleAndNamesTheKnownOnes)
{
  EXPECT_EQ(errorOf({"--style", "pie"}),
            "unknown style pie; the styles are xyPlot, reservedStyle1, reservedStyle2, "
            "scatterPlotMatrix, xyzPlot, multiPlot, selectionCdfPlot, scatterWithErrorBars, "
            "fitParameterDistribution, parallelCoordinates");
  EXPECT_NE(errorOf({"--style", "XYPLOT"}), "");
}

TEST(CommandLine, RefusesAnUnknownOption)
{
  EXPECT_EQ(errorOf({"--colour", "red"}), "unknown option --colour");
  EXPECT_EQ(errorOf({"--colour=red"}), "unknown option --colour");
  EXPECT_EQ(errorOf({"-q"}), "unknown option -q");
}

TEST(CommandLine, RefusesAnOptionWithoutItsValue)
{
  for (const char* option : {"--style", "--x", "--y", "--z", "--export", "--compare", "--gallery",
                             "--size", "--paper", "--dpi", "--font", "--vector"})
  {
    EXPECT_EQ(errorOf({option}), std::string(option) + " needs a value");
    EXPECT_EQ(errorOf({option, ""}), std::string(option) + " needs a value");
    EXPECT_EQ(errorOf({std::string(option) + "="}), std::string(option) + " needs a value");
  }
}

TEST(CommandLine, TakesSeveralFiles)
{
  const Result<CommandLineOptions> read = parseCommandLine({"a.csv", "--files", "runs", "b.csv"});
  ASSERT_TRUE(read.hasValue()) << read.error();
  EXPECT_EQ(read.value().file, "a.csv");
  EXPECT_EQ(read.value().moreFiles, std::vector<std::string>{"b.csv"});
  EXPECT_EQ(read.value().import.files, "runs");
  EXPECT_EQ(errorOf({"a.csv", "--files", "rows"}), "--files takes runs or items, not rows");
  EXPECT_EQ(errorOf({"a.csv", "--join", "luck"}), "--join takes name or order, not luck");
}

TEST(CommandLine, RefusesAnEmptyName)
{
  EXPECT_EQ(errorOf({""}), "the name of the file is empty");
}

TEST(CommandLine, RefusesAnEmptyNameAmongTheYColumns)
{
  EXPECT_EQ(errorOf({"--y", "A,,B"}), "--y has an empty name in A,,B");
  EXPECT_EQ(errorOf({"--y", "A,"}), "--y has an empty name in A,");
}

TEST(CommandLine, RefusesAnExportOfAnotherKind)
{
  for (const char* name : {"plot.svg", "plot", "png", ".png", "dir/.pdf", "plot.jpg"})
    EXPECT_EQ(errorOf({"--export", name}), std::string("cannot export to ") + name +
                                               ": the name must end with .png, .pdf or .csv");
}

TEST(CommandLine, TakesSuffixesInCapitals)
{
  EXPECT_EQ(parsed({"--export", "A.PNG", "--export", "b.Pdf", "--export", "C.CSV"}).exports,
            (std::vector<std::string>{"A.PNG", "b.Pdf", "C.CSV"}));
}

TEST(CommandLine, RefusesASizeThatIsNone)
{
  for (const char* size : {"800", "800x", "x600", "800x600x2", "8e2x600", "-800x600", "15x600",
                           "800x16385", "99999999999x600", "800 x600", "axb"})
    EXPECT_EQ(errorOf({"--size", size}),
              std::string("--size takes WIDTHxHEIGHT in pixels, each from 16 to 16384, not ") +
                  size);
  EXPECT_EQ(parsed({"--size", "16x16384"}).height, 16384);
}

TEST(CommandLine, TakesASizeOnPaperAndAResolution)
{
  const CommandLineOptions options = parsed({"--paper", "180x120.5", "--dpi", "600"});
  EXPECT_EQ(options.paperWidth, 180.0);
  EXPECT_EQ(options.paperHeight, 120.5);
  EXPECT_EQ(options.dotsPerInch, 600);
  EXPECT_EQ(parsed({}).paperWidth, 0.0);
  for (const char* size : {"180", "180x", "x120", "19x120", "180x1201", "nanx120", "180x120mm"})
    EXPECT_EQ(errorOf({"--paper", size}), std::string("--paper takes WIDTHxHEIGHT in millimetres, "
                                                      "each from 20 to 1200, not ") +
                                              size);
  for (const char* dpi : {"71", "1201", "300.5", "high"})
    EXPECT_EQ(errorOf({"--dpi", dpi}),
              std::string("--dpi takes a number from 72 to 1200, not ") + dpi);
}

TEST(CommandLine, TakesTheSizeOfText)
{
  EXPECT_FALSE(parsed({}).textSize);
  EXPECT_EQ(parsed({"--font", "7"}).textSize, 7);
  for (const char* size : {"3", "37", "7.5", "small"})
    EXPECT_EQ(errorOf({"--font", size}),
              std::string("--font takes a number from 4 to 36, not ") + size);
}

TEST(CommandLine, TakesWhichShapesAreVectors)
{
  EXPECT_EQ(parsed({}).vectors, Talmesh::Vectors::Auto);
  EXPECT_EQ(parsed({"--vector", "all"}).vectors, Talmesh::Vectors::All);
  EXPECT_EQ(parsed({"--vector=none"}).vectors, Talmesh::Vectors::None);
  EXPECT_EQ(parsed({"--vector", "none", "--vector", "auto"}).vectors, Talmesh::Vectors::Auto);
  EXPECT_EQ(errorOf({"--vector", "All"}), "--vector takes all, auto or none, not All");
}

TEST(CommandLine, RefusesMorePixelsThanMemoryShouldHold)
{
  // 1200 mm at 1200 dpi are 1200 / 25.4 * 1200 = 56692.9 pixels.
  const std::string error =
      "--paper and --dpi: 56693 x 56693 pixels are too many: a side may have 20000";
  EXPECT_EQ(errorOf({"--paper", "1200x1200", "--dpi", "1200", "--export", "a.png"}), error);
  EXPECT_EQ(errorOf({"--export", "a.PNG", "--dpi", "1200", "--paper", "1200x1200"}), error);
  // A side of 423.3 mm has 19999 pixels at 1200 dpi.
  EXPECT_EQ(errorOf({"--paper", "423.3x20", "--dpi", "1200", "--export", "a.png"}), "");
  EXPECT_NE(errorOf({"--paper", "423.4x20", "--dpi", "1200", "--export", "a.png"}), "");
  EXPECT_EQ(errorOf({"--paper", "1200x1200", "--dpi", "1200", "--export", "a.pdf"}), "");
}

TEST(CommandLine, LeavesNoOptionsBesideAnError)
{
  EXPECT_FALSE(parseCommandLine({"a.csv", "--bad"}).hasValue());
}

TEST(CommandLine, ExplainsEveryOptionAndStyleInItsHelp)
{
  const std::string help = commandLineHelp();
  for (const char* word :
       {"FILE", "--style", "--x", "--y", "--z", "--export", "--compare", "--gallery", "--size",
        "--paper", "--dpi", "--vector", "--help", "--version"})
    EXPECT_NE(help.find(word), std::string::npos) << word;
  for (const ViewerStyle& style : viewerStyles())
    EXPECT_NE(help.find(style.name), std::string::npos) << style.name;
  EXPECT_EQ(help.back(), '\n');
}

TEST(CommandLine, NamesEveryFormatInItsHelpAndItsRefusal)
{
  const std::string help = commandLineHelp();
  const std::string refusal = errorOf({"--export", "plot.svg"});
  const std::string filters = exportFilters().toStdString();
  for (const ExportFormat& format : exportFormats())
  {
    EXPECT_NE(help.find(std::string("FILE") + format.suffix), std::string::npos) << format.suffix;
    EXPECT_NE(refusal.find(format.suffix), std::string::npos) << format.suffix;
    EXPECT_NE(filters.find(std::string("(*") + format.suffix + ")"), std::string::npos);
    EXPECT_EQ(errorOf({"--export", std::string("plot") + format.suffix}), "");
  }
}

TEST(CommandLine, ListsNamesOfAnyLengthInItsHelp)
{
  EXPECT_EQ(helpEntry("short", "what it is"), "  short" + std::string(21, ' ') + "what it is\n");
  const std::string name(40, 'n');
  EXPECT_EQ(helpEntry(name, "what it is"), "  " + name + " what it is\n");
}

TEST(CommandLine, CollectsConditionsWhichMayHoldCommas)
{
  const CommandLineOptions options =
      parsed({"--select", "at(TetR, 9000) > 1", "--select=k<2", "runs.csv"});
  EXPECT_EQ(options.select, (std::vector<std::string>{"at(TetR, 9000) > 1", "k<2"}));
}

TEST(CommandLine, WritesAComparisonWithoutAWindow)
{
  const CommandLineOptions options =
      parsed({"--select", "k < 2", "--compare", "out.csv", "runs.csv"});
  EXPECT_EQ(options.compare, "out.csv");
  EXPECT_TRUE(options.writesOnly());
  EXPECT_FALSE(options.writesPictures());
  EXPECT_EQ(parsed({"runs.csv"}).compare, "");
}

TEST(CommandLine, TakesWhatIsKnownOfTheDesign)
{
  EXPECT_FALSE(parsed({"runs.csv"}).design);
  EXPECT_EQ(parsed({"--design", "saltelli"}).design, (Talmesh::stats::KnownDesign{true, 0}));
  EXPECT_EQ(parsed({"--design=saltelli:12"}).design, (Talmesh::stats::KnownDesign{true, 12}));
  for (const char* wrong : {"morris", "saltelli:", "saltelli:0", "saltelli:x", "saltelli3"})
    EXPECT_EQ(errorOf({"--design", wrong}),
              std::string("--design takes saltelli, or saltelli:K for K parameters, not ") + wrong);
}

TEST(CommandLine, TakesTheTestAndTheAdjustment)
{
  EXPECT_FALSE(parsed({"runs.csv"}).comparedBy);
  EXPECT_FALSE(parsed({"runs.csv"}).adjustment);
  using Talmesh::stats::Adjustment;
  using Talmesh::stats::ComparedBy;
  EXPECT_EQ(parsed({"--compare-by", "ks"}).comparedBy, ComparedBy::distribution);
  EXPECT_EQ(parsed({"--compare-by=mannwhitney"}).comparedBy, ComparedBy::rankSum);
  EXPECT_EQ(parsed({"--compare-by", "counts"}).comparedBy, ComparedBy::counts);
  EXPECT_EQ(parsed({"--adjust", "bh"}).adjustment, Adjustment::benjaminiHochberg);
  EXPECT_EQ(parsed({"--adjust", "holm"}).adjustment, Adjustment::holm);
  EXPECT_EQ(parsed({"--adjust=maxt"}).adjustment, Adjustment::maxT);
  EXPECT_EQ(errorOf({"--compare-by", "t"}), "--compare-by takes ks, mannwhitney or counts, not t");
  EXPECT_EQ(errorOf({"--adjust", "Holm"}), "--adjust takes bh, holm or maxt, not Holm");
}
