#include "app/window/ImportModel.h"

#include "app/import/RoleNames.h"

#include <QFont>

#include <algorithm>
#include <utility>

namespace Talmesh::app
{

namespace
{

using Names = std::vector<std::string>;

/// Of these a table has one column.
std::string ImportRequest::*oneOf(ColumnRole role)
{
  switch (role)
  {
  case ColumnRole::Time:
    return &ImportRequest::time;
  case ColumnRole::Item:
    return &ImportRequest::item;
  case ColumnRole::Value:
    return &ImportRequest::value;
  default:
    return nullptr;
  }
}

Names ImportRequest::*severalOf(ColumnRole role)
{
  switch (role)
  {
  case ColumnRole::Run:
    return &ImportRequest::run;
  case ColumnRole::Measured:
    return &ImportRequest::measured;
  case ColumnRole::Parameter:
    return &ImportRequest::parameters;
  case ColumnRole::Condition:
    return &ImportRequest::conditions;
  case ColumnRole::Ignored:
    return &ImportRequest::ignored;
  default:
    return nullptr;
  }
}

bool has(const Names& names, const std::string& name)
{
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// What is shown stays where it is when it is read once more.
bool isSame(const FirstRows& one, const FirstRows& other)
{
  const auto sameName = [](const ColumnHeader& a, const ColumnHeader& b)
  { return a.name == b.name && a.kind == b.kind; };
  return one.separator == other.separator && one.lines == other.lines && one.cells == other.cells &&
         std::equal(one.roles.headers.begin(), one.roles.headers.end(), other.roles.headers.begin(),
                    other.roles.headers.end(), sameName);
}

} // namespace

const std::vector<ColumnRole>& columnRoles()
{
  static const std::vector<ColumnRole> all = {
      ColumnRole::Automatic, ColumnRole::Time,      ColumnRole::Run,
      ColumnRole::Item,      ColumnRole::Value,     ColumnRole::Measured,
      ColumnRole::Parameter, ColumnRole::Condition, ColumnRole::Ignored};
  return all;
}

QString nameOf(ColumnRole role)
{
  switch (role)
  {
  case ColumnRole::Time:
    return ImportModel::tr("time");
  case ColumnRole::Run:
    return ImportModel::tr("run");
  case ColumnRole::Item:
    return ImportModel::tr("item");
  case ColumnRole::Value:
    return ImportModel::tr("value");
  case ColumnRole::Measured:
    return ImportModel::tr("measured");
  case ColumnRole::Parameter:
    return ImportModel::tr("parameter");
  case ColumnRole::Condition:
    return ImportModel::tr("condition");
  case ColumnRole::Ignored:
    return ImportModel::tr("ignored");
  default:
    return ImportModel::tr("automatic");
  }
}

bool ImportModel::setRows(FirstRows rows)
{
  if (isSame(rows, shown))
    return false;
  beginResetModel();
  shown = std::move(rows);
  for (auto it = asked.begin(); it != asked.end();)
  {
    const auto& headers = shown.roles.headers;
    const bool known =
        std::any_of(headers.begin(), headers.end(),
                    [&](const ColumnHeader& header) { return header.name == it->first; });
    it = known || headers.empty() ? std::next(it) : asked.erase(it);
  }
  endResetModel();
  return true;
}

void ImportModel::setReport(ImportReport report)
{
  understood = std::move(report);
  tellHeaders();
}

void ImportModel::takeRoles(const ImportRequest& request)
{
  asked.clear();
  for (const ColumnRole role : columnRoles())
  {
    if (auto field = oneOf(role); field && !(request.*field).empty())
      asked[request.*field] = role;
    if (auto field = severalOf(role))
      for (const std::string& column : request.*field)
        asked[column] = role;
  }
  tellHeaders();
}

void ImportModel::addTo(ImportRequest& request) const
{
  for (const ColumnRole role : columnRoles())
  {
    if (auto field = oneOf(role))
      (request.*field).clear();
    if (auto field = severalOf(role))
      (request.*field).clear();
  }
  // In the order of the columns, which the names of runs follow.
  for (const ColumnHeader& header : shown.roles.headers)
  {
    const auto found = asked.find(header.name);
    if (found == asked.end())
      continue;
    if (auto field = oneOf(found->second))
      request.*field = header.name;
    if (auto field = severalOf(found->second))
      (request.*field).push_back(header.name);
  }
}

void ImportModel::setRole(int column, ColumnRole role)
{
  if (askedRole(column) == role)
    return;
  if (oneOf(role))
    for (auto it = asked.begin(); it != asked.end();)
      it = it->second == role ? asked.erase(it) : std::next(it);
  if (role == ColumnRole::Automatic)
    asked.erase(name(column));
  else
    asked[name(column)] = role;
  tellHeaders();
  emit rolesChanged();
}

ColumnRole ImportModel::askedRole(int column) const
{
  const auto found = asked.find(name(column));
  return found == asked.end() ? ColumnRole::Automatic : found->second;
}

ColumnRole ImportModel::role(int column) const
{
  const ColumnRole wished = askedRole(column);
  return wished == ColumnRole::Automatic ? recognisedRole(column) : wished;
}

ColumnRole ImportModel::recognisedRole(int column) const
{
  const std::string& called = name(column);
  if (understood.layout.empty())
    return ColumnRole::Automatic;
  if (called == understood.time)
    return ColumnRole::Time;
  if (has(understood.ignored, called))
    return ColumnRole::Ignored;
  if (has(understood.parameters, called))
    return ColumnRole::Parameter;
  if (has(understood.categories, called))
    return ColumnRole::Condition;
  if (has(understood.items, called))
    return ColumnRole::Measured;
  const bool isLong = understood.layout == "tidy" || understood.layout == "petab";
  if (isLong && isItemName(called))
    return ColumnRole::Item;
  if (isLong && isValueName(called))
    return ColumnRole::Value;
  return column == shown.roles.runColumn ? ColumnRole::Run : ColumnRole::Automatic;
}

QString ImportModel::nameOfColumn(int column) const
{
  return QString::fromStdString(name(column));
}

const std::string& ImportModel::name(int column) const
{
  return shown.roles.headers[static_cast<std::size_t>(column)].name;
}

int ImportModel::rowOfLine(std::size_t line) const
{
  const auto found = std::find(shown.lines.begin(), shown.lines.end(), line);
  return found == shown.lines.end() ? -1 : static_cast<int>(found - shown.lines.begin());
}

int ImportModel::rowCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : static_cast<int>(shown.cells.size());
}

int ImportModel::columnCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : static_cast<int>(shown.columns());
}

