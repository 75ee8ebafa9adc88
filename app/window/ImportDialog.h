#ifndef ImportDialog_h
#define ImportDialog_h

#include "app/import/ImportRequest.h"
#include "app/window/ReadingPreview.h"

#include <QDialog>
#include <QStringList>

#include <functional>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTableView;

namespace Talmesh::app
{

class ImportModel;
class ReadingChoices;

/// Shows the first rows of a table and what is understood of it, and lets the user say how it is to
/// be read. What is said can be remembered for tables with such a header.
class ImportDialog : public QDialog
{
  Q_OBJECT

public:
  /// @param paths at least one
  /// @param request what was said of the table so far
  ImportDialog(const QStringList& paths, const ImportRequest& request, QWidget* parent = nullptr);

  /// What the user says.
  ImportRequest request() const;

  /// Remembers what is said, or forgets it.
  void accept() override;

private:
  QTableView* makeTable();
  QWidget* makeRoleLine();
  void layOut();
  void connectParts();
  void takeFirstSize();
  void readAgain();
  void showRequest();
  void showRows(const FirstRows& rows);
  void takeRemembered();
  void showReading(const PreviewedReading& reading);
  void showNotes(const PreviewedReading& reading);
  void showLine(int row);
  void showRole();
  void offerRoles(int column);

  QStringList files;
  ImportRequest asked;
  PreviewedReading latest;
  /// Whether what is remembered for such tables has been looked up.
  bool isLookedUp = false;
  ReadingPreview* preview;
  ImportModel* model;
  ReadingChoices* choices;
  QTableView* table;
  QLabel* roleLabel;
  QComboBox* roleBox;
  QLabel* count;
  QListWidget* notes;
  QLineEdit* commandLine;
  QCheckBox* remember;
  QDialogButtonBox* buttons;
};

/// Asks how files are to be read. Returns at once; the dialog deletes itself when it is closed.
/// @param chosen gets what the user says; not called when the dialog is cancelled
ImportDialog* askHowToRead(QWidget* window, const QStringList& paths, const ImportRequest& request,
                           std::function<void(const ImportRequest&)> chosen);

} // namespace Talmesh::app

#endif
