#ifndef FileDialogs_h
#define FileDialogs_h

#include <QString>
#include <QStringList>

#include <functional>
#include <string>

class QFileDialog;
class QWidget;

namespace Talmesh::app
{

/// What is done with the path that the user has chosen.
using FileChosen = std::function<void(const QString&)>;

/// Asks for a file that exists. The call returns at once, as a nested event loop would let the
/// parent die under it.
/// @param parent also the context of `chosen`, which is not called without it
/// @param filter name filters as of QFileDialog
/// @return the open dialog, which deletes itself when it is closed
QFileDialog* askToOpen(QWidget* parent, const QString& title, const QString& filter,
                       FileChosen chosen);

/// The same for one file or several.
QFileDialog* askToOpenSeveral(QWidget* parent, const QString& title, const QString& filter,
                              std::function<void(const QStringList&)> chosen);

/// The same for a file to write, with a name suggested.
/// @param suffix appended to names without one, given without its dot
QFileDialog* askToSave(QWidget* parent, const QString& title, const QString& filter,
                       const QString& suffix, FileChosen chosen);

/// Asks for a file and writes a table of comma-separated text to it.
/// @param written gets the path, and why it could not be written, in one line that begins with the
///   path; empty on success
QFileDialog* askToSaveTable(QWidget* parent, const QString& title, const std::string& text,
                            std::function<void(const QString&, const QString&)> written);

/// Suggests the name of what the window of the dialog's parent shows, with the dialog's default
/// suffix.
void suggestName(QFileDialog& dialog);

/// Shows why something could not be done, and returns at once like the questions.
void warn(QWidget* parent, const QString& message);

} // namespace Talmesh::app

#endif
