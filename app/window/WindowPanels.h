#ifndef WindowPanels_h
#define WindowPanels_h

#include "external/PlotStyles.h"

#include <QObject>
#include <QString>

class QMainWindow;
class QTabWidget;
class VtkPlotWidget;

namespace Talmesh::app
{

class ClusterDock;
class ComparisonDock;
class Document;
class FilterLine;
class GestureActions;
class KeptSelectionsDock;
class PlotDock;
class RunTableDock;
class StepsDock;
class StudyDock;
class TimeCoursePage;

/// What stands around the plot in the window, pages, panels and the line of words; keeps it and the
/// document in step. The widgets belong to the window.
class WindowPanels : public QObject
{
  Q_OBJECT

public:
  /// Makes and places them.
  /// @param around has no central widget yet
  /// @param shown, chart outlive the panels' work
  WindowPanels(QMainWindow& around, Document& shown, VtkPlotWidget& chart);

  /// Has what the user does in the panels reach the document, and the other way round.
  void connectDocument();
  /// Brings the panels into line with the study that the document shows now.
  void showStudy();

  TimeCoursePage* const timeCourses;
  /// The pages "Runs" and "Time courses".
  QTabWidget* const pages;
  PlotDock* const choices;
  ClusterDock* const clusters;
  StudyDock* const study;
  ComparisonDock* const comparison;
  RunTableDock* const runTable;
  KeptSelectionsDock* const keptSelections;
  StepsDock* const steps;
  FilterLine* const filter;
  GestureActions* const pointing;

signals:
  /// One line for the status bar.
  void said(const QString& message);
  void failed(const QString& message);
  void styleChosen(plotStyles style);

private:
  void placeDocks();
  void placeFilterLine();
  void connectComparison();
  void connectRunLists();

  QMainWindow& window;
  Document& document;
  VtkPlotWidget& plot;
};

} // namespace Talmesh::app

#endif
