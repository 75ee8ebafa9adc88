#include "app/comparison/ComparisonModel.h"

#include <QFont>
#include <QLocale>

#include <cmath>

namespace Talmesh::app
{

namespace
{

/// As many digits as a reader compares; very small p-values by their power of ten.
QString shortNumber(double value)
{
  constexpr double smallest = 0.001;
  const bool scientific = value != 0.0 && std::abs(value) < smallest;
  return QString::number(value, scientific ? 'e' : 'f', scientific ? 2 : 3);
}

QString shown(const QVariant& value)
{
  return value.userType() == QMetaType::Double ? shortNumber(value.toDouble()) : value.toString();
}

QString full(const QVariant& value)
{
  return value.userType() == QMetaType::Double
             ? QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest)
             : value.toString();
}

QVariant sortable(const QVariant& value)
{
  const bool nan = value.userType() == QMetaType::Double && std::isnan(value.toDouble());
  return nan ? QVariant() : value;
}

bool isResult(int column)
{
  return column == ComparisonModel::Statistic || column == ComparisonModel::PValue ||
         column == ComparisonModel::AdjustedPValue || column == ComparisonModel::Significant;
}

QString reasonOf(TestObstacle obstacle)
{
  switch (obstacle)
  {
  case TestObstacle::repeatedValues:
    return ComparisonModel::tr(
        "Not tested. Values repeat: the test needs a value of its own for every run.");
  case TestObstacle::missingValues:
    return ComparisonModel::tr("Not tested. Values are missing: the test needs a number for every "
                               "run.");
  case TestObstacle::changingValues:
    return ComparisonModel::tr("Not tested. Values change within a run: the test needs one value "
                               "for every run.");
  case TestObstacle::otherParameter:
    return ComparisonModel::tr("Not tested. Another parameter changes within a run, which "
                               "distorts this test.");
  case TestObstacle::none:
    break;
  }
  return {};
}

} // namespace

void ComparisonModel::setParameters(std::vector<ComparedParameter> compared)
{
  beginResetModel();
  parameters = std::move(compared);
  endResetModel();
}

int ComparisonModel::rowCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : static_cast<int>(parameters.size());
}

int ComparisonModel::columnCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : static_cast<int>(columns);
}

QVariant ComparisonModel::valueAt(const ComparedParameter& parameter, int column) const
{
  switch (column)
  {
  case Name:
    return QString::fromStdString(parameter.name);
  case Statistic:
    return parameter.statistic;
  case PValue:
    return parameter.pValue;
  case AdjustedPValue:
    return parameter.adjustedPValue;
  case Selected:
    return static_cast<qulonglong>(parameter.selected);
  case Others:
    return static_cast<qulonglong>(parameter.others);
  case Significant:
    return parameter.significant ? tr("yes") : tr("no");
  default:
    return {};
  }
}

QVariant ComparisonModel::untested(const ComparedParameter& parameter, int column, int role)
{
  switch (role)
  {
  case Qt::DisplayRole:
    return QString(QChar(0x2013)); // en dash
  case FullTextRole:
    return column == Significant ? tr("not tested") : QString();
  case Qt::ToolTipRole:
    return reasonOf(parameter.obstacle);
  default:
    return {};
  }
}

QVariant ComparisonModel::data(const QModelIndex& index, int role) const
{
  if (!index.isValid() || index.row() >= rowCount())
    return {};
  const ComparedParameter& parameter = parameters[static_cast<std::size_t>(index.row())];
  if (role == Qt::TextAlignmentRole)
    return int(Qt::AlignVCenter | (index.column() == Name ? Qt::AlignLeft : Qt::AlignRight));
  if (parameter.obstacle != TestObstacle::none && isResult(index.column()))
    return untested(parameter, index.column(), role);
  const QVariant value = valueAt(parameter, index.column());
  switch (role)
  {
  case Qt::DisplayRole:
    return shown(value);
  case SortRole:
    return sortable(value);
  case Qt::ToolTipRole:
  case FullTextRole:
    return full(value);
  case Qt::FontRole:
  {
    QFont font;
    font.setBold(parameter.significant);
    return font;
  }
  default:
    return {};
  }
}

QVariant ComparisonModel::headerData(int section, Qt::Orientation orientation, int role) const
{
  if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
    return {};
  const bool tip = role == Qt::ToolTipRole;
  switch (section)
  {
  case Name:
    return tip ? tr("The parameter that was compared") : tr("Parameter");
  case Statistic:
    return tip ? tr("Largest distance of the two empirical distribution functions "
                    "(two-sample Kolmogorov-Smirnov statistic)")
               : tr("D");
  case PValue:
    return tip ? tr("Probability of such a distance if selected and other runs do not differ")
               : tr("p");
  case AdjustedPValue:
    return tip ? tr("p adjusted after Benjamini and Hochberg, because one selection tests all "
                    "parameters at once")
               : tr("Adjusted p");
  case Selected:
    return tip ? tr("Number of selected runs") : tr("Selected");
  case Others:
    return tip ? tr("Number of runs that are not selected") : tr("Not selected");
  case Significant:
    return tip ? tr("Whether p and D meet the thresholds") : tr("Significant");
  default:
    return {};
  }
}

} // namespace Talmesh::app
