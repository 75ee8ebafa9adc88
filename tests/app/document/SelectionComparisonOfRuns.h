#ifndef SelectionComparisonOfRuns_h
#define SelectionComparisonOfRuns_h

#include "app/document/SelectionComparison.h"
#include "plot/ContainerAccess.h"
#include "plot/PlotState.h"

#include "document/ComparedRuns.h"

class SelectionComparisonOfRuns : public ComparedRuns
{
protected:
  explicit SelectionComparisonOfRuns(const std::string& text = twentyRuns())
      : ComparedRuns(text)
  {
    comparison.follow(&container());
  }

  /// Of tables without a column of run numbers: three rows a run.
  void selectRunsByRows(const std::set<int>& runs)
  {
    std::vector<vtkIdType> rows;
    for (const int run : runs)
      rows.push_back(3 * run);
    selectRows(rows);
  }

  /// What the container's charts are told.
  std::vector<ParameterTest> handed() { return *::stateOf(container()).parameterTests; }

  /// Takes work and keeps it until it is done by hand.
  void delay()
  {
    comparison.setBackground(
        {[this](const Talmesh::app::SelectionComparison::Work& work, const auto& deliver)
         {
           begun.push_back(work);
           deliveries.push_back(deliver);
         },
         [this] { ++cancelled; }});
  }
  void finish(std::size_t which) { deliveries[which](begun[which]({})); }

  Talmesh::app::SelectionComparison comparison;
  std::vector<Talmesh::app::SelectionComparison::Work> begun;
  std::vector<std::function<void(const Talmesh::app::Comparison&)>> deliveries;
  int cancelled = 0;
};

#endif
