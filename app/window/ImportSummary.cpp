#include "app/window/ImportSummary.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

namespace Talmesh::app
{

namespace
{

class SummaryWords
{
  Q_DECLARE_TR_FUNCTIONS(ImportSummary)
};

QString amount(std::size_t count, const QString& one, const QString& many)
{
  return (count == 1 ? one : many).arg(count);
}

QString pointsOf(const ImportReport& report)
{
  if (report.fewestPoints != report.mostPoints)
    return SummaryWords::tr("%1 to %2 points").arg(report.fewestPoints).arg(report.mostPoints);
  return amount(report.mostPoints, SummaryWords::tr("%1 point"), SummaryWords::tr("%1 points"));
}

} // namespace

QString sizeOf(const ImportReport& report)
{
  QStringList parts;
  if (report.runs > 0)
    parts << SummaryWords::tr("%1 of %2")
                 .arg(amount(report.runs, SummaryWords::tr("%1 run"), SummaryWords::tr("%1 runs")),
                      pointsOf(report));
  else
    parts << amount(report.mostPoints, SummaryWords::tr("%1 row"), SummaryWords::tr("%1 rows"));
  if (report.runs > 0 || !report.parameters.empty())
    parts << amount(report.parameters.size(), SummaryWords::tr("%1 parameter"),
                    SummaryWords::tr("%1 parameters"));
  parts << amount(report.items.size(), SummaryWords::tr("%1 item"), SummaryWords::tr("%1 items"));
  if (!report.categories.empty())
    parts << amount(report.categories.size(), SummaryWords::tr("%1 condition"),
                    SummaryWords::tr("%1 conditions"));
  return parts.join(QStringLiteral(", "));
}

std::size_t lineIn(const QString& note)
{
  const QRegularExpression line(SummaryWords::tr("\\blines? (\\d+)"),
                                QRegularExpression::CaseInsensitiveOption);
  return line.match(note).captured(1).toULongLong();
}

} // namespace Talmesh::app
