#ifndef ReadingQuestion_h
#define ReadingQuestion_h

#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"

#include <QString>

#include <functional>
#include <string>

class QMessageBox;
class QWidget;

namespace Talmesh::app
{

/// The name of a layout for people.
QString titleOfLayout(const std::string& layout);

/// What a candidate stands for, for people.
QString titleOf(const ImportCandidate& candidate);

/// Asks which of the readings of a table is meant that fit about equally well. Returns at once; the
/// box deletes itself when it is answered.
/// @param name of the table, for the question
/// @param request what was said of the table so far
/// @param chosen gets what is said now; not called when the box is closed otherwise
/// @param looked called instead where the user would see the table first
QMessageBox* askForReading(QWidget* window, const QString& name, const ImportReport& report,
                           const ImportRequest& request,
                           std::function<void(const ImportRequest&)> chosen,
                           std::function<void()> looked);

} // namespace Talmesh::app

#endif
