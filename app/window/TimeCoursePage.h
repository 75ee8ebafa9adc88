#ifndef TimeCoursePage_h
#define TimeCoursePage_h

#include "app/import/Study.h"

#include <QWidget>

class LinePlotWidget;
class PlotSelector;

namespace Talmesh::app
{

class RunNumberBox;

/// Shows the time courses of one run, of those items that the user picks from a list. Its chart is
/// made when the page is shown for the first time, so that it costs nothing before.
class TimeCoursePage : public QWidget
{
  Q_OBJECT

public:
  explicit TimeCoursePage(QWidget* parent = nullptr);
  ~TimeCoursePage() override;

  /// Turns to another study, whose runs are shared. A plain table has no time courses: the page
  /// then says that there are none.
  void setStudy(const Study& study);
  /// Shows the values anew, which have changed.
  void refresh();

protected:
  void showEvent(QShowEvent* event) override;

private:
  void build();
  void bringUpToDate();
  void fill();
  void showRun();
  void chooseFirstItem(PlotSelector& selector) const;

  boost::shared_ptr<LinePlotTable> runs;
  LinePlotWidget* chart = nullptr;
  RunNumberBox* run = nullptr;
  /// Whether the study is one that the chart does not show yet.
  bool outdated = true;
  /// Whether values of the study have changed since the chart showed them.
  bool stale = false;
};

} // namespace Talmesh::app

#endif
