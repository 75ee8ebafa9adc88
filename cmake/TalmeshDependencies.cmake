# Every package the library is built with. What the installed package configuration finds is what the public headers
# include and name: a test compares both.
set(TALMESH_VTK_VERSION 9.1)
set(TALMESH_PUBLIC_VTK_COMPONENTS
  ChartsCore
  CommonCore
  CommonDataModel
  CommonExecutionModel
  FiltersGeneral
  FiltersStatistics
  GUISupportQt
  RenderingContext2D
  ViewsContext2D)
set(TALMESH_VTK_COMPONENTS
  ${TALMESH_PUBLIC_VTK_COMPONENTS}
  CommonColor
  CommonTransforms
  FiltersCore
  FiltersExtraction
  IOCore
  IOExportGL2PS
  IOImage
  IOInfovis
  ImagingFourier
  InfovisCore
  InteractionStyle
  RenderingContextOpenGL2
  RenderingCore
  RenderingFreeType
  RenderingGL2PSOpenGL2
  RenderingOpenGL2)

set(TALMESH_PUBLIC_QT_COMPONENTS Core Widgets)
set(TALMESH_QT_COMPONENTS Core Gui Widgets)
set(TALMESH_BOOST_VERSION 1.74)

find_package(VTK ${TALMESH_VTK_VERSION} REQUIRED COMPONENTS ${TALMESH_VTK_COMPONENTS})
# One program has one Qt: the one that VTK's widget is built with. Its packages and targets are Qt5... or Qt6...; all
# other files name them by this version.
set(QT_VERSION_MAJOR ${VTK_QT_VERSION})
set(TALMESH_QT_VERSION ${QT_VERSION_MAJOR})
if(QT_VERSION_MAJOR EQUAL 5)
  set(TALMESH_QT_VERSION 5.15)
endif()
find_package(Qt${QT_VERSION_MAJOR} ${TALMESH_QT_VERSION} REQUIRED COMPONENTS ${TALMESH_QT_COMPONENTS})
find_package(Boost ${TALMESH_BOOST_VERSION} REQUIRED)
find_package(Eigen3 3.4 REQUIRED NO_MODULE)
