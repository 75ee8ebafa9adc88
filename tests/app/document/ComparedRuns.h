#ifndef ComparedRuns_h
#define ComparedRuns_h

#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/export/PictureFile.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "vtk/RowSelections.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAnnotationLink.h>

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "SampleStudies.h"

/// Twenty runs. The parameter k rises with the run; m takes the same values, shuffled.
inline std::string twentyRuns()
{
  std::ostringstream text;
  text << "run,time,k,m,X\n";
  for (int run = 0; run < 20; ++run)
    for (int point = 0; point < 3; ++point)
      text << run << ',' << point << ',' << run << ',' << run * 7 % 20 << ',' << run + point
           << '\n';
  return text.str();
}

inline std::set<int> firstRuns(int count)
{
  std::set<int> runs;
  for (int run = 0; run < count; ++run)
    runs.insert(run);
  return runs;
}

/// A plot of twenty runs, some of which can be selected.
class ComparedRuns : public ::testing::Test
{
protected:
  explicit ComparedRuns(const std::string& text = twentyRuns())
      : widget(Talmesh::app::makeHiddenPlot(QSize(300, 200)))
  {
    Talmesh::app::showStudy(sampleStudy(text), container());
    Talmesh::app::applyChoice(container(), Talmesh::app::choiceOf(container()));
  }

  PlotContainer& container() { return *widget->plotContainer(); }

  void select(const std::set<int>& runs)
  {
    ParameterSelection selection;
    selection.runs = runs;
    container().setSelection(&selection, 0);
  }

  void selectRows(const std::vector<vtkIdType>& rows)
  {
    container().getAnnotationLink()->SetCurrentSelection(Talmesh::makeRowSelection(rows));
  }

  std::unique_ptr<VtkPlotWidget> widget;
};

#endif
