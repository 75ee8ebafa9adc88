#ifndef FilterLine_h
#define FilterLine_h

#include "app/document/TableRuns.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;

namespace Talmesh::app
{

class SelectionController;

/// The line in which conditions in words are typed, which select runs.
class FilterLine : public QWidget
{
  Q_OBJECT

public:
  /// @param selection what is selected, outlives the line
  explicit FilterLine(SelectionController& selection, QWidget* parent = nullptr);

  /// Puts words into the line; does not select.
  void show(const QString& words);
  /// Puts the words of what is now selected there, unless the user has typed others.
  void follow(const QString& words);
  /// Puts words there as if the user had typed them.
  void put(const QString& words);
  /// What is wrong with the words that were tried last; empty for nothing.
  QString fault() const;

public slots:
  /// Selects the runs that meet the words. What is wrong with them is said, and marked in the line.
  void apply();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void showFault(const FilterFault& fault);

  SelectionController& selection;
  QLineEdit* line;
  QComboBox* combination;
  QLabel* message;
  /// What was typed selects, which is yet to be heard of.
  bool applied = false;
};

} // namespace Talmesh::app

#endif
