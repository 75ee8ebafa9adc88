#include "app/document/ListedRuns.h"

#include "app/document/TableRuns.h"
#include "app/import/TranslatedText.h"
#include "app/session/RunSelectionFile.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"

#include <QStringList>

namespace Talmesh::app
{

namespace
{

/// More numbers do not fit into a line.
constexpr int mostIndices = 10;

} // namespace

std::string saveSelectedRuns(const QString& path, PlotContainer& container)
{
  const TableRuns table(container);
  const std::vector<bool> selected = table.selected();
  ParameterSelection listed;
  listed.sourceName = container.getMetaData()->sourceName;
  listed.sourceId = container.getMetaData()->sourceId;
  for (std::size_t run = 0; run < selected.size(); ++run)
    if (selected[run])
      listed.runs.insert(static_cast<int>(table.runNumber(run)));
  return saveRunSelection(path, listed);
}

ListedRuns findListed(const std::set<int>& numbers, const TableRuns& table)
{
  ListedRuns listed{std::vector<bool>(table.numberOfRuns(), false), numbers};
  for (std::size_t run = 0; run < listed.runs.size(); ++run)
  {
    const int number = static_cast<int>(table.runNumber(run));
    listed.missing.erase(number);
    listed.runs[run] = numbers.count(number) != 0;
  }
  return listed;
}

std::string noteOnMissing(const QString& path, const std::set<int>& missing, std::size_t listed)
{
  if (missing.empty())
    return {};
  QStringList indices;
  for (const int run : missing)
  {
    if (indices.size() == mostIndices)
    {
      indices.append(QStringLiteral("..."));
      break;
    }
    indices.append(QString::number(run));
  }
  std::string text;
  if (missing.size() == listed)
    text = translated("ListedRuns", "%1: none of its runs is in this table: %2");
  else if (missing.size() == 1)
    text = translated("ListedRuns", "%1: 1 of its %3 runs is not in this table: %2");
  else
    text = translated("ListedRuns", "%1: %4 of its %3 runs are not in this table: %2");
  return withValues(text, {path.toStdString(), indices.join(QStringLiteral(", ")).toStdString(),
                           std::to_string(listed), std::to_string(missing.size())});
}

} // namespace Talmesh::app
