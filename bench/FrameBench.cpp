#include <QVTKOpenGLNativeWidget.h>

#include <QSurfaceFormat>

#include "BenchMain.h"
#include "BenchWindow.h"
#include "FrameBenchmarks.h"

void prepareProgram()
{
  QSurfaceFormat::setDefaultFormat(QVTKOpenGLNativeWidget::defaultFormat());
  FrameBenchmarks::add<BenchWindow>();
}
