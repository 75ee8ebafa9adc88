#ifndef PlotContainerTypes_h
#define PlotContainerTypes_h

// What PlotContainer takes, gives and has by pointer. Who looks into one of them includes its
// header: VTK's or Qt's, or that of its name in external/; the inside of a container has none.
class Distribution;
class FitSettings;
struct LinePlotTable;
class PlotMetaData;
class QByteArray;
class vtkAbstractContextItem;
class vtkAnnotationLink;
class vtkChartMatrix;
class vtkChartXY;
class vtkContextScene;
class vtkIntArray;
class vtkPlot;
class vtkTable;
struct FitRun;
struct LinePlotData;
struct ParameterSelection;
struct SobolPostProcessResult;

namespace Talmesh::plot
{
struct ContainerAccess;
struct PlotState;
} // namespace Talmesh::plot

#endif
