#ifndef SessionSettings_h
#define SessionSettings_h

#include "app/import/Result.h"
#include "app/session/SessionColumns.h"
#include "app/session/SessionGroups.h"
#include "app/session/SessionImport.h"
#include "app/session/SessionOrigin.h"
#include "app/session/SessionSelections.h"
#include "app/session/SessionSteps.h"
#include "app/session/SessionTests.h"
#include "app/session/SessionViews.h"
#include "external/PlotMetaData.h"
#include "plot/AxisWindows.h"

#include <QByteArray>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Talmesh::app
{

/// What a session keeps beside its table. Texts are UTF-8.
struct SessionSettings
{
  /// What the window's title calls the study.
  std::string name;
  /// Points of one run; 0 for a table without runs.
  int pointsPerRun = 0;
  /// (lower, upper) of each parameter of the runs.
  std::vector<std::pair<double, double>> parameterRanges;
  /// Columns whose runs are shown normalised, while the table has the values from before.
  std::vector<int> normalised;
  SessionGroups groups;
  std::vector<KeptSelection> kept;
  /// The condition in words that the selection stands for, if known.
  std::string words;
  /// Parameters that it was chosen by beside the words, by name.
  std::vector<std::string> asked;
  SessionSteps steps;
  SessionColumns shown;
  SessionViews views;
  SessionImport import;
  /// Of work that is kept until the user saves it.
  SessionOrigin origin;
  bool legend = false;
  bool logY = false;
  SessionTests tests;
  /// The scales of the axis window that is stored with the plot's settings.
  plot::WindowScales windowScales;
  /// Never null.
  std::shared_ptr<PlotMetaData> plot = std::make_shared<PlotMetaData>();
};

/// The settings as one JSON object.
QByteArray settingsText(const SessionSettings& settings);

/// Reads settings for a table of `columns` columns. What is missing, mistyped or out of bounds
/// keeps its first value, columns that the table does not have become -1: no column, and of a
/// column that a list repeats the first entry counts. Texts are cut at 1000 characters, and there
/// are at most as many ranges as columns.
Result<SessionSettings> readSettings(const QByteArray& text, int columns);

/// Copies all values and options without announcing them.
void copySettings(const PlotMetaData& from, PlotMetaData& to);

} // namespace Talmesh::app

#endif
