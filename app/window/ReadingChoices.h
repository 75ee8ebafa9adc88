#ifndef ReadingChoices_h
#define ReadingChoices_h

#include "app/import/ImportReport.h"
#include "app/import/ImportRequest.h"

#include <QWidget>

class QComboBox;
class QGridLayout;
class QLineEdit;

namespace Talmesh::app
{

/// The choices of how a table is read that are not of single columns. What makes no sense for a
/// file is disabled.
class ReadingChoices : public QWidget
{
  Q_OBJECT

public:
  explicit ReadingChoices(QWidget* parent = nullptr);

  /// @param isText whether the file has fields and decimal marks of its own
  /// @param hasParts whether it may hold several tables
  /// @param several whether there are several files
  void offer(bool isText, bool hasParts, bool several);
  void take(const ImportRequest& request);
  /// Says what is chosen.
  void addTo(ImportRequest& request) const;
  /// What is recognised where nothing is chosen.
  /// @param separator 0 where there is none
  void tell(const ImportReport& report, char separator);

signals:
  /// By the user.
  void changed();

private:
  QComboBox* addBox(const char* name, const QString& label, int row, int column);
  void fill();

  QGridLayout* grid;
  QComboBox* layoutBox;
  QComboBox* separatorBox;
  QComboBox* decimalBox;
  QComboBox* unequalBox;
  QComboBox* filesBox;
  QLineEdit* sheetLine;
};

} // namespace Talmesh::app

#endif
