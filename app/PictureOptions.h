#ifndef PictureOptions_h
#define PictureOptions_h

#include <string>

namespace Talmesh::app
{

struct CommandLineOptions;

/// Options of the size and the kind of pictures: --size, --paper, --dpi, --font and --vector.
/// @return what is wrong with the value; empty if nothing is
std::string readPixels(const std::string& value, CommandLineOptions& options);
std::string readPaper(const std::string& value, CommandLineOptions& options);
std::string readResolution(const std::string& value, CommandLineOptions& options);
std::string readTextSize(const std::string& value, CommandLineOptions& options);
std::string readVectors(const std::string& value, CommandLineOptions& options);

/// Size and resolution may each be right and ask for too much together.
std::string checkPixels(const CommandLineOptions& options);

} // namespace Talmesh::app

#endif
