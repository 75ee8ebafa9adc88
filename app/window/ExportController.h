#ifndef ExportController_h
#define ExportController_h

#include "app/export/PictureFile.h"

#include <QObject>
#include <QString>

#include <string>

class QWidget;
class VtkPlotWidget;

namespace Talmesh::app
{

/// Asks how a plot is to be exported, and writes it.
class ExportController : public QObject
{
  Q_OBJECT

public:
  /// @param plot outlives the controller
  /// @param window the parent of all questions and of the controller
  ExportController(VtkPlotWidget& plot, QWidget& window);

  /// Asks for a file, and for the size of a picture.
  void choose();
  /// Asks for the size of a picture, then writes it.
  void askForSize(const QString& path);
  /// Writes what is shown to a file, by its suffix, as on the screen or for print.
  /// @return whether it was written
  bool exportTo(const QString& path, Vectors vectors = Vectors::Auto,
                int dotsPerInch = resolutionOfScreenPages);
  bool exportTo(const QString& path, const PaperSize& paper, Vectors vectors = Vectors::Auto);

signals:
  /// @param error one line; empty on success
  void written(const QString& path, const std::string& error);

private:
  bool announce(const QString& path, const std::string& error);

  VtkPlotWidget& plot;
  QWidget& window;
};

} // namespace Talmesh::app

#endif
