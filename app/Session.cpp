#include "app/Session.h"

#include "app/PlotChoice.h"
#include "app/RunNormaliser.h"
#include "app/SessionFile.h"
#include "app/TranslatedText.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/SelectionNodes.h"

#include <vtkAbstractArray.h>

#include <QFileInfo>

namespace Talmesh::app
{

namespace
{

/// The parts of the progress after which the bytes are read, and the table is made of them.
constexpr double bytesRead = 0.5;
constexpr double tableMade = 0.9;

SessionSettings settingsOf(const Study& study, PlotContainer& container)
{
  SessionSettings settings;
  settings.name = study.name;
  if (study.runs)
  {
    settings.pointsPerRun = static_cast<int>(study.runs->pointsPerTrajectory);
    settings.parameterRanges = study.runs->parameterRanges;
  }
  const PlotChoice choice = choiceOf(container);
  settings.legend = choice.legend;
  settings.logY = choice.logY;
  copySettings(*container.getMetaData(), *settings.plot);
  for (std::vector<int>* columns : {&settings.plot->xColumns, &settings.plot->yColumns,
                                    &settings.plot->zColumns, &settings.plot->parameterColumns})
    for (int& column : *columns)
      column = columnInDump(container.getTable(), column);
  settings.plot->colorColumn = columnInDump(container.getTable(), settings.plot->colorColumn);
  settings.plot->storedCoordinateWindow = CoordinateWindow();
  const plot::PlotState& state = container.state();
  if (const CoordinateWindow* window = plot::rememberedWindow(state))
  {
    settings.plot->storedCoordinateWindow = *window;
    const auto scales = state.windowScales.find(plot::currentKey(state));
    if (scales != state.windowScales.end())
      settings.windowScales = scales->second;
  }
  return settings;
}

void restoreWindow(plot::PlotState& state, const SessionSettings& settings)
{
  state.metaData->storedCoordinateWindow = CoordinateWindow();
  if (!settings.plot->storedCoordinateWindow.valid)
    return;
  state.coordinateWindows[plot::currentKey(state)] = settings.plot->storedCoordinateWindow;
  state.windowScales[plot::currentKey(state)] = settings.windowScales;
}

vtkSmartPointer<vtkSelection> selectionOf(vtkIntArray* flags)
{
  std::vector<vtkIdType> rows;
  for (vtkIdType row = 0; row < flags->GetNumberOfValues(); ++row)
    if (flags->GetValue(row) == 1)
      rows.push_back(row);
  return plot::makeRowSelection(rows);
}

} // namespace

std::string saveSession(const QString& path, const Study& study, PlotContainer& container,
                        const RunNormaliser* normaliser)
{
  SessionSettings settings = settingsOf(study, container);
  vtkSmartPointer<vtkTable> table = container.getTable();
  if (normaliser)
  {
    table = normaliser->originalTable();
    for (const int column : normaliser->normalised())
      settings.normalised.push_back(columnInDump(container.getTable(), column));
  }
  const SessionParts parts = {settingsText(settings), dumpStudy(study, container, table)};
  if (parts.dump.isEmpty())
    return withValues(translated("SessionFile", "%1: the table is too large for a session"),
                      {path.toStdString()});
  return saveSessionFile(path, parts);
}

OpenedSession openSession(const QString& path, const ImportProgress& progress)
{
  const auto cancels = [&progress](double done) { return progress && !progress(done); };
  OpenedSession opened;
  const ReadSessionParts file =
      loadSessionFile(path, [&cancels](double done) { return !cancels(bytesRead * done); });
  opened.error = file.error;
  opened.cancelled = file.cancelled;
  if (!opened.error.empty() || opened.cancelled)
    return opened;
  // How many columns there are is known last: settings are read again for them.
  const SessionSettings first = readSettings(file.parts.settings, 0).settings;
  DumpedTable table = readStudyDump(file.parts.dump, first.pointsPerRun, first.parameterRanges);
  opened.error = table.error;
  opened.cancelled = opened.error.empty() && cancels(tableMade);
  if (!opened.error.empty() || opened.cancelled)
    return opened;
  const std::size_t further =
      table.further ? static_cast<std::size_t>(table.further->GetNumberOfColumns()) : 0;
  const std::size_t columns =
      table.study.runs ? table.study.runs->items.size() + further
                       : static_cast<std::size_t>(table.study.table->GetNumberOfColumns());
  ReadSessionSettings settings = readSettings(file.parts.settings, static_cast<int>(columns));
  opened.error = settings.error;
  if (!opened.error.empty())
    return opened;
  if (settings.settings.name.empty())
    settings.settings.name = QFileInfo(path).fileName().toStdString();
  opened.study = table.study;
  opened.study.name = settings.settings.name;
  opened.session = std::make_shared<RestoredSession>(
      RestoredSession{settings.settings, table.further, table.selected});
  return opened;
}

void restoreSettings(const RestoredSession& session, PlotContainer& container)
{
  const int columns = session.further ? static_cast<int>(session.further->GetNumberOfColumns()) : 0;
  for (int i = 0; i < columns; ++i)
    container.getTable()->AddColumn(session.further->GetColumn(i));
  copySettings(*session.settings.plot, *container.getMetaData());
  restoreWindow(container.state(), session.settings);
  container.setLogScaleY(session.settings.logY);
  container.setShowLegend(session.settings.legend);
}

void restoreSelection(const RestoredSession& session, PlotContainer& container)
{
  if (session.selected)
    container.getAnnotationLink()->SetCurrentSelection(selectionOf(session.selected));
}

} // namespace Talmesh::app
