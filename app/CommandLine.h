#ifndef CommandLine_h
#define CommandLine_h

#include "app/document/PlotWishes.h"
#include "app/import/Result.h"
#include "widgets/ScenePainter.h"

#include <optional>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// What the user asked for on the command line. Names of columns are UTF-8; names of files are the
/// bytes that the system knows them by.
struct CommandLineOptions : OpeningWishes
{
  /// Files to write, in order.
  std::vector<std::string> exports;
  /// The file to write the comparison of the selected runs with the others to; empty for none.
  std::string compare;
  /// The file to write the table of runs to; empty for none.
  std::string runs;
  /// The folder to write one picture of each view into; empty for none.
  std::string gallery;
  /// Width and height of exported pictures on paper in millimetres; 0 for the size in pixels.
  double paperWidth = 0.0;
  double paperHeight = 0.0;
  /// Text in points, or in pixels of the screen; none for what is usual.
  std::optional<int> textSize;
  /// Pixels per inch of a picture of a size on paper, and of those in a PDF; none for the default.
  std::optional<int> dotsPerInch;
  /// Which lines and points of a PDF are vectors.
  Vectors vectors = Vectors::Auto;
  /// Prints what was understood of the table instead of showing it.
  bool describes = false;
  bool help = false;
  bool version = false;

  bool writesPictures() const { return !exports.empty() || !gallery.empty(); }
  /// Whether the program only writes files and opens no window.
  bool writesOnly() const { return writesPictures() || !compare.empty() || !runs.empty(); }
};

/// Reads the arguments after the program's name, as the system hands them over. A value follows its
/// option as the next argument or behind "=". After "--" every argument is a file. `--y` may be
/// repeated; a comma separates names. Nothing is checked against the disk. With `--help` or
/// `--version` nothing else matters.
Result<CommandLineOptions> parseCommandLine(const std::vector<std::string>& arguments);

} // namespace Talmesh::app

#endif
