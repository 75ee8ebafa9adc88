#ifndef FuzzedContainer_h
#define FuzzedContainer_h

#include "plot/PlotContainer.h"
#include "support/RecordingDevice.h"

#include <vtkContext2D.h>
#include <vtkContextMouseEvent.h>
#include <vtkContextScene.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>

#include <boost/shared_ptr.hpp>

#include <functional>
#include <memory>
#include <vector>

#include "FuzzChoices.h"

/// A container in a scene that paints itself where nothing is drawn, and what clients may do to it.
struct LinePlotTable;

class FuzzedContainer
{
public:
  explicit FuzzedContainer(FuzzChoices& choices);
  ~FuzzedContainer();
  FuzzedContainer(const FuzzedContainer&) = delete;
  FuzzedContainer& operator=(const FuzzedContainer&) = delete;

  /// One call, or a few that belong together.
  void act();
  void paint();

private:
  using Actions = std::vector<std::function<void()>>;

  void addScene();
  void act(const Actions& actions);
  Actions dataActions();
  Actions specialActions();
  Actions settingActions();
  Actions appearanceActions();
  Actions selectionActions();
  Actions statisticsActions();
  Actions lifeActions();
  Actions tableActions();

  void setLines(bool additional);
  void setSeries(bool additional);
  void showSobol();
  void showResiduals();
  void showDistribution();
  void setLists();
  void setOptions();
  void dragMouse();
  void answerGestures();
  void chooseRuns();
  void collectClusters();
  void reload();
  void copy();
  void changeTable();

  FuzzChoices& choose;
  /// The container borrows the values of additional lines.
  std::vector<boost::shared_ptr<LinePlotTable>> additionalLines;
  std::unique_ptr<PlotContainer> container;
  std::vector<vtkSmartPointer<vtkContextScene>> scenes;
  RecordingPainter recording;
};

#endif
