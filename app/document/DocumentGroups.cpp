#include "app/document/Document.h"
#include "app/styles/ViewerStyles.h"

/// How a document shows groups of runs.
namespace Talmesh::app
{

void Document::takeGroups(const RunClustering& found)
{
  grouped.take(found);
  showGroups();
}

std::string Document::takeCategory(const std::string& label)
{
  const std::string failure = grouped.takeCategory(label);
  if (failure.empty())
    showGroups();
  return failure;
}

void Document::showGroups()
{
  RunLook before = grouped.state().look;
  before.groupColours = false;
  showLook(before);
}

void Document::setLook(const RunLook& look)
{
  const RunLook before = grouped.state().look;
  grouped.setLook(look);
  showLook(before);
}

/// In a style that shows what is new of the look.
void Document::showLook(const RunLook& before)
{
  const RunLook& look = grouped.state().look;
  PlotChoice choice = shown.choice;
  const bool newColours =
      (look.groupColours && !before.groupColours) || (look.keptColours && !before.keptColours);
  const bool newCourses =
      (look.groupMeans && !before.groupMeans) || (look.quartileBands && !before.quartileBands);
  if (newCourses || (newColours && !showsColoursOfRuns(viewerStyle(choice.style))))
    choice.style = xyPlot;
  choice.legend = choice.legend || (look.keptColours && !before.keptColours);
  choose(choice);
}

} // namespace Talmesh::app
