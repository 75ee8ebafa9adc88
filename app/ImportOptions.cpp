#include "app/ImportOptions.h"

#include "app/import/Layouts.h"
#include "app/session/DumpedTable.h"
#include "app/session/SessionFile.h"
#include "app/session/SessionSettings.h"

#include <QString>

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace Talmesh::app
{

namespace
{

std::string layoutNames()
{
  std::string names;
  for (const Layout& layout : layouts())
    names += (names.empty() ? "" : ", ") + std::string(layout.name);
  return names;
}

/// Before all others, which may say something else.
std::string readLike(const std::string& value, ImportRequest& request)
{
  const Result<SessionSettings> settings =
      readSettings(peekSettings(QString::fromStdString(value)), mostSessionColumns);
  if (!settings.hasValue() || !settings.value().import.reading)
    return "--like needs a session that tells how its table was read; " + value + " does not";
  request = *settings.value().import.reading;
  return {};
}

std::string readLayout(const std::string& value, ImportRequest& request)
{
  if (!findLayout(value))
    return "unknown layout " + value + "; the layouts are " + layoutNames();
  request.layout = value;
  return {};
}

template <auto field>
std::string readName(const std::string& value, ImportRequest& request)
{
  request.*field = value;
  return {};
}

/// The parts of a text between commas. A comma behind a backslash is part of a name.
std::vector<std::string> splitNames(const std::string& value)
{
  std::vector<std::string> names(1);
  for (std::size_t i = 0; i < value.size(); ++i)
  {
    const bool marked =
        value[i] == '\\' && i + 1 < value.size() && (value[i + 1] == ',' || value[i + 1] == '\\');
    if (value[i] == ',')
      names.emplace_back();
    else
      names.back() += value[marked ? ++i : i];
  }
  return names;
}

/// Names between commas.
template <auto field>
std::string readNames(const std::string& value, ImportRequest& request)
{
  for (std::string& name : splitNames(value))
  {
    if (name.empty())
      return "a name is empty in " + value;
    (request.*field).push_back(std::move(name));
  }
  return {};
}

std::string readSeparator(const std::string& value, ImportRequest& request)
{
  if (value == "tab" || value == "\\t")
    request.separator = '\t';
  else if (value == "blank" || value == "space")
    request.separator = ' ';
  else if (value.size() == 1 && std::string_view(",;|: \t").find(value) != std::string_view::npos)
    request.separator = value.front();
  else
    return "--separator takes one of , ; | : tab blank, not " + value;
  return {};
}

std::string readDecimal(const std::string& value, ImportRequest& request)
{
  if (value != "." && value != ",")
    return "--decimal takes . or a comma, not " + value;
  request.decimalMark = value.front();
  return {};
}

std::string readUnequal(const std::string& value, ImportRequest& request)
{
  if (value != "union" && value != "interpolate")
    return "--unequal takes union or interpolate, not " + value;
  request.unequal = value == "union" ? UnequalRuns::Union : UnequalRuns::Interpolate;
  return {};
}

std::string readFiles(const std::string& value, ImportRequest& request)
{
  if (value != "runs" && value != "items")
    return "--files takes runs or items, not " + value;
  request.files = value;
  return {};
}

std::string readJoin(const std::string& value, ImportRequest& request)
{
  if (value != "name" && value != "order")
    return "--join takes name or order, not " + value;
  request.join = value;
  return {};
}

} // namespace

const std::array<ImportOption, 18>& importOptions()
{
  static const std::array<ImportOption, 18> options = {
      {{"like", readLike},
       {"layout", readLayout},
       {"time", readName<&ImportRequest::time>},
       {"run", readNames<&ImportRequest::run>},
       {"item", readName<&ImportRequest::item>},
       {"value", readName<&ImportRequest::value>},
       {"measured", readNames<&ImportRequest::measured>},
       {"parameter", readNames<&ImportRequest::parameters>},
       {"condition", readNames<&ImportRequest::conditions>},
       {"error", readNames<&ImportRequest::errors>},
       {"ignore", readNames<&ImportRequest::ignored>},
       {"separator", readSeparator},
       {"decimal", readDecimal},
       {"unequal", readUnequal},
       {"sheet", readName<&ImportRequest::sheet>},
       {"files", readFiles},
       {"parameter-table", readName<&ImportRequest::parameterTable>},
       {"join", readJoin}}};
  return options;
}

std::string importHelp()
{
  return "How a table is read, where it does not tell by itself:\n"
         "  --like SESSION          as that of a session was, but for what else is said\n"
         "  --layout NAME           how its rows and columns are laid out: " +
         layoutNames() +
         "\n"
         "  --time NAME             the column of times\n"
         "  --run NAME[,NAME...]    the columns that name the run of a row together\n"
         "  --item NAME             the column that says what a row has the value of\n"
         "  --value NAME            the column of these values\n"
         "  --measured NAME[,...]   columns that are measured, and no parameters of runs\n"
         "  --parameter NAME[,...]  columns that are parameters of runs\n"
         "  --condition NAME[,...]  columns whose cells are names, such as of drugs\n"
         "  --error NAME[,...]      columns that tell how exact others are, which is not shown\n"
         "  --ignore NAME[,...]     columns to leave out\n"
         "  --separator CHAR        what parts the fields: , ; | : tab or blank\n"
         "  --decimal CHAR          the decimal mark: . or ,\n"
         "  --unequal union|interpolate\n"
         "                          runs of different times have gaps at the times of others, or\n"
         "                          straight lines across them\n"
         "  --sheet NAME            the sheet of a workbook, the array, or the group or data set "
         "of\n"
         "                          an HDF5 file, where there are several\n"
         "  --files runs|items      what each of several files is\n"
         "  --parameter-table FILE  the table of parameters that belongs to several files\n"
         "  --join name|order       how that is joined: by the column that names runs or files, "
         "or\n"
         "                          by the order of its rows\n"
         "  --describe              print what was understood of the table as JSON, and open no\n"
         "                          window; the exit status is 0, 1 where the table is refused, "
         "or\n"
         "                          3 where several readings fit about equally well\n";
}

} // namespace Talmesh::app
