#ifndef TaskBar_h
#define TaskBar_h

#include <QWidget>

class QProgressBar;

namespace Talmesh::app
{

class TaskRunner;

/// The part of the status bar that shows how far long work is and lets the user give it up. Hidden
/// while there is none.
class TaskBar : public QWidget
{
  Q_OBJECT

public:
  explicit TaskBar(QWidget* parent = nullptr);

  /// Shows what a runner runs from now on. The bar must not die before the runner has ended.
  /// @param name the object name of the button that gives it up
  void follow(const TaskRunner& runner, const QString& name);

signals:
  /// The user gives the work up.
  void cancelled();

private:
  void begin();
  void setPercent(int percent);

  QProgressBar* bar;
};

} // namespace Talmesh::app

#endif
