#ifndef LoadingBar_h
#define LoadingBar_h

#include <QWidget>

class QProgressBar;

namespace Talmesh::app
{

/// The part of the status bar that shows how far a study is loaded and lets the user give up.
class LoadingBar : public QWidget
{
  Q_OBJECT

public:
  explicit LoadingBar(QWidget* parent = nullptr);

  void begin();
  void setPercent(int percent);
  void end();

signals:
  void cancelled();

private:
  QProgressBar* bar;
};

} // namespace Talmesh::app

#endif
