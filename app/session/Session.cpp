#include "app/session/Session.h"

#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"
#include "app/session/DumpedTable.h"
#include "app/session/SessionTable.h"
#include "app/styles/ViewerStyles.h"
#include "plot/ContainerAccess.h"
#include "plot/DumpStream.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "vtk/RowSelections.h"

#include <vtkAbstractArray.h>

#include <QFileInfo>
#include <QSignalBlocker>

#include <algorithm>
#include <new>

namespace Talmesh::app
{

namespace
{

/// The part of the progress that reading the bytes takes; the rest is what is made of them.
constexpr double readingPart = 0.3;

/// The part of the plane that is shown.
void copyWindow(const plot::PlotState& state, SessionSettings& settings)
{
  settings.plot->storedCoordinateWindow = CoordinateWindow();
  const CoordinateWindow* window = plot::rememberedWindow(state);
  if (!window)
    return;
  settings.plot->storedCoordinateWindow = *window;
  const auto scales = state.windowScales.find(plot::currentKey(state));
  if (scales != state.windowScales.end())
    settings.windowScales = scales->second;
}

/// The columns that a session names as parameters come from a file.
bool areSomeOf(const std::vector<int>& named, std::vector<int> found)
{
  std::vector<int> sorted = named;
  std::sort(sorted.begin(), sorted.end());
  std::sort(found.begin(), found.end());
  return !sorted.empty() && std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end() &&
         std::includes(found.begin(), found.end(), sorted.begin(), sorted.end());
}

vtkSmartPointer<vtkSelection> selectionOf(vtkIntArray* flags)
{
  std::vector<vtkIdType> rows;
  for (vtkIdType row = 0; row < flags->GetNumberOfValues(); ++row)
    if (flags->GetValue(row) == 1)
      rows.push_back(row);
  return makeRowSelection(rows);
}

int columnCount(const DumpedTable& table)
{
  if (!table.study.runs)
    return static_cast<int>(table.study.table->GetNumberOfColumns());
  return static_cast<int>(table.study.runs->items.size()) +
         static_cast<int>(table.further->GetNumberOfColumns());
}

/// Groups of other runs than the study has say nothing.
void dropStrangeGroups(SessionGroups& groups, const Study& study)
{
  if (study.runs && groups.groupOfRun.size() == study.runs->numberOfTrajectories)
    return;
  groups.groupOfRun.clear();
  groups.category.clear();
  groups.look.groupColours = false;
  groups.look.groupMeans = false;
}

/// @param study gets what the settings say of it
Result<std::shared_ptr<const RestoredSession>> readRest(const ReadSessionParts& file,
                                                        const DumpedTable& table, Study& study)
{
  using Rest = Result<std::shared_ptr<const RestoredSession>>;
  const Result<SessionSettings> read = readSettings(file.parts.settings, columnCount(table));
  if (!read.hasValue())
    return Rest::without(read);
  SessionSettings settings = read.value();
  if (study.runs)
    settings.plot->setStride(settings.pointsPerRun);
  dropStrangeGroups(settings.groups, study);
  study.name = settings.name;
  study.categories = settings.import.categories;
  study.measured = settings.import.measured;
  study.reading = settings.import.reading;
  return Rest(std::make_shared<const RestoredSession>(
      RestoredSession{settings, file.end, table.further, table.selected}));
}

} // namespace

SessionSettings settingsOf(const SessionSource& source)
{
  PlotContainer& container = source.container;
  const Study& study = source.study;
  SessionSettings settings;
  settings.name = study.name;
  if (study.runs)
  {
    settings.pointsPerRun = static_cast<int>(study.runs->pointsPerTrajectory);
    settings.parameterRanges = study.runs->parameterRanges;
  }
  settings.legend = source.legend;
  settings.logY = source.logY;
  settings.tests = source.tests;
  settings.groups = source.groups;
  settings.kept = source.kept;
  settings.words = source.words;
  settings.origin = source.origin;
  copySettings(*container.getMetaData(), *settings.plot);
  const DumpedPlaces places(container.getTable());
  for (std::vector<int>* columns : {&settings.plot->xColumns, &settings.plot->yColumns,
                                    &settings.plot->zColumns, &settings.plot->parameterColumns})
    for (int& column : *columns)
      column = places.of(column);
  settings.shown = source.shown;
  for (std::vector<SessionColumn>* columns :
       {&settings.shown.x, &settings.shown.y, &settings.shown.z, &settings.shown.axes})
    for (SessionColumn& entry : *columns)
      entry.column = places.of(entry.column);
  settings.asked = source.asked;
  settings.steps = source.steps;
  settings.import = {study.categories, study.measured, study.reading};
  settings.views = source.views;
  if (settings.views.runTable)
    for (int& item : settings.views.runTable->items)
      item = places.of(item);
  settings.plot->colorColumn = places.of(settings.plot->colorColumn);
  for (const int column : source.normalised)
    settings.normalised.push_back(places.of(column));
  copyWindow(stateOf(container), settings);
  return settings;
}

SessionParts sessionParts(const SessionSource& source)
{
  vtkSmartPointer<vtkTable> table = source.container.getTable();
  if (source.original)
    table = source.original();
  return {settingsText(settingsOf(source)), dumpStudy(source.study, source.container, table)};
}

std::string saveSession(const QString& path, const SessionSource& source, QByteArray* end)
{
  const std::string repeated = repeatedItem(source.study);
  if (!repeated.empty())
    return withValues(
        translated("SessionFile",
                   "%1: two columns have the name %2; a session needs a name for each"),
        {path.toStdString(), quotedForMessage(repeated)});
  try
  {
    return saveSessionFile(path, sessionParts(source), end);
  }
  catch (const std::bad_alloc&)
  {
    return withValues(
        translated("SessionFile", "%1: there is not enough memory to save the session"),
        {path.toStdString()});
  }
}

Result<OpenedSession> openSession(const QString& path, const ImportProgress& progress)
{
  using Opened = Result<OpenedSession>;
  const auto reading = [&progress](double done)
  { return !progress || progress(readingPart * done); };
  const auto parsing = [&progress](double done)
  { return !progress || progress(readingPart + (1.0 - readingPart) * done); };
  const Result<ReadSessionParts> file = loadSessionFile(path, reading, plot::isWholeDump);
  if (!file.hasValue())
    return Opened::without(file);
  if (!parsing(0.0))
    return Opened::cancelled();
  const SessionParts& parts = file.value().parts;
  // How many columns there are is known last: settings are read again for them.
  const Result<SessionSettings> first = readSettings(parts.settings, mostSessionColumns);
  if (!first.hasValue())
    return Opened::without(first);
  const Result<DumpedTable> table =
      readStudyDump(parts.dump, first.value().pointsPerRun, first.value().parameterRanges, parsing);
  if (!table.hasValue())
    return Opened::without(table);
  OpenedSession opened;
  opened.study = table.value().study;
  const auto rest = readRest(file.value(), table.value(), opened.study);
  if (!rest.hasValue())
    return Opened::without(rest);
  opened.session = rest.value();
  if (opened.study.name.empty())
    opened.study.name = QFileInfo(path).fileName().toStdString();
  return opened;
}

void restoreSettings(const RestoredSession& session, PlotContainer& container)
{
  const int columns = session.further ? static_cast<int>(session.further->GetNumberOfColumns()) : 0;
  for (int i = 0; i < columns; ++i)
    container.getTable()->AddColumn(session.further->GetColumn(i));
  PlotMetaData& settings = *container.getMetaData();
  const std::vector<int> found = settings.parameterColumns;
  copySettings(*session.settings.plot, settings);
  const QSignalBlocker silent(&settings);
  if (!areSomeOf(settings.parameterColumns, found))
    settings.parameterColumns = found;
  const PageColumns columnsOfPage =
      pageColumns(settings, container.getTable()->GetNumberOfColumns());
  if (styleOf(settings).charts(columnsOfPage) > mostRestoredCharts)
    settings.setPlotStyle(xyPlot);
  container.setLogScaleY(session.settings.logY);
  container.setShowLegend(session.settings.legend);
}

void restoreWindow(const RestoredSession& session, PlotContainer& container)
{
  const SessionSettings& settings = session.settings;
  plot::PlotState& state = stateOf(container);
  state.metaData->storedCoordinateWindow = CoordinateWindow();
  if (!settings.plot->storedCoordinateWindow.valid)
    return;
  state.coordinateWindows[plot::currentKey(state)] = settings.plot->storedCoordinateWindow;
  state.windowScales[plot::currentKey(state)] = settings.windowScales;
}

void restoreSelection(const RestoredSession& session, PlotContainer& container)
{
  if (session.selected)
    container.getAnnotationLink()->SetCurrentSelection(selectionOf(session.selected));
}

} // namespace Talmesh::app