QVariant ImportModel::data(const QModelIndex& index, int role) const
{
  if (!index.isValid() || role != Qt::DisplayRole)
    return {};
  const auto& cells = shown.cells[static_cast<std::size_t>(index.row())];
  const auto column = static_cast<std::size_t>(index.column());
  return column < cells.size() ? QString::fromStdString(cells[column]) : QString();
}

QVariant ImportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
  if (orientation == Qt::Vertical)
  {
    const auto row = static_cast<std::size_t>(section);
    if (role != Qt::DisplayRole || section >= rowCount())
      return {};
    return static_cast<qulonglong>(shown.lines.empty() ? row + 1 : shown.lines[row]);
  }
  if (section >= columnCount())
    return {};
  const bool wished = askedRole(section) != ColumnRole::Automatic;
  const QString word = nameOf(this->role(section));
  if (role == Qt::DisplayRole)
    return nameOfColumn(section) + QLatin1Char('\n') +
           (wished ? word : QLatin1Char('(') + word + QLatin1Char(')')) + QStringLiteral(" \u25be");
  if (role == Qt::ToolTipRole)
    return wished ? tr("%1 is to be: %2").arg(nameOfColumn(section), word)
                  : tr("%1 is recognised as: %2").arg(nameOfColumn(section), word);
  if (role == Qt::FontRole)
  {
    QFont font;
    font.setBold(wished);
    return font;
  }
  return {};
}

void ImportModel::tellHeaders()
{
  if (columnCount() > 0)
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

} // namespace Talmesh::app
