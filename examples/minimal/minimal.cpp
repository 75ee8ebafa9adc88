#include <talmeshplot/plot/PlotContainer.h>
#include <talmeshplot/widgets/VtkPlotWidget.h>

#include <QVTKOpenGLNativeWidget.h>

#include <QApplication>
#include <QSurfaceFormat>

/// minimal TABLE.csv [PICTURE.pdf]: shows the second column over the first, or writes that as PDF.
int main(int argc, char** argv)
{
  QSurfaceFormat::setDefaultFormat(QVTKOpenGLNativeWidget::defaultFormat());
  QApplication application(argc, argv);

  VtkPlotWidget widget(nullptr);
  PlotContainer container(&widget);
  container.loadData(argc > 1 ? argv[1] : "decay.csv");
  widget.setPlotContainer(&container);
  if (argc > 2)
  {
    widget.printPlot(argv[2]);
    return 0;
  }
  widget.show();
  return application.exec();
}
