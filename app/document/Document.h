#ifndef Document_h
#define Document_h

#include "app/comparison/ComparisonChoice.h"
#include "app/document/AxisOrder.h"
#include "app/document/GroupedRuns.h"
#include "app/document/KeptSelections.h"
#include "app/document/PlotChoice.h"
#include "app/document/RunSummary.h"
#include "app/document/SelectionComparison.h"
#include "app/document/SelectionController.h"
#include "app/document/ShownPair.h"
#include "app/import/Study.h"
#include "app/session/Session.h"
#include "app/session/StudyFile.h"
#include "plot/PlotContainer.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Talmesh::app
{

class ShownChart;

/// What the viewer shows and what the user has done to it: a study, the container that shows it,
/// the choices of plot and comparison, groups, normalised runs, the selection and its history.
///
/// It is the one place that knows in which order a study is opened, restored and drawn; it has no
/// window. Texts are UTF-8. Belongs to the GUI thread.
class Document : public QObject
{
  Q_OBJECT

public:
  /// Puts a container into the scene where it is seen. Draws nothing.
  using Stage = std::function<void(PlotContainer&)>;

  /// @param shown what is in the scene before a study is opened, not owned; null for nothing
  explicit Document(Stage stage, PlotContainer* shown = nullptr, QObject* parent = nullptr);
  ~Document() override;

  /// What tells, in place of `hasMemory`, whether there are so many bytes for a drawing. Without
  /// them no drawing is begun, whoever asks for it, and the drawing error says so.
  void setMemoryCheck(std::function<bool(std::size_t)> enough) { isThere = std::move(enough); }

  /// Shows a study, which was opened without an error, in a container of its own: with what its
  /// session restores and then what the wishes name. A chart of its own puts the runs or the table
  /// shown before aside, from where `returnToRuns` brings them back.
  /// @return why a wish cannot be met, in one line; the study is then shown without any of them
  std::string open(const OpenedStudy& opened, const PlotWishes& wishes = {});
  /// Shows once more the runs or the table opened last; a chart of its own has taken their place.
  void returnToRuns();
  bool canReturnToRuns() const { return shown.study.chart && aside.container; }

  const Study& study() const { return shown.study; }
  /// Null before anything is shown, and after it died.
  PlotContainer* container() const { return shown.container; }
  /// The names of the columns that the choice speaks of.
  const QStringList& columns() const { return shown.columns; }
  /// Those that stand for runs, which the choice may name too.
  std::vector<int> features() const;
  const PlotChoice& choice() const { return shown.choice; }
  /// The variant of the study's own chart; 0 without one.
  int variant() const;
  /// How much is loaded, in one line.
  QString size() const;
  /// Why what is chosen could not be drawn the last time, in one line; empty if it was.
  const std::string& drawingError() const { return error; }
  /// What the user should know of the last drawing, in one line: its error, or how it differs from
  /// what is chosen; empty for nothing.
  QString remark() const;
  SelectionController& selection() { return selected; }
  /// Of what charts of runs lack.
  FeatureSearch& featureSearch() { return summary.search(); }
  GroupedRuns& groups() { return grouped; }
  KeptSelections& kept() { return keptSelections; }
  /// How panels and pages show the runs, as far as anybody has chosen it, for sessions to keep.
  SessionViews& views() { return viewed; }
  /// Of the selected runs or rows with the others of the study opened last.
  SelectionComparison& comparison() { return compared; }

  /// The following draw, once. What is shown of a chart of its own is not for the user to choose:
  /// it is drawn as it is.
  void draw();
  void choose(const PlotChoice& choice);
  void compareBy(const ComparisonChoice& choice);
  /// Of the study's own chart.
  void chooseVariant(int variant);
  /// Makes several changes, an opening among them, and draws them together, once.
  void together(const std::function<void()>& changes);
  /// Takes groups that were found for the runs now shown, see `GroupedRuns::clustering`, and shows
  /// them in their colours.
  void takeGroups(const RunClustering& found);
  /// The same with groups of the runs that have the same text, see `GroupedRuns::takeCategory`.
  std::string takeCategory(const std::string& label);
  /// Shows the runs as the look says, in the XY plot if the style shows nothing of it, or not what
  /// is new in it. Colours of kept selections come with the legend.
  void setLook(const RunLook& look);

  /// Whether what is shown can be saved as a session.
  bool canBeSaved() const
  {
    return shown.container && !shown.study.chart && (shown.study.runs || shown.study.table);
  }
  /// What a session keeps of the runs or the table opened last, also while they are put aside;
  /// nothing before any is opened. Refers to the document.
  std::optional<SessionSource> sessionSource();
  /// Writes the session, if there is anything to write.
  /// @return as `saveSession`
  std::string save(const QString& path, QByteArray* end = nullptr);

signals:
  /// Another study is shown, or the former one again; or it is another container that does.
  void studyChanged();
  /// The choice is another one, or its own chart has another one by itself.
  void choiceChanged();
  /// The values of the runs are others.
  void valuesChanged();
  /// The container was drawn, or tried to be, and is to be painted; or what is selected has
  /// changed. Never in the middle of a drawing.
  void drawn();

private:
  /// A study and what shows it.
  struct Shown
  {
    Study study;
    QPointer<PlotContainer> container;
    QStringList columns;
    PlotChoice choice;
  };

  bool mayDraw();
  std::string whyNotDrawn(const std::function<void()>& drawing);
  void leave(bool forOwnChart);
  void show(PlotContainer* container);
  std::string openData(const OpenedStudy& opened, const PlotWishes& wishes);
  void openOwnChart();
  Result<bool> selectWished(const std::vector<std::string>& conditions);
  void restore(const RestoredSession& session);
  void summarise();
  void showGroups();
  void showLook(const RunLook& before);
  void followAxes();
  void followKept();
  void followPair();
  void drawSilently();
  void announceDrawing();
  void drawNewValues();
  void followSelection();
  void followSettings();
  void followName(const std::string& before, const std::string& now);
  void drop(PlotContainer* container);

  Stage stage;
  Shown shown;
  /// The runs or the table opened last, with all that the user has done to them, while a chart of
  /// its own takes their place.
  Shown aside;
  QPointer<ShownChart> ownChart;
  RunSummary summary;
  AxisOrder axisOrder;
  ShownPair shownPair;
  SelectionController selected;
  SelectionComparison compared;
  GroupedRuns grouped;
  KeptSelections keptSelections;
  SessionViews viewed;
  std::string error;
  std::function<bool(std::size_t)> isThere;
  /// Whether a drawing follows anyway.
  bool waits = false;
  QMetaObject::Connection settingsHeard;
  /// Drawings of the container now shown that came to their end, whoever asked for them.
  unsigned long drawings = 0;
  /// As many of them as there were when the selection began to change.
  unsigned long beforeSelection = 0;
};

} // namespace Talmesh::app

#endif
