#include "app/document/CategoryGroups.h"
#include "app/document/ColourKey.h"

#include <vtkAxis.h>
#include <vtkChartMatrix.h>
#include <vtkPlotBar.h>
#include <vtkScatterPlotMatrix.h>
#include <vtkStringArray.h>
#include <vtkTable.h>

#include "document/DocumentScene.h"

using namespace Talmesh::app;

namespace
{

using Names = std::vector<std::string>;

/// Runs with a drug each, in turn, and without any behind those.
std::string treatedRuns(const Names& drugs, int points = 4)
{
  std::ostringstream text;
  text << "run,time,drug,k,X\n";
  for (std::size_t run = 0; run < drugs.size(); ++run)
    for (int point = 0; point < points; ++point)
      text << run << ',' << point << ',' << drugs[run] << ',' << 0.5 * static_cast<double>(run)
           << ',' << static_cast<double>(run) + 10 * point << '\n';
  return text.str();
}

class CategoriesInDocument : public DocumentScene
{
protected:
  void show(const std::string& text, const PlotWishes& wishes = {})
  {
    ImportReport report;
    const Result<ImportedTable> read = importTable(text, ImportTask(), report);
    ASSERT_EQ(read.error(), "");
    OpenedStudy opened;
    const ImportedTable& table = read.value();
    opened.study = {"study", table.runs, table.table, nullptr, table.categories};
    ASSERT_EQ(document.open(opened, wishes), "");
  }

  static PlotWishes wishesOf(plotStyles style, const Names& select = {})
  {
    PlotWishes wishes;
    wishes.style = style;
    wishes.select = select;
    return wishes;
  }

  /// The chart of a parameter on the page of distributions, wherever it stands.
  vtkChartXY* cell(const std::string& parameter)
  {
    auto* page = vtkChartMatrix::SafeDownCast(container().getItem());
    for (int column = 0; page && column < page->GetSize().GetX(); ++column)
    {
      auto* chart = vtkChartXY::SafeDownCast(page->GetChart({column, 0}));
      if (chart && chart->GetAxis(vtkAxis::BOTTOM)->GetTitle() == parameter)
        return chart;
    }
    return nullptr;
  }

