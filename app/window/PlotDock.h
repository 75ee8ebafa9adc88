#ifndef PlotDock_h
#define PlotDock_h

#include "app/document/PlotChoice.h"

#include <QDockWidget>
#include <QStringList>

#include <utility>
#include <vector>

class QCheckBox;
class QListWidget;

namespace Talmesh::app
{

class NameBox;

/// The panel in which the user chooses style, columns and switches.
class PlotDock : public QDockWidget
{
  Q_OBJECT

public:
  explicit PlotDock(QWidget* parent = nullptr);

  /// Offers the columns of a table, by their names in column order. Emits nothing.
  /// @param features columns behind them, as a choice names them, and what they are called
  void setColumns(const QStringList& names,
                  const std::vector<std::pair<int, QString>>& features = {});
  /// The names given last, without features.
  QStringList columns() const;
  /// The switches, which other controls of the window may click.
  QCheckBox* linesSwitch() const { return lines; }
  QCheckBox* legendSwitch() const { return legend; }
  QCheckBox* logXSwitch() const { return logX; }
  QCheckBox* logYSwitch() const { return logY; }
  /// Shows a choice. Emits nothing.
  void setChoice(const PlotChoice& choice);
  /// What the controls say. Legend and logarithmic y axis are those that the user wishes for the
  /// styles that have them; their switches are off in the others. The y columns stand in the order
  /// in which they were chosen, each once.
  PlotChoice choice() const;

signals:
  /// The user changed something.
  void choiceChanged();

private:
  QCheckBox* addSwitch(const QString& text, const QString& toolTip);
  void addRow(const QString& name, const QString& toolTip, int column);
  int rowOf(int column) const;
  int columnIn(const NameBox& box) const;
  void tickColumns(const std::vector<int>& columns);
  std::vector<int> tickedColumns() const;
  void emitChoice();
  void readWishes();
  void enableControls();

  NameBox* style;
  NameBox* x;
  QListWidget* y;
  NameBox* z;
  QCheckBox* lines;
  QCheckBox* legend;
  QCheckBox* logX;
  QCheckBox* logY;
  /// The columns in the order in which they are offered.
  std::vector<int> shownColumns;
  int tableColumns = 0;
  std::vector<int> lastTicked{1};
  std::vector<int> movedAxes;
  bool wishedLegend = false;
  bool wishedLogY = false;
  /// A style that is shown but not offered.
  plotStyles unofferedStyle = xyPlot;
};

} // namespace Talmesh::app

#endif
