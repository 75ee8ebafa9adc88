#ifndef ExportController_h
#define ExportController_h

#include "app/export/PictureFile.h"

#include <QObject>
#include <QString>

#include <deque>
#include <functional>
#include <mutex>
#include <string>

class QWidget;
class VtkPlotWidget;

namespace Talmesh::app
{

class TaskBar;
class TaskRunner;

/// Asks how a plot is to be exported, paints it as it is then, and has it written in the
/// background, one file after another.
class ExportController : public QObject
{
  Q_OBJECT

public:
  /// @param plot outlives the controller
  /// @param bar outlives the controller; shows how far the writing is
  /// @param window the parent of all questions and of the controller
  ExportController(VtkPlotWidget& plot, TaskBar& bar, QWidget& window);
  /// Waits until all is written: a window that goes does not take the user's files back. Nobody
  /// hears of errors any more.
  ~ExportController() override;

  /// Asks for a file, and for the size of a picture.
  void choose();
  /// Asks for the size of a picture, then writes it.
  void askForSize(const QString& path);
  /// Starts to write what is now shown to a file, by its suffix.
  void exportTo(const QString& path, const ExportWishes& wishes = {});
  bool isExporting() const;
  /// What follows once all has been written or given up. Nothing does after an error, which the
  /// user is to see first.
  void whenWritten(std::function<void()> then);

signals:
  /// What is going on, in one line.
  void said(const QString& message);
  /// What was going on has been given up, in one line.
  void stopped(const QString& message);
  /// @param error one line; empty on success
  void written(const QString& path, const std::string& error);

private:
  void writeNext();
  void announce(const QString& path, const std::string& error);
  void end();
  void cancel();

  VtkPlotWidget& plot;
  TaskRunner* runner;
  /// Held by the thread that writes.
  std::mutex writing;
  std::deque<PaintedPlot> waiting;
  std::function<void()> following;
  QWidget& window;
};

} // namespace Talmesh::app

#endif
