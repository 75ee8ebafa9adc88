#include "app/comparison/ComparisonModel.h"

#include "app/comparison/ComparisonText.h"
#include "app/comparison/TestNames.h"

#include <QFont>

#include <cmath>

namespace Talmesh::app
{

namespace
{

constexpr int allDigits = 17;
/// Of the name of a group, in its header.
constexpr int charactersOfAGroup = 16;

bool isOfTest(int column)
{
  return column == ComparisonModel::PValue || column == ComparisonModel::AdjustedPValue;
}

bool isText(int column)
{
  return column == ComparisonModel::Name || column == ComparisonModel::DirectionOfDifference;
}

/// NaN for a column of text.
double numberIn(const stats::ParameterComparison& result, int column)
{
  switch (column)
  {
  case ComparisonModel::Statistic:
    return result.effect();
  case ComparisonModel::Superiority:
    return result.superiority;
  case ComparisonModel::MedianDifference:
    return result.medianDifference;
  case ComparisonModel::PValue:
    return result.p;
  case ComparisonModel::AdjustedPValue:
    return result.adjusted;
  case ComparisonModel::Selected:
    return static_cast<double>(result.selected);
  case ComparisonModel::Others:
    return static_cast<double>(result.others);
  default:
    return stats::ParameterComparison::none;
  }
}

QString shortened(const std::string& name)
{
  const QString text = QString::fromStdString(name);
  return text.size() <= charactersOfAGroup ? text
                                           : text.left(charactersOfAGroup - 1) + QChar(0x2026);
}

} // namespace

/// By what the groups were compared, or p was adjusted, and what that drew at random.
QString ComparisonModel::testText(const stats::ParameterComparison& result, int column)
{
  const bool adjusts = column == AdjustedPValue;
  QStringList lines;
  if (adjusts)
    lines.append(adjustmentNames().value(static_cast<int>(result.adjustment)).text);
  else if (result.isUnordered)
    lines << methodText(result.method);
  else
    lines << comparedByNames().value(static_cast<int>(result.comparedBy)).text
          << methodText(result.method);
  const std::size_t permutations = adjusts ? result.adjustingPermutations : result.permutations;
  if (permutations > 0)
    lines.append(tr("%1 permutations, seed %2").arg(countText(permutations)).arg(result.seed));
  return lines.join(QLatin1Char('\n'));
}

QString ComparisonModel::headerOfGroup(int column, bool isTip) const
{
  const std::string& name = column == Selected ? names.selected : names.others;
  if (!name.empty())
    return isTip ? tr("Number of runs in %1", "a kept selection").arg(QString::fromStdString(name))
                 : shortened(name);
  if (column == Selected)
    return isTip ? tr("Number of selected runs") : tr("Selected");
  if (!names.selected.empty())
    return isTip ? tr("Number of the other runs") : tr("Others", "the other runs");
  return isTip ? tr("Number of runs that are not selected") : tr("Not selected");
}

QString ComparisonModel::cellText(const ComparedParameter& parameter, int column) const
{
  const stats::ParameterComparison& result = parameter.result;
  switch (column)
  {
  case ComparisonModel::Name:
    return QString::fromStdString(parameter.name);
  case ComparisonModel::DirectionOfDifference:
    return directionText(parameter, names.selected);
  case ComparisonModel::Statistic:
    return effectText(result);
  case ComparisonModel::PValue:
    return pText(result);
  case ComparisonModel::AdjustedPValue:
    return adjustedText(result);
  case ComparisonModel::Selected:
    return QString::number(result.selected);
  case ComparisonModel::Others:
    return QString::number(result.others);
  default:
    return numberText(numberIn(result, column));
  }
}

/// In place of p why there is none.
QString ComparisonModel::shownText(const ComparedParameter& parameter, int column) const
{
  const bool lacksP = column == ComparisonModel::PValue && parameter.obstacle != TestObstacle::none;
  const QString text = lacksP ? obstacleLabel(parameter.obstacle) : cellText(parameter, column);
  return text.isEmpty() ? QString(QChar(0x2013)) : text; // en dash
}

QString ComparisonModel::tipText(const ComparedParameter& parameter, int column) const
{
  if (isText(column))
    return cellText(parameter, column);
  if (isOfTest(column) && parameter.obstacle != TestObstacle::none)
    return obstacleText(parameter.obstacle);
  const double number = numberIn(parameter.result, column);
  QString tip = std::isnan(number) ? QString() : QString::number(number, 'g', allDigits);
  if (column == PValue && parameter.result.isOnlyBounded())
    tip = log10Text(parameter.result);
  if (isOfTest(column))
    tip += QLatin1Char('\n') + testText(parameter.result, column);
  return tip;
}

QVariant ComparisonModel::sortedBy(const ComparedParameter& parameter, int column) const
{
  if (isText(column))
    return cellText(parameter, column);
  double number = numberIn(parameter.result, column);
  // Those that doubles only bound would be equal.
  if (column == PValue)
    number = std::isnan(parameter.result.logP) ? std::log(number) : parameter.result.logP;
  return std::isnan(number) ? QVariant() : QVariant(number);
}

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

QVariant ComparisonModel::data(const QModelIndex& index, int role) const
{
  if (!index.isValid() || index.row() >= rowCount())
    return {};
  const ComparedParameter& shown = parameter(index.row());
  switch (role)
  {
  case Qt::DisplayRole:
    return shownText(shown, index.column());
  case SortRole:
    return sortedBy(shown, index.column());
  case Qt::ToolTipRole:
    return tipText(shown, index.column());
  case Qt::TextAlignmentRole:
    return int(Qt::AlignVCenter | (isText(index.column()) ? Qt::AlignLeft : Qt::AlignRight));
  case Qt::FontRole:
  {
    QFont font;
    font.setBold(shown.significant);
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
  case DirectionOfDifference:
    return tip ? tr("Where the selected runs have their values, compared with the others")
               : tr("Direction");
  case Statistic:
    return tip ? tr("Largest distance of the two empirical distribution functions; in brackets "
                    "what holds the true distance with 95 %, where the runs are independent. Of "
                    "texts without an order V: Cram\u00e9r's measure of how much their shares "
                    "differ, "
                    "from 0 to 1")
               : tr("D");
  case Superiority:
    return tip ? tr("Superiority: probability that the value of a selected run exceeds that of "
                    "another one; "
                    "ties count half")
               : tr("Sup.", "probability of superiority, as a narrow header");
  case MedianDifference:
    return tip ? tr("Difference of medians: that of the selected runs less that of the others")
               : tr("\u0394 med.", "difference of medians, as a narrow header");
  case PValue:
    return tip ? tr("Probability of such a difference, or a larger one, if the parameter had "
                    "nothing to do with the selection")
               : tr("p");
  case AdjustedPValue:
    return tip ? tr("Adjusted p: for the number of parameters tested; bold where it and D or V "
                    "meet "
                    "the thresholds")
               : tr("Adj. p", "adjusted p, as a narrow header");
  case Selected:
  case Others:
    return headerOfGroup(section, tip);
  default:
    return {};
  }
}

} // namespace Talmesh::app
