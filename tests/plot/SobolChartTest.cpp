#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"
#include "support/VtkErrors.h"

#include <vtkAxis.h>
#include <vtkChartLegend.h>
#include <vtkColorSeries.h>
#include <vtkIdTypeArray.h>
#include <vtkPlotBar.h>
#include <vtkPlotStacked.h>
#include <vtkTextProperty.h>

#include <gtest/gtest.h>

#include <limits>

#include "SobolFixture.h"

using SampleRuns::valuesOf;

namespace
{

class SobolChart : public SobolFixture
{
};

TEST_F(SobolChart, TitlesNameIndexOutputAndTime)
{
  showOverTime(true, 3);
  EXPECT_EQ(container.getMetaData()->title, "Total Sensitivity of Pattern: A_bound");
  EXPECT_EQ(chart()->GetTitle(), "Total Sensitivity of Pattern: A_bound");
  showOverTime(false, 4);
  EXPECT_EQ(chart()->GetTitle(), "Sensitivity of : T");
  showAtTime(false, 1);
  EXPECT_EQ(chart()->GetTitle(), "Sensitivities at t= 12.5 s");
  showAtTime(true, 1);
  EXPECT_EQ(chart()->GetTitle(), "Total Sensitivities at t= 12.5 s");
}

TEST_F(SobolChart, TimeInTheTitleHasSixSignificantDigits)
{
  *result.timePoints = {1234567.0, 0.1 + 0.2, 1e-7};
  showAtTime(false, 0);
  EXPECT_EQ(chart()->GetTitle(), "Sensitivities at t= 1.23457e+06 s");
  showAtTime(false, 1);
  EXPECT_EQ(chart()->GetTitle(), "Sensitivities at t= 0.3 s");
  showAtTime(false, 2);
  EXPECT_EQ(chart()->GetTitle(), "Sensitivities at t= 1e-07 s");
}

TEST_F(SobolChart, BandsAreStackedOverTime)
{
  showOverTime(false, 1);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 1);
  auto* bands = vtkPlotStacked::SafeDownCast(chart()->GetPlot(0));
  ASSERT_NE(bands, nullptr);
  EXPECT_EQ(bands->GetInput(), table());
  EXPECT_FALSE(bands->GetUseIndexForXSeries());
  EXPECT_EQ(stringsOf(bands->GetLabels()), (std::vector<std::string>{"k_on", "k_off"}));
  EXPECT_EQ(bands->GetColorSeries()->GetColorScheme(), vtkColorSeries::WILD_FLOWER);
  EXPECT_EQ(bottom()->GetTitle(), "Time [s]");
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::AUTO);
  EXPECT_TRUE(chart()->GetShowLegend());
  EXPECT_FALSE(chart()->GetLegend()->GetInline());
}

TEST_F(SobolChart, BarsAreStackedPerOutput)
{
  showAtTime(false, 1);
  ASSERT_EQ(chart()->GetNumberOfPlots(), 1);
  auto* bars = vtkPlotBar::SafeDownCast(chart()->GetPlot(0));
  ASSERT_NE(bars, nullptr);
  EXPECT_EQ(bars->GetInput(), table());
  EXPECT_TRUE(bars->GetUseIndexForXSeries());
  EXPECT_EQ(stringsOf(bars->GetLabels()), (std::vector<std::string>{"k_on", "k_off"}));
  EXPECT_EQ(bars->GetColorSeries()->GetColorScheme(), vtkColorSeries::WILD_FLOWER);
  EXPECT_TRUE(chart()->GetShowLegend());
  EXPECT_FALSE(chart()->GetLegend()->GetInline());
}

TEST_F(SobolChart, BarsAreLabelledByTheNames)
{
  showAtTime(false, 0);
  EXPECT_EQ(bottom()->GetMinimum(), -1.0);
  EXPECT_EQ(bottom()->GetMaximum(), 4.0);
  EXPECT_EQ(bottom()->GetBehavior(), vtkAxis::FIXED);
  EXPECT_EQ(bottom()->GetTitle(), "Species");
  EXPECT_EQ(valuesOf(bottom()->GetTickPositions()), (std::vector<double>{0.0, 1.0, 2.0}));
  EXPECT_EQ(stringsOf(bottom()->GetTickLabels()), stringsOf(table()->GetColumnByName("Name")));
  EXPECT_EQ(bottom()->GetLabelProperties()->GetOrientation(), 90.0);
  EXPECT_EQ(bottom()->GetLabelProperties()->GetJustification(), VTK_TEXT_RIGHT);
  EXPECT_EQ(bottom()->GetLabelProperties()->GetVerticalJustification(), VTK_TEXT_CENTERED);
}

