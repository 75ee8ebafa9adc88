#ifndef ReadingQuestion_h
#define ReadingQuestion_h

#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"

#include <QString>

#include <functional>

class QMessageBox;
class QWidget;

namespace Talmesh::app
{

/// Asks which of the readings of a table is meant that fit about equally well. Returns at once; the
/// box deletes itself when it is answered.
/// @param name of the table, for the question
/// @param request what was said of the table so far
/// @param chosen gets what is said now; not called when the box is closed otherwise
QMessageBox* askForReading(QWidget* window, const QString& name, const ImportReport& report,
                           const ImportRequest& request,
                           std::function<void(const ImportRequest&)> chosen);

} // namespace Talmesh::app

#endif
