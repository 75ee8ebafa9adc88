#ifndef StudyDock_h
#define StudyDock_h

#include <QDockWidget>

class QComboBox;
class QLabel;

namespace Talmesh::app
{

struct OwnChart;

/// The panel of a computed study: what its chart shows and which variant of it.
class StudyDock : public QDockWidget
{
  Q_OBJECT

public:
  explicit StudyDock(QWidget* parent = nullptr);

  /// Describes a chart in its first variant. Emits nothing.
  void setChart(const OwnChart& chart);
  /// The chosen variant; 0 for a chart without variants.
  int variant() const;

signals:
  void variantChanged();

private:
  QLabel* description;
  QLabel* variantLabel;
  QComboBox* variants;
};

} // namespace Talmesh::app

#endif
