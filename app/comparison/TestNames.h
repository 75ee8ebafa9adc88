#ifndef TestNames_h
#define TestNames_h

#include "stats/RunComparison.h"

#include <QList>
#include <QString>

/// What the tests are called.
namespace Talmesh::app
{

/// One of the things that the user chooses from.
struct ChoiceName
{
  /// In sessions.
  QString key;
  /// In the user's language.
  QString text;
  QString toolTip;
};

/// In the order of stats::ComparedBy.
QList<ChoiceName> comparedByNames();
/// In the order of stats::Adjustment.
QList<ChoiceName> adjustmentNames();
/// The position of a key; the first one for what is unknown.
int positionOf(const QString& key, const QList<ChoiceName>& names);

/// How a p-value was found, in a sentence of the user's language; empty without one.
QString methodText(stats::TestMethod method);
/// The same in files.
QString methodInFiles(const stats::ParameterComparison& result);

} // namespace Talmesh::app

#endif
