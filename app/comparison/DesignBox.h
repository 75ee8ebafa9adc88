#ifndef DesignBox_h
#define DesignBox_h

#include "stats/ParameterComparison.h"

#include <QWidget>

class QCheckBox;
class QSpinBox;

namespace Talmesh::app
{

/// What the user knows of the design of the parameter sets: that it is a Saltelli design, and of
/// how many parameters.
class DesignBox : public QWidget
{
  Q_OBJECT

public:
  explicit DesignBox(QWidget* parent = nullptr);

  /// Emits nothing.
  void setDesign(const stats::KnownDesign& design);
  stats::KnownDesign design() const;

signals:
  void designChanged();

private:
  QCheckBox* saltelli;
  QSpinBox* parameters;
};

} // namespace Talmesh::app

#endif
