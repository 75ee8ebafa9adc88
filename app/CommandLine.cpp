#include "app/CommandLine.h"

#include "app/PictureFile.h"
#include "app/StyleNames.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace Talmesh::app
{

namespace
{

constexpr int smallestSide = 16;
constexpr int largestSide = 16384;

std::vector<std::string> splitAtCommas(std::string_view text)
{
  std::vector<std::string> parts;
  for (;;)
  {
    const std::size_t comma = text.find(',');
    parts.emplace_back(text.substr(0, comma));
    if (comma == std::string_view::npos)
      return parts;
    text.remove_prefix(comma + 1);
  }
}

template <typename Number>
bool readNumber(std::string_view text, Number smallest, Number largest, Number& number)
{
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && number >= smallest &&
         number <= largest;
}

/// Reads "WIDTHxHEIGHT".
template <typename Number>
bool readSize(std::string_view text, Number smallest, Number largest, Number& width, Number& height)
{
  const std::size_t cross = text.find('x');
  return cross != std::string_view::npos &&
         readNumber(text.substr(0, cross), smallest, largest, width) &&
         readNumber(text.substr(cross + 1), smallest, largest, height);
}

/// A name in the encoding of the user's terminal as UTF-8.
std::string columnName(const std::string& typed)
{
  return QString::fromLocal8Bit(typed.c_str()).toStdString();
}

class CommandLineParser
{
public:
  explicit CommandLineParser(const std::vector<std::string>& arguments_)
      : arguments(arguments_)
  {
  }

  ParsedCommandLine parse()
  {
    if (asksForHelp())
      return parsed;
    while (next < arguments.size() && parsed.error.empty())
      readArgument(arguments[next++]);
    if (parsed.error.empty())
      checkPixels();
    if (!parsed.error.empty())
      parsed.options = CommandLineOptions();
    return parsed;
  }

private:
  CommandLineOptions& options() { return parsed.options; }

  /// Help is given however wrong the rest is.
  bool asksForHelp()
  {
    const auto end = std::find(arguments.begin(), arguments.end(), "--");
    const auto has = [&](const char* option)
    { return std::find(arguments.begin(), end, option) != end; };
    options().help = has("--help") || has("-h");
    options().version = !options().help && has("--version");
    return options().help || options().version;
  }

  void readArgument(const std::string& argument)
  {
    const bool option = !onlyFiles && argument.size() > 1 && argument.front() == '-';
    if (!option)
      readFile(argument);
    else if (argument == "--")
      onlyFiles = true;
    else
      readOption(argument);
  }

  void readFile(const std::string& argument)
  {
    if (argument.empty())
      parsed.error = "the name of the file is empty";
    else if (!options().file.empty())
      parsed.error = "more than one file to open: " + options().file + " and " + argument;
    else
      options().file = argument;
  }

  void readOption(const std::string& argument)
  {
    const std::size_t equals = argument.find('=');
    const std::string name = argument.substr(0, equals);
    using Reader = void (CommandLineParser::*)(const std::string&);
    struct Option
    {
      const char* name;
      Reader read;
    };
    static constexpr Option known[] = {{"--style", &CommandLineParser::readStyle},
                                       {"--x", &CommandLineParser::readX},
                                       {"--y", &CommandLineParser::readY},
                                       {"--z", &CommandLineParser::readZ},
                                       {"--export", &CommandLineParser::readExport},
                                       {"--gallery", &CommandLineParser::readGallery},
                                       {"--size", &CommandLineParser::readPixels},
                                       {"--paper", &CommandLineParser::readPaper},
                                       {"--dpi", &CommandLineParser::readResolution},
                                       {"--vector", &CommandLineParser::readVectors}};
    const auto* found =
        std::find_if(std::begin(known), std::end(known),
                     [&name](const Option& candidate) { return candidate.name == name; });
    if (found == std::end(known))
    {
      parsed.error = "unknown option " + name;
      return;
    }
    const bool inside = equals != std::string::npos;
    if (!inside && next == arguments.size())
      parsed.error = name + " needs a value";
    else
      readValue(name, inside ? argument.substr(equals + 1) : arguments[next++], found->read);
  }

  void readValue(const std::string& name, const std::string& value,
                 void (CommandLineParser::*read)(const std::string&))
  {
    if (value.empty())
      parsed.error = name + " needs a value";
    else
      (this->*read)(value);
  }

  void readStyle(const std::string& value)
  {
    if (const StyleName* found = findStyle(value))
    {
      options().style = found->style;
      return;
    }
    parsed.error = "unknown style " + value + "; the styles are";
    for (const StyleName& known : styleNames())
      parsed.error += std::string(known.style == xyPlot ? " " : ", ") + known.name;
  }

  void readX(const std::string& value) { options().x = columnName(value); }
  void readZ(const std::string& value) { options().z = columnName(value); }

  void readY(const std::string& value)
  {
    for (const std::string& name : splitAtCommas(value))
      if (name.empty())
        parsed.error = "--y has an empty name in " + value;
      else
        options().y.push_back(columnName(name));
  }

  void readExport(const std::string& value)
  {
    const std::size_t nameStart = value.find_last_of('/') + 1;
    const std::string_view name = std::string_view(value).substr(nameStart);
    const bool known = exportKindOf(QString::fromStdString(value)) != ExportKind::None;
    if (known && name.size() > 4)
      options().exports.push_back(value);
    else
      parsed.error = "cannot export to " + value + ": the name must end with .png, .pdf or .csv";
  }

  void readGallery(const std::string& value) { options().gallery = value; }

  void readPixels(const std::string& value)
  {
    if (!readSize(value, smallestSide, largestSide, options().width, options().height))
      parsed.error = "--size takes WIDTHxHEIGHT in pixels, each from " +
                     std::to_string(smallestSide) + " to " + std::to_string(largestSide) +
                     ", not " + value;
  }

  void readPaper(const std::string& value)
  {
    if (!readSize<double>(value, PaperSize::smallestSide, PaperSize::largestSide,
                          options().paperWidth, options().paperHeight))
      parsed.error = "--paper takes WIDTHxHEIGHT in millimetres, each from " +
                     std::to_string(PaperSize::smallestSide) + " to " +
                     std::to_string(PaperSize::largestSide) + ", not " + value;
  }

  void readResolution(const std::string& value)
  {
    int number = 0;
    if (readNumber(std::string_view(value), int{PaperSize::smallestResolution},
                   int{PaperSize::largestResolution}, number))
      options().dotsPerInch = number;
    else
      parsed.error = "--dpi takes a number from " + std::to_string(PaperSize::smallestResolution) +
                     " to " + std::to_string(PaperSize::largestResolution) + ", not " + value;
  }

  void readVectors(const std::string& value)
  {
    if (value == "all")
      options().vectors = Vectors::All;
    else if (value == "auto")
      options().vectors = Vectors::Auto;
    else if (value == "none")
      options().vectors = Vectors::None;
    else
      parsed.error = "--vector takes all, auto or none, not " + value;
  }

  /// Size and resolution may each be right and ask for too much together.
  void checkPixels()
  {
    const auto isOfPixels = [](const std::string& file)
    { return exportKindOf(QString::fromStdString(file)) == ExportKind::Pixels; };
    const std::vector<std::string>& files = options().exports;
    if (options().paperWidth <= 0.0 || std::none_of(files.begin(), files.end(), isOfPixels))
      return;
    const PaperSize paper = {QSizeF(options().paperWidth, options().paperHeight),
                             options().dotsPerInch.value_or(PaperSize().dotsPerInch)};
    const std::string error = errorOf(paper, mostPixels);
    if (!error.empty())
      parsed.error = "--paper and --dpi: " + error;
  }

  const std::vector<std::string>& arguments;
  std::size_t next = 0;
  bool onlyFiles = false;
  ParsedCommandLine parsed;
};

} // namespace

ParsedCommandLine parseCommandLine(const std::vector<std::string>& arguments)
{
  return CommandLineParser(arguments).parse();
}

std::string commandLineHelp()
{
  std::string help =
      "Usage: talmesh-plot [FILE] [OPTION]...\n"
      "Shows simulated runs. Without FILE the example study opens, the repressilator gene "
      "circuit.\n"
      "\n"
      "FILE is a table (.csv): a line of names, then one row per time point, runs one after\n"
      "another; or a session that the window has saved (.talmesh).\n"
      "\n"
      "  --style NAME            the kind of plot (below)\n"
      "  --x NAME                the column for the x axis\n"
      "  --y NAME[,NAME...]      the columns to plot\n"
      "  --z NAME                the column for the third axis, or the error bars\n"
      "  --export FILE           write FILE.png, FILE.pdf or FILE.csv and open no window;\n"
      "                          may be given several times\n"
      "  --gallery DIR           write every view into DIR, one PNG and one PDF each\n"
      "  --size WxH              width and height of the pictures in pixels\n"
      "  --paper WxH             width and height of exported pictures in millimetres\n"
      "  --dpi N                 resolution of a PNG with --paper and of pictures in a PDF,\n"
      "                          300 without this, 150 in a PDF without --paper\n"
      "  --vector all|auto|none  which lines and points of a PDF are vectors: all, as many as\n"
      "                          can be told apart (auto, without this), or none; the others\n"
      "                          are a picture\n"
      "  --help                  this text\n"
      "  --version               the version\n"
      "\n"
      "Styles:\n";
  for (const StyleName& style : styleNames())
    help += std::string("  ") + style.name +
            std::string(26 - std::char_traits<char>::length(style.name), ' ') + style.title + "\n";
  return help;
}

} // namespace Talmesh::app
