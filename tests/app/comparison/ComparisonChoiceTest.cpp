#include "app/comparison/ComparisonChoice.h"

#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/export/PictureFile.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkTable.h>
#include <vtkVariant.h>

#include <gtest/gtest.h>

#include <memory>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

class QuartilesOfAComparison : public ::testing::Test
{
protected:
  QuartilesOfAComparison()
      : widget(makeHiddenPlot(QSize(300, 200)))
  {
    showStudy(sampleStudy("run,time,k,X,Y\n0,0,1,1,10\n0,1,1,0,0\n1,0,2,2,20\n1,1,2,0,0\n"
                          "2,0,3,3,30\n2,1,3,0,0\n"),
              container());
    showBands(true);
    applyChoice(container(), choiceOf(container()));
  }

  PlotContainer& container() { return *widget->plotContainer(); }
  PlotMetaData& settings() { return *container().getMetaData(); }

  void showBands(bool on)
  {
    settings().blockSignals(true);
    settings().setShowQuantiles(on);
    settings().blockSignals(false);
  }

  double median() { return container().getQuartileTable()->GetValueByName(0, "Median").ToDouble(); }

  std::unique_ptr<VtkPlotWidget> widget;
};

} // namespace

TEST_F(QuartilesOfAComparison, AreMadeAnewAfterSomeoneElseMadeThoseOfAnotherColumn)
{
  EXPECT_EQ(median(), 2.0);
  showBands(false);
  settings().yColumns = {1};
  container().generateQuartiles();
  EXPECT_EQ(median(), 20.0);
  settings().yColumns = {0};
  showBands(true);
  refreshQuartiles(container());
  EXPECT_EQ(median(), 2.0);
}

TEST_F(QuartilesOfAComparison, StayWhileNothingChanges)
{
  const vtkSmartPointer<vtkTable> before = container().getQuartileTable();
  applyChoice(container(), choiceOf(container()));
  EXPECT_EQ(container().getQuartileTable(), before);
}