TEST_F(SobolChart, LongNamesAreWrittenSmaller)
{
  showAtTime(false, 0);
  EXPECT_EQ(bottom()->GetLabelProperties()->GetFontSize(), 12);
  result.outputs[2].second = std::string(16, 'w'); // 40 characters with the kind's word
  showAtTime(false, 0);
  EXPECT_EQ(bottom()->GetLabelProperties()->GetFontSize(), 8);
  result.outputs[2].second = std::string(1000, 'w');
  showAtTime(false, 0);
  EXPECT_EQ(bottom()->GetLabelProperties()->GetFontSize(), 8);
}

class SobolLeftAxis : public SobolFixture, public ::testing::WithParamInterface<bool>
{
protected:
  void show(bool total) { GetParam() ? showAtTime(total, 0) : showOverTime(total, 0); }
};

TEST_P(SobolLeftAxis, SpansZeroToOneForFirstOrderIndices)
{
  show(false);
  EXPECT_EQ(left()->GetTitle(), "Sensitivity");
  EXPECT_EQ(left()->GetBehavior(), vtkAxis::FIXED);
  EXPECT_EQ(left()->GetMinimum(), 0.0);
  EXPECT_EQ(left()->GetMaximum(), 1.0);
}

TEST_P(SobolLeftAxis, KeepsTheMaximumOfANewChartForTotalIndices)
{
  vtkNew<vtkChartXY> untouched;
  show(true);
  EXPECT_EQ(left()->GetTitle(), "Total Sensitivity");
  EXPECT_EQ(left()->GetBehavior(), vtkAxis::FIXED);
  EXPECT_EQ(left()->GetMinimum(), 0.0);
  EXPECT_EQ(left()->GetMaximum(), untouched->GetAxis(vtkAxis::LEFT)->GetMaximum());
}

TEST_P(SobolLeftAxis, StaysFixedWhenPainted)
{
  show(true);
  const double maximum = left()->GetMaximum();
  render();
  EXPECT_EQ(left()->GetMinimum(), 0.0);
  EXPECT_EQ(left()->GetMaximum(), maximum);
}

INSTANTIATE_TEST_SUITE_P(BothViews, SobolLeftAxis, ::testing::Bool());

TEST_F(SobolChart, OtherStylesGetAnEmptyChartWithTheTitle)
{
  for (const int style : {0, 3, 4, 7, 9, 10})
  {
    container.setPlotStyle(static_cast<plotStyles>(style));
    container.setSobolPostprocessResult(&result, false, false, 0, 1);
    EXPECT_EQ(chart()->GetNumberOfPlots(), 0) << style;
    EXPECT_EQ(chart()->GetTitle(), "Sensitivity of Molecule: M") << style;
    EXPECT_EQ(table()->GetNumberOfColumns(), 3) << style;
  }
}

TEST_F(SobolChart, TheChartIsNewCurrentAndWithoutScene)
{
  const vtkSmartPointer<vtkChartXY> before = chart();
  showOverTime(false, 0);
  EXPECT_NE(chart(), before);
  EXPECT_EQ(container.getItem(), chart());
  EXPECT_EQ(chart()->GetScene(), nullptr);
}

