#ifndef RunTableView_h
#define RunTableView_h

#include <QTableView>

class QTimer;

namespace Talmesh::app
{

/// A table of which whole rows are chosen, by mouse or keys.
class RunTableView : public QTableView
{
  Q_OBJECT

public:
  explicit RunTableView(QWidget* parent = nullptr);

signals:
  /// A button is pressed, but not for the second press of a double click.
  void pressBegins();
  /// The user has come to an end of choosing: the button is released, or no key was pressed for a
  /// moment.
  void rowsChosen();

protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

private:
  QTimer* pause;
};

} // namespace Talmesh::app

#endif
