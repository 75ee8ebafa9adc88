#ifndef TimeCoursePage_h
#define TimeCoursePage_h

#include "app/document/GroupedPlots.h"
#include "app/import/Study.h"

#include <QWidget>

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

class LinePlotWidget;
class QComboBox;
class QLabel;
class PlotSelector;

namespace Talmesh::app
{

class RunNumberBox;

/// Shows the time courses of one run, of it and of those that are most alike to it, or of the
/// selected runs: of those items that the user picks from a list. Its chart is made when the page
/// is shown for the first time, so that it costs nothing before.
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
  /// Shows a run, counted by its place.
  void openRun(std::size_t run);
  /// Which runs it shows, as sessions call it; a key that nobody knows changes nothing.
  std::string mode() const;
  void setMode(const std::string& key);
  /// Which runs are selected, of those of the study.
  void setSelectedRuns(const std::vector<bool>& runs);
  /// The kept selections by which runs are coloured, see `groupsOfKept`; none for none.
  void setKept(const RunGroups& groups);

signals:
  /// The user wants to see others of the runs.
  void modeChosen();

protected:
  void showEvent(QShowEvent* event) override;

private:
  void build();
  void bringUpToDate();
  void fill();
  void showRuns();
  void sayWhich(std::size_t wanted);
  std::vector<std::size_t> wantedRuns();
  bool isUsable() const;
  QString itemOf(const QString& name) const;
  void chooseFirstItem(PlotSelector& selector) const;

  boost::shared_ptr<LinePlotTable> runs;
  LinePlotWidget* chart = nullptr;
  RunNumberBox* run = nullptr;
  QComboBox* shownRuns = nullptr;
  QLabel* note = nullptr;
  std::vector<bool> selected;
  RunGroups kept;
  /// Of the runs as they are; empty until they are asked for.
  std::vector<std::vector<double>> features;
  /// What the items in the list are called without their runs.
  std::map<std::string, std::string> items;
  /// The places of the runs whose courses are shown, by the names of their columns.
  std::map<std::string, std::size_t> shownPlaces;
  /// The kinds and names of the items that were shown when there were runs to show.
  std::set<std::pair<QString, QString>> lastChosen;
  /// The run to show next, where the user has asked for one.
  std::optional<std::size_t> opened;
  /// What is chosen as long as there is no chart.
  int firstMode = 0;
  /// Whether the study is one that the chart does not show yet.
  bool outdated = true;
  /// Whether values of the study have changed since the chart showed them.
  bool stale = false;
};

} // namespace Talmesh::app

#endif
