#ifndef ClusterDock_h
#define ClusterDock_h

#include "app/document/GroupedRuns.h"

#include <QDockWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace Talmesh::app
{

/// The panel that sorts runs into groups, lists the groups, and says how the runs are shown.
class ClusterDock : public QDockWidget
{
  Q_OBJECT

public:
  explicit ClusterDock(QWidget* parent = nullptr);

  /// Starts anew for data that can be sorted into so many groups, without any. Emits nothing.
  /// @param most 0 for runs that have no course
  /// @param categories labels of columns of texts whose runs can be groups
  /// @param reason why the panel can do nothing with the data; empty when it can
  void reset(int most, const std::vector<std::string>& categories, const QString& reason);
  /// Lists groups. Emits nothing.
  void setGroups(const RunGroups& groups);
  /// Emits nothing.
  void setNormalised(bool on);
  /// Says how groups are made. Emits nothing.
  /// @param category the label of a column of texts; empty for what `mode` says
  void setGrouping(int groupCount, int mode, const std::string& category);
  /// Emits nothing.
  void setLook(const RunLook& look);

  int groupCount() const;
  /// The mode of the container's clustering.
  int mode() const;
  /// The column of texts that is chosen in its place; empty for none.
  std::string category() const;
  RunLook look() const;

signals:
  /// How groups are made next.
  void groupingChanged();
  void groupingRequested();
  void groupChosen(int group);
  void lookChanged();
  void normalisingRequested(bool on);

private:
  void makeForm();
  QCheckBox* addSwitch(const QString& name, const QString& text, const QString& toolTip);
  void fillModes(bool haveCourses, const std::vector<std::string>& categories);
  void enableGroupSwitches();
  void enableCount();

  QLabel* reasonLabel;
  QSpinBox* count;
  QComboBox* modes;
  QPushButton* start;
  QListWidget* list;
  QCheckBox* colours = nullptr;
  QCheckBox* means = nullptr;
  QCheckBox* bands = nullptr;
  QCheckBox* normalise = nullptr;
};

} // namespace Talmesh::app

#endif
