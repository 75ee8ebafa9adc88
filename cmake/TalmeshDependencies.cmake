# Every package the library is built with. The installed package configuration finds the same ones, apart
# from Eigen, which no public header includes.
set(TALMESH_VTK_VERSION 9.1)
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

set(TALMESH_QT_VERSION 5.15)
set(TALMESH_QT_COMPONENTS Core Gui Widgets)
set(TALMESH_BOOST_VERSION 1.74)

find_package(VTK ${TALMESH_VTK_VERSION} REQUIRED COMPONENTS ${TALMESH_VTK_COMPONENTS})
find_package(Qt5 ${TALMESH_QT_VERSION} REQUIRED COMPONENTS ${TALMESH_QT_COMPONENTS})
find_package(Boost ${TALMESH_BOOST_VERSION} REQUIRED)
find_package(Eigen3 3.4 REQUIRED NO_MODULE)
