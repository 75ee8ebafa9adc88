#include "app/CommandLineHelp.h"

#include "app/ComparisonOptions.h"
#include "app/ImportOptions.h"
#include "app/export/PictureFile.h"
#include "app/styles/ViewerStyles.h"

#include <algorithm>
#include <cstddef>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t widthOfNames = 26;

} // namespace

std::string helpEntry(const std::string& name, const std::string& meaning)
{
  const std::size_t length = std::min(name.size(), widthOfNames - 1);
  return "  " + name + std::string(widthOfNames - length, ' ') + meaning + "\n";
}

std::string commandLineHelp()
{
  std::string help =
      "Usage: talmesh-plot [FILE]... [OPTION]...\n"
      "Shows simulated runs. Without FILE the example study opens, the repressilator gene "
      "circuit.\n"
      "\n"
      "FILE is a table of runs, mostly a line of names, then one row per time point, runs one\n"
      "after another; or a session that the window has saved (.talmesh). Several files, a folder "
      "or a name\n"
      "with * are one table: a run or an item each.\n"
      "\n"
      "  --style NAME            the kind of plot (below)\n"
      "  --x NAME                the column for the x axis; over a parameter, or a number of runs\n"
      "                          such as 'max(TetR)', each run is one point\n"
      "  --y NAME[,NAME...]      the columns to plot, or such numbers\n"
      "  --z NAME                the column for the third axis, or the error bars\n"
      "  --select CONDITION      select the runs that meet it, such as 'max(TetR) > 150'; several\n"
      "                          of them add up\n"
      "  --with CONDITION        compare them with the runs that meet it, or with a kept "
      "selection\n"
      "                          of that name, instead of all others\n" +
      comparisonHelp() + "  --export FILE           write " + exportNames("FILE") +
      " and open no window;\n"
      "                          may be given several times\n"
      "  --compare FILE          write how the parameters of the selected runs differ from those "
      "of\n"
      "                          the others, as a table (.csv), and open no window\n"
      "  --runs FILE             write the parameters of all runs and the largest, mean and final\n"
      "                          values of their items, as a table (.csv), and open no window\n"
      "  --gallery DIR           write every view into DIR, one PNG and one PDF each\n"
      "  --size WxH              width and height of the pictures in pixels\n"
      "  --paper WxH             width and height of exported pictures in millimetres\n"
      "  --font N                size of the text in points of paper or pixels of the screen; 12\n"
      "                          without this, less with --paper narrower than 180, at least 7\n"
      "  --dpi N                 resolution of a PNG with --paper and of pictures in a PDF,\n"
      "                          300 without this, 150 in a PDF without --paper\n"
      "  --vector all|auto|none  which lines and points of a PDF are vectors: all, as many as\n"
      "                          can be told apart (auto, without this), or none; the others\n"
      "                          are a picture\n"
      "  --help                  this text\n"
      "  --version               the version\n"
      "\n" +
      importHelp() +
      "\n"
      "Styles:\n";
  for (const ViewerStyle& style : viewerStyles())
    help += helpEntry(style.name, style.title);
  return help;
}

} // namespace Talmesh::app
