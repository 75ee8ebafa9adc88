#ifndef PlotWriter_h
#define PlotWriter_h

#include "app/import/Result.h"
#include "app/memory/PaintingMemory.h"
#include "app/tasks/TaskRunner.h"

#include <vtkSmartPointer.h>
#include <vtkTable.h>

#include <QByteArray>
#include <QImage>
#include <QString>

#include <new>
#include <string>

namespace Talmesh::app
{

/// A plot as a file will show it, which shares nothing with the plot any more. One of the three
/// contents is there.
struct PaintedPlot
{
  QString path;
  QImage picture;
  QByteArray page;
  vtkSmartPointer<vtkTable> table;
};

/// Why the plot is in no file.
std::string notPainted();

/// Works for a file: what is thrown for want of memory becomes an error, and errors begin with the
/// file's name.
template <typename Value, typename Work>
Result<Value> forFile(const QString& path, const Work& work)
{
  std::string error;
  try
  {
    Result<Value> result = work();
    if (result.error().empty())
      return result;
    error = result.error();
  }
  catch (const std::bad_alloc&)
  {
    error = missingMemory();
  }
  return Result<Value>::failed(path.toStdString() + ": " + error);
}

/// Writes the file, which appears complete or not at all; an old one of the name stays until then.
/// May run in any thread.
/// @return its path, or an error that begins with it
Result<QString> writePlot(const PaintedPlot& painted, const TaskProgress& progress = {});

} // namespace Talmesh::app

#endif
