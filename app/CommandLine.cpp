#include "app/CommandLine.h"

#include "app/ComparisonOptions.h"
#include "app/ImportOptions.h"
#include "app/OptionValues.h"
#include "app/PictureOptions.h"
#include "app/export/PictureFile.h"
#include "app/styles/ViewerStyles.h"

#include <QCommandLineParser>
#include <QFile>

#include <algorithm>
#include <map>
#include <string_view>

namespace Talmesh::app
{

namespace
{

/// The bytes of an argument, which Qt's parser gets as a file's name: no byte is lost in that.
std::string bytesOf(const QString& argument)
{
  return QFile::encodeName(argument).toStdString();
}

/// A name or a condition in the encoding of the user's terminal as UTF-8.
std::string typedText(const std::string& typed)
{
  return QString::fromLocal8Bit(typed.c_str()).toStdString();
}

/// The following take the value of an option into `options`.
/// @return why they cannot, in one line; empty on success
using Reader = std::string (*)(const std::string& value, CommandLineOptions& options);

std::string readStyle(const std::string& value, CommandLineOptions& options)
{
  if (const ViewerStyle* found = findStyle(value))
  {
    options.style = found->style;
    return {};
  }
  std::string names;
  for (const ViewerStyle& known : viewerStyles())
    names += (names.empty() ? "" : ", ") + std::string(known.name);
  return "unknown style " + value + "; the styles are " + names;
}

template <auto wish>
std::string readName(const std::string& value, CommandLineOptions& options)
{
  options.*wish = typedText(value);
  return {};
}

std::string readY(const std::string& value, CommandLineOptions& options)
{
  for (const std::string& name : splitAtCommas(value))
  {
    if (name.empty())
      return "--y has an empty name in " + value;
    options.y.push_back(typedText(name));
  }
  return {};
}

std::string readSelect(const std::string& value, CommandLineOptions& options)
{
  options.select.push_back(typedText(value));
  return {};
}

std::string readExport(const std::string& value, CommandLineOptions& options)
{
  const std::size_t nameStart = value.find_last_of('/') + 1;
  const std::string_view name = std::string_view(value).substr(nameStart);
  const ExportFormat* format = exportFormatOf(QString::fromStdString(value));
  if (!format || name.size() <= std::string_view(format->suffix).size())
    return "cannot export to " + value + ": " + unknownFormat();
  options.exports.push_back(value);
  return {};
}

std::string readCompare(const std::string& value, CommandLineOptions& options)
{
  if (!options.compare.empty())
    return "--compare is given twice";
  options.compare = value;
  return {};
}

std::string readRuns(const std::string& value, CommandLineOptions& options)
{
  if (!options.runs.empty())
    return "--runs is given twice";
  options.runs = value;
  return {};
}

std::string readGallery(const std::string& value, CommandLineOptions& options)
{
  options.gallery = value;
  return {};
}

struct Option
{
  const char* name;
  Reader read;
};

/// In the order in which they are read.
constexpr Option optionsWithValue[] = {{"style", readStyle},
                                       {"x", readName<&CommandLineOptions::x>},
                                       {"y", readY},
                                       {"z", readName<&CommandLineOptions::z>},
                                       {"select", readSelect},
                                       {"with", readName<&CommandLineOptions::with>},
                                       {"export", readExport},
                                       {"compare", readCompare},
                                       {"runs", readRuns},
                                       {"gallery", readGallery},
                                       {"size", readPixels},
                                       {"paper", readPaper},
                                       {"dpi", readResolution},
                                       {"font", readTextSize},
                                       {"vector", readVectors}};

/// Reads the option as often as it is given.
template <typename Read>
std::string readOption(const QCommandLineParser& line, const char* name, Read read)
{
  for (const QString& value : line.values(QLatin1String(name)))
  {
    const std::string error =
        value.isEmpty() ? "--" + std::string(name) + " needs a value" : read(bytesOf(value));
    if (!error.empty())
      return error;
  }
  return {};
}

std::string readImport(const QCommandLineParser& line, CommandLineOptions& options)
{
  std::string error;
  for (const ImportOption& option : importOptions())
    if (error.empty())
      error = readOption(line, option.name,
                         [&](const std::string& value)
                         { return option.read(typedText(value), options.import); });
  if (error.empty() && options.describes && options.file.empty())
    error = "--describe needs a file";
  return error;
}

std::string readFile(const QStringList& files, CommandLineOptions& options)
{
  if (files.contains(QString()))
    return "the name of the file is empty";
  options.file = files.isEmpty() ? std::string() : bytesOf(files.front());
  for (const QString& file : files.mid(1))
    options.moreFiles.push_back(bytesOf(file));
  return {};
}

/// What Qt's parser refuses: an option that it does not know, else a value that is missing, which
/// only the last argument can do.
std::string refusal(const QCommandLineParser& line, const QString& last)
{
  const QStringList unknown = line.unknownOptionNames();
  if (unknown.isEmpty())
    return bytesOf(last) + " needs a value";
  const QString dashes = QLatin1String(unknown.front().size() > 1 ? "--" : "-");
  return "unknown option " + bytesOf(dashes + unknown.front());
}

std::string read(const QCommandLineParser& line, CommandLineOptions& options)
{
  std::string error = readFile(line.positionalArguments(), options);
  for (const Option& option : optionsWithValue)
    if (error.empty())
      error = readOption(line, option.name,
                         [&](const std::string& value) { return option.read(value, options); });
  for (const ComparisonOption& option : comparisonOptions())
    if (error.empty())
      error = readOption(line, option.name,
                         [&](const std::string& value) { return option.read(value, options); });
  if (error.empty())
    error = readImport(line, options);
  return error.empty() ? checkPixels(options) : error;
}

} // namespace

Result<CommandLineOptions> parseCommandLine(const std::vector<std::string>& arguments)
{
  QCommandLineParser line;
  const QCommandLineOption help(QStringList{QStringLiteral("help"), QStringLiteral("h")});
  const QCommandLineOption version(QStringLiteral("version"));
  const QCommandLineOption halves(QStringLiteral("halves"));
  const QCommandLineOption describe(QStringLiteral("describe"));
  line.addOptions({help, version, halves, describe});
  for (const Option& option : optionsWithValue)
    line.addOption({QLatin1String(option.name), {}, QStringLiteral("value")});
  for (const ComparisonOption& option : comparisonOptions())
    line.addOption({QLatin1String(option.name), {}, QStringLiteral("value")});
  for (const ImportOption& option : importOptions())
    line.addOption({QLatin1String(option.name), {}, QStringLiteral("value")});
  QStringList all{QString()};
  for (const std::string& argument : arguments)
    all.append(QFile::decodeName(argument.c_str()));

  const bool sound = line.parse(all);
  CommandLineOptions options;
  // Help is given however wrong the rest is.
  options.help = line.isSet(help);
  options.version = !options.help && line.isSet(version);
  if (options.help || options.version)
    return options;
  options.halves = line.isSet(halves);
  options.describes = line.isSet(describe);
  const std::string error = sound ? read(line, options) : refusal(line, all.back());
  return error.empty() ? Result<CommandLineOptions>(options)
                       : Result<CommandLineOptions>::failed(error);
}

} // namespace Talmesh::app