TEST_F(SobolChart, SettingsSpeakAgainAfterwards)
{
  container.getMetaData()->blockSignals(true);
  showOverTime(false, 0);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
  container.getMetaData()->blockSignals(true);
  container.setupStackedSobol(false);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(SobolChart, TheChartCanBeBuiltAgainForAnotherStyle)
{
  showOverTime(false, 0);
  container.getMetaData()->blockSignals(true);
  container.getMetaData()->setPlotStyle(reservedStyle1);
  container.setupStackedSobol(true);
  ASSERT_NE(vtkPlotBar::SafeDownCast(chart()->GetPlot(0)), nullptr);
  vtkNew<vtkChartXY> untouched;
  EXPECT_EQ(bottom()->GetTitle(), untouched->GetAxis(vtkAxis::BOTTOM)->GetTitle())
      << "without a Name column there are no categories";
  EXPECT_EQ(bottom()->GetMaximum(), 4.0);
  EXPECT_EQ(left()->GetTitle(), "Total Sensitivity");
}

TEST_F(SobolChart, RedrawOfAReservedStyleKeepsThePlots)
{
  showOverTime(false, 1);
  container.setScene(scene.scene());
  container.redraw();
  EXPECT_EQ(chart()->GetTitle(), "Not yet implemented");
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
}

TEST_F(SobolChart, MissingAndTextSeriesAreLeftOut)
{
  container.getMetaData()->blockSignals(true);
  for (const plotStyles style : {reservedStyle1, reservedStyle2})
  {
    container.setPlotData(tableOf({{"a", {1, 2, 3}}}));
    addStringColumn(table(), "text");
    table()->AddColumn(Talmesh::plot::makeColumn("b", {1, 2, 3}));
    table()->AddColumn(Talmesh::plot::makeColumn("Time", {1, 2, 3}));
    table()->GetColumn(2)->SetName("");
    VtkErrors errors;
    container.getMetaData()->setPlotStyle(style);
    container.setupStackedSobol(false);
    EXPECT_EQ(stringsOf(chart()->GetPlot(0)->GetLabels()), (std::vector<std::string>{"a"}));
    render();
    EXPECT_EQ(errors.text(), "");
  }
}

TEST_F(SobolChart, ASeriesBehindTextOfItsNameIsLeftOut)
{
  container.getMetaData()->blockSignals(true);
  for (const plotStyles style : {reservedStyle1, reservedStyle2})
  {
    container.setPlotData(tableOf({{"a", {1, 2, 3}}}));
    addStringColumn(table(), "b");
    table()->AddColumn(Talmesh::plot::makeColumn("c", {1, 2, 3}));
    table()->AddColumn(Talmesh::plot::makeColumn("Time", {1, 2, 3}));
    table()->GetColumn(2)->SetName("b");
    container.getMetaData()->setPlotStyle(style);
    container.setupStackedSobol(false);
    EXPECT_EQ(stringsOf(chart()->GetPlot(0)->GetLabels()), (std::vector<std::string>{"a"}));
    render();
  }
}

TEST_F(SobolChart, ATextColumnMayComeFirst)
{
  auto mixed = vtkSmartPointer<vtkTable>::New();
  vtkNew<vtkStringArray> text;
  text->SetName("text");
  text->InsertNextValue("x");
  mixed->AddColumn(text);
  mixed->AddColumn(Talmesh::plot::makeColumn("a", {1}));
  mixed->AddColumn(Talmesh::plot::makeColumn("Time", {1}));
  container.setPlotData(mixed);
  container.getMetaData()->setPlotStyle(reservedStyle1);
  container.setupStackedSobol(false);
  EXPECT_EQ(stringsOf(chart()->GetPlot(0)->GetLabels()), (std::vector<std::string>{"a"}));
}

TEST_F(SobolChart, NoParametersOrNoTimesPaintWithoutComplaint)
{
  VtkErrors errors;
  for (const bool atTime : {false, true})
  {
    result = everyKind();
    result.parameterValues.clear();
    atTime ? showAtTime(false, 0) : showOverTime(false, 0);
    render();
  }
  result = everyKind();
  result.timePoints->clear();
  showOverTime(false, 0);
  render();
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(SobolChart, UnorderedAndUnknownTimesPaintWithoutComplaint)
{
  VtkErrors errors;
  for (const double time :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -1.0})
  {
    *result.timePoints = {5.0, time, 2.0};
    showOverTime(false, 1);
    render();
  }
  EXPECT_EQ(errors.text(), "");
}

TEST_F(SobolChart, BarsAndLabelsAreSeen)
{
  showAtTime(false, 1);
  render();
  EXPECT_GT(scene.paintedPixels(), 5000);
}

} // namespace
