# Every package the library is built with. The installed package configuration repeats the public ones.
set(TALMESH_VTK_COMPONENTS
  ChartsCore
  CommonColor
  CommonCore
  CommonDataModel
  CommonExecutionModel
  CommonTransforms
  FiltersCore
  FiltersExtraction
  FiltersGeneral
  FiltersStatistics
  GUISupportQt
  IOCore
  IOExportGL2PS
  IOImage
  IOInfovis
  ImagingFourier
  InfovisCore
  InteractionStyle
  RenderingContext2D
  RenderingContextOpenGL2
  RenderingCore
  RenderingFreeType
  RenderingGL2PSOpenGL2
  RenderingOpenGL2
  ViewsContext2D)

set(TALMESH_QT_COMPONENTS Core Gui Widgets)

find_package(VTK 9.1 REQUIRED COMPONENTS ${TALMESH_VTK_COMPONENTS})
find_package(Qt5 5.15 REQUIRED COMPONENTS ${TALMESH_QT_COMPONENTS})
find_package(Eigen3 3.4 REQUIRED NO_MODULE)
find_package(Boost 1.74 REQUIRED)