  static Names ticksOf(vtkChartXY* chart)
  {
    Names names;
    vtkStringArray* labels = chart->GetAxis(vtkAxis::BOTTOM)->GetTickLabels();
    for (vtkIdType i = 0; i < labels->GetNumberOfValues(); ++i)
      names.push_back(labels->GetValue(i));
    return names;
  }
};

const Names sixDrugs = {"none", "aspirin", "none", "mixed", "aspirin", "none"};

TEST_F(CategoriesInDocument, AreBarsOfSharesInPlaceOfCurvesOverTheirNumbers)
{
  show(treatedRuns(sixDrugs), wishesOf(selectionCdfPlot, {"run = 1 or run = 4 or run = 0"}));
  vtkChartXY* chart = cell("drug");
  ASSERT_TRUE(chart);
  ASSERT_EQ(chart->GetNumberOfPlots(), 2);
  // Of the selected runs 1 of 3 had none and 2 aspirin, of the others 2 of 3 none, 1 mixed.
  const double shares[2][3] = {{1.0 / 3, 2.0 / 3, 0.0}, {2.0 / 3, 0.0, 1.0 / 3}};
  for (int group = 0; group < 2; ++group)
  {
    auto* bars = vtkPlotBar::SafeDownCast(chart->GetPlot(group));
    ASSERT_TRUE(bars) << group;
    for (int level = 0; level < 3; ++level)
      EXPECT_DOUBLE_EQ(bars->GetInput()->GetValue(level, 1).ToDouble(), shares[group][level]);
    EXPECT_FALSE(bars->GetSelectable());
  }
  EXPECT_EQ(ticksOf(chart), (Names{"none", "aspirin", "mixed"}));
  EXPECT_EQ(chart->GetAxis(vtkAxis::LEFT)->GetMaximum(), 0.8);
  vtkChartXY* numbers = cell("k");
  ASSERT_TRUE(numbers);
  EXPECT_FALSE(vtkPlotBar::SafeDownCast(numbers->GetPlot(0)));
}

TEST_F(CategoriesInDocument, HaveBarsOnLogarithmicPagesAndAsDensities)
{
  show(treatedRuns(sixDrugs), wishesOf(selectionCdfPlot, {"run <= 1"}));
  settings().setLogParameterAxes(true);
  settings().setUseDensity(true);
  document.draw();
  vtkChartXY* chart = cell("drug");
  ASSERT_TRUE(chart && vtkPlotBar::SafeDownCast(chart->GetPlot(0)));
  EXPECT_FALSE(chart->GetAxis(vtkAxis::BOTTOM)->GetLogScale());
  EXPECT_LT(chart->GetAxis(vtkAxis::BOTTOM)->GetMinimum(), 0.0);
}

TEST_F(CategoriesInDocument, FollowTheSelection)
{
  show(treatedRuns(sixDrugs), wishesOf(selectionCdfPlot));
  ASSERT_TRUE(cell("drug"));
  EXPECT_EQ(cell("drug")->GetNumberOfPlots(), 1) << "all runs";
  EXPECT_EQ(cell("drug")->GetPlot(0)->GetInput()->GetValue(0, 1).ToDouble(), 0.5);
  ASSERT_EQ(document.selection().selectWhere("drug = mixed", RunCombination::Replace).text, "");
  ASSERT_EQ(cell("drug")->GetNumberOfPlots(), 2);
  EXPECT_EQ(cell("drug")->GetPlot(0)->GetInput()->GetValue(2, 1).ToDouble(), 1.0);
  EXPECT_EQ(document.comparison().current().parameters[0].obstacle,
            TestObstacle::chosenByParameter);
}

TEST_F(CategoriesInDocument, AreGroupsWithTheirTextsAsNames)
{
  show(treatedRuns({"none", "aspirin", "none", "NA", "aspirin", "none"}), wishesOf(xyPlot));
  ASSERT_EQ(document.groups().categories(), Names{"Parameter: drug"});
  EXPECT_EQ(document.takeCategory("Parameter: drug"), "");
  const RunGroups& groups = document.groups().groups();
  EXPECT_EQ(groups.names, (Names{"none", "aspirin", "(no text)"}));
  EXPECT_EQ(groups.groupOfRun, (std::vector<int>{0, 1, 0, 2, 1, 0}));
  ASSERT_EQ(chart().GetNumberOfPlots(), 4);
  Names labels;
  for (vtkIdType i = 0; i < 4; ++i)
    if (chart().GetPlot(i)->GetLegendVisibility())
      labels.push_back(chart().GetPlot(i)->GetLabel());
  EXPECT_EQ(labels, groups.names);
}

TEST_F(CategoriesInDocument, ColourRunsOfOnePointInTheMatrix)
{
  std::ostringstream text;
  text << "run,k1,k2,drug,score\n";
  for (std::size_t run = 0; run < sixDrugs.size(); ++run)
    text << run << ',' << 0.1 * run << ',' << run * 5 % 6 << ',' << sixDrugs[run] << ','
         << run * run << '\n';
  show(text.str(), wishesOf(scatterPlotMatrix));
  ASSERT_EQ(document.groups().runs(), 0) << "none over time";
  ASSERT_EQ(document.groups().categories(), Names{"Parameter: drug"});
  ASSERT_EQ(document.takeCategory("Parameter: drug"), "");
  auto* matrix = vtkScatterPlotMatrix::SafeDownCast(container().getItem());
  ASSERT_TRUE(matrix);
  const ColourKey* key = nullptr;
  for (unsigned int i = 0; i < matrix->GetNumberOfItems(); ++i)
    if (auto* found = dynamic_cast<ColourKey*>(matrix->GetItem(i)))
      key = found;
  ASSERT_TRUE(key);
  ASSERT_EQ(key->entries().size(), 3U);
  EXPECT_EQ(key->entries()[1].first, "aspirin");
}

TEST_F(CategoriesInDocument, AreNoGroupsWhereThereAreMoreThanColours)
{
  Names drugs;
  for (int run = 0; run < 26; ++run)
    drugs.push_back("drug" + std::to_string(run % 13));
  show(treatedRuns(drugs));
  EXPECT_EQ(document.takeCategory("Parameter: drug"),
            "The column \"drug\" has 13 different texts; there are colours for 12 groups.");
  EXPECT_TRUE(document.groups().groups().names.empty());
  EXPECT_EQ(document.takeCategory("Parameter: k"), "The column \"k\" has no text for each run.");
}

} // namespace
