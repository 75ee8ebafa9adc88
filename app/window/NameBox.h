#ifndef NameBox_h
#define NameBox_h

#include <QComboBox>

class QAbstractItemView;

namespace Talmesh::app
{

/// A box to choose one of several names from, which may be longer than the box is wide: it then
/// shows their beginnings and ends, and the whole name as its tool tip.
class NameBox : public QComboBox
{
  Q_OBJECT

public:
  explicit NameBox(QWidget* parent = nullptr);

  /// Offers names instead of those before. Emits nothing.
  void setNames(const QStringList& names);
  /// The current name as it is shown.
  QString shownName() const;

protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
};

/// Has a list of one column show the beginnings and ends of texts that are wider than it, instead
/// of scrolling.
void elideNames(QAbstractItemView& list);

} // namespace Talmesh::app

#endif
