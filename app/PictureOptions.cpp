#include "app/PictureOptions.h"

#include "app/CommandLine.h"
#include "app/OptionValues.h"
#include "app/export/PictureFile.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <vector>

namespace Talmesh::app
{

namespace
{

constexpr int smallestSide = 16;
constexpr int largestSide = 16384;

} // namespace

std::string readPixels(const std::string& value, CommandLineOptions& options)
{
  if (readSize(value, smallestSide, largestSide, options.width, options.height))
    return {};
  return "--size takes WIDTHxHEIGHT in pixels, each from " + std::to_string(smallestSide) + " to " +
         std::to_string(largestSide) + ", not " + value;
}

std::string readPaper(const std::string& value, CommandLineOptions& options)
{
  if (readSize<double>(value, PaperSize::smallestSide, PaperSize::largestSide, options.paperWidth,
                       options.paperHeight))
    return {};
  return "--paper takes WIDTHxHEIGHT in millimetres, each from " +
         std::to_string(PaperSize::smallestSide) + " to " + std::to_string(PaperSize::largestSide) +
         ", not " + value;
}

std::string readResolution(const std::string& value, CommandLineOptions& options)
{
  int number = 0;
  if (!readNumber(std::string_view(value), int{PaperSize::smallestResolution},
                  int{PaperSize::largestResolution}, number))
    return "--dpi takes a number from " + std::to_string(PaperSize::smallestResolution) + " to " +
           std::to_string(PaperSize::largestResolution) + ", not " + value;
  options.dotsPerInch = number;
  return {};
}

std::string readTextSize(const std::string& value, CommandLineOptions& options)
{
  int number = 0;
  if (!readNumber(std::string_view(value), int{PaperSize::smallestText},
                  int{PaperSize::largestText}, number))
    return "--font takes a number from " + std::to_string(PaperSize::smallestText) + " to " +
           std::to_string(PaperSize::largestText) + ", not " + value;
  options.textSize = number;
  return {};
}

std::string readVectors(const std::string& value, CommandLineOptions& options)
{
  static const std::map<std::string, Vectors> choices{
      {"all", Vectors::All}, {"auto", Vectors::Auto}, {"none", Vectors::None}};
  const auto found = choices.find(value);
  if (found == choices.end())
    return "--vector takes all, auto or none, not " + value;
  options.vectors = found->second;
  return {};
}

std::string checkPixels(const CommandLineOptions& options)
{
  const auto isOfPixels = [](const std::string& file)
  { return exportKindOf(QString::fromStdString(file)) == ExportKind::Pixels; };
  const std::vector<std::string>& files = options.exports;
  if (options.paperWidth <= 0.0 || std::none_of(files.begin(), files.end(), isOfPixels))
    return {};
  const PaperSize paper = {QSizeF(options.paperWidth, options.paperHeight),
                           options.dotsPerInch.value_or(PaperSize().dotsPerInch)};
  const std::string error = errorOf(paper, mostPixels);
  return error.empty() ? std::string() : "--paper and --dpi: " + error;
}

} // namespace Talmesh::app
