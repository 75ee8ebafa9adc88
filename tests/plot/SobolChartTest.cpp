#include "external/PlotMetaData.h"
#include "external/SobolPostProcessResult.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/SobolTables.h"
#include "support/PlotScene.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"
#include "support/VtkErrors.h"

#include <vtkAxis.h>
#include <vtkChartLegend.h>
#include <vtkColorSeries.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkPlotBar.h>
#include <vtkPlotStacked.h>
#include <vtkSelection.h>
#include <vtkSelectionNode.h>
#include <vtkTextProperty.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using SampleRuns::valuesOf;
using Talmesh::plot::SobolIndex;

namespace
{

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// Value of an index that names all of its subscripts; exact in single precision.
double indexValue(std::size_t output, std::size_t time, std::size_t parameter)
{
  return static_cast<double>(output) / 8.0 + static_cast<double>(time) / 64.0 +
         static_cast<double>(parameter) / 512.0;
}

std::shared_ptr<SobolPostProcessResult::Indices> makeIndices(std::size_t outputs, double offset)
{
  auto indices = std::make_shared<SobolPostProcessResult::Indices>();
  for (std::size_t o = 0; o < outputs; ++o)
  {
    indices->emplace_back(3, std::vector<double>(2));
    for (std::size_t t = 0; t < 3; ++t)
    {
      for (std::size_t p = 0; p < 2; ++p)
        (*indices)[o][t][p] = indexValue(o, t, p) + offset;
    }
  }
  return indices;
}

/// Two parameters, three times, one output of every kind and a second molecule, which is last.
SobolPostProcessResult everyKind()
{
  SobolPostProcessResult result;
  result.parameterValues = {0.1, 0.2};
  result.parameterNames = {"k_on", "k_off"};
  result.outputs = {{Talmesh::Complex, "C"},
                    {Talmesh::Molecule, "M"},
                    {Talmesh::ComplexWithMolecule, "CM"},
                    {Talmesh::Pattern, "A_bound"},
                    {Talmesh::TimeOrValue, "T"},
                    {Talmesh::Parameter, "P"},
                    {Talmesh::UndefinedType, "U"},
                    {Talmesh::Molecule, "last"}};
  result.timePoints = std::make_shared<std::vector<double>>(std::vector<double>{0.0, 12.5, 20.0});
  result.firstOrder = makeIndices(result.outputs.size(), 0.0);
  result.total = makeIndices(result.outputs.size(), 2.0);
  return result;
}

std::vector<std::string> columnNames(vtkTable* table)
{
  std::vector<std::string> names;
  for (int c = 0; c < table->GetNumberOfColumns(); ++c)
    names.emplace_back(table->GetColumnName(c));
  return names;
}

std::vector<std::string> stringsOf(vtkAbstractArray* column)
{
  std::vector<std::string> strings;
  auto* array = vtkStringArray::SafeDownCast(column);
  for (vtkIdType i = 0; array && i < array->GetNumberOfValues(); ++i)
    strings.push_back(array->GetValue(i));
  return strings;
}

class Sobol : public ::testing::Test
{
protected:
  Sobol() { container.setScene(scene.scene()); }

  void showOverTime(bool total, unsigned long output)
  {
    container.getMetaData()->setPlotStyle(reservedStyle2);
    container.setSobolPostprocessResult(&result, false, total, 0, output);
  }

  void showAtTime(bool total, unsigned long time)
  {
    container.getMetaData()->setPlotStyle(reservedStyle1);
    container.setSobolPostprocessResult(&result, true, total, time, 0);
  }

  vtkTable* table() { return container.getTable(); }
  vtkChartXY* chart() { return container.getChartXY(); }
  vtkAxis* bottom() { return chart()->GetAxis(vtkAxis::BOTTOM); }
  vtkAxis* left() { return chart()->GetAxis(vtkAxis::LEFT); }
  std::vector<double> column(const std::string& name) { return valuesOf(table(), name); }

  PlotScene scene;
  PlotContainer container{nullptr};
  SobolPostProcessResult result = everyKind();
};

TEST_F(Sobol, TableOverTimeHoldsTheParametersThenTheTime)
{
  showOverTime(false, 3);
  EXPECT_EQ(columnNames(table()), (std::vector<std::string>{"k_on", "k_off", "Time"}));
  for (int c = 0; c < 3; ++c)
    EXPECT_NE(vtkFloatArray::SafeDownCast(table()->GetColumn(c)), nullptr);
  EXPECT_EQ(column("k_on"), (std::vector<double>{0.375, 0.390625, 0.40625}));
  EXPECT_EQ(column("k_off"), (std::vector<double>{0.376953125, 0.392578125, 0.408203125}));
  EXPECT_EQ(column("Time"), (std::vector<double>{0.0, 12.5, 20.0}));
}

TEST_F(Sobol, TableOverTimeTakesTheTotalIndices)
{
  showOverTime(true, 0);
  EXPECT_EQ(column("k_on"), (std::vector<double>{2.0, 2.015625, 2.03125}));
}

TEST_F(Sobol, TableAtATimeHoldsTheEligibleOutputs)
{
  showAtTime(false, 1);
  EXPECT_EQ(columnNames(table()), (std::vector<std::string>{"k_on", "k_off", "Name"}));
  EXPECT_NE(vtkFloatArray::SafeDownCast(table()->GetColumn(0)), nullptr);
  EXPECT_EQ(
      stringsOf(table()->GetColumn(2)),
      (std::vector<std::string>{"Molecule: M", "Complex With Molecule: CM", "Pattern: A_bound"}));
  EXPECT_EQ(column("k_on"), (std::vector<double>{0.140625, 0.265625, 0.390625}));
  EXPECT_EQ(column("k_off"), (std::vector<double>{0.142578125, 0.267578125, 0.392578125}));
}

TEST_F(Sobol, TableAtATimeTakesTheTotalIndices)
{
  showAtTime(true, 0);
  EXPECT_EQ(column("k_on"), (std::vector<double>{2.125, 2.25, 2.375}));
}

TEST_F(Sobol, NegativeIndicesBecomeZeroAndNanStays)
{
  (*result.firstOrder)[1][0] = {-0.25, nan};
  showOverTime(false, 1);
  EXPECT_EQ(column("k_on")[0], 0.0);
  EXPECT_TRUE(std::isnan(column("k_off")[0]));
  showAtTime(false, 0);
  EXPECT_EQ(column("k_on")[0], 0.0);
  EXPECT_TRUE(std::isnan(column("k_off")[0]));
  VtkErrors errors;
  container.setScene(scene.scene());
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(Sobol, KindsThatAreNotSpeciesNeverAppear)
{
  for (const Talmesh::DataType kind : {Talmesh::Complex, Talmesh::TimeOrValue, Talmesh::Parameter,
                                       Talmesh::UndefinedType, static_cast<Talmesh::DataType>(7)})
  {
    result.outputs = {{kind, "only"}, {Talmesh::Molecule, "last"}};
    showAtTime(false, 0);
    EXPECT_EQ(table()->GetNumberOfRows(), 0) << kind;
  }
}

TEST_F(Sobol, TheLastOutputNeverAppears)
{
  result.outputs = {{Talmesh::Complex, "C"}, {Talmesh::Pattern, "the only pattern"}};
  showAtTime(false, 0);
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
}

TEST_F(Sobol, OneOutputGivesEmptyColumnsAndNoBars)
{
  result.outputs = {{Talmesh::Molecule, "M"}};
  VtkErrors errors;
  showAtTime(false, 0);
  ASSERT_EQ(table()->GetNumberOfColumns(), 3);
  for (int c = 0; c < 3; ++c)
    EXPECT_EQ(table()->GetColumn(c)->GetNumberOfTuples(), 0) << c;
  EXPECT_EQ(bottom()->GetMinimum(), -1.0);
  EXPECT_EQ(bottom()->GetMaximum(), 1.0);
  container.setScene(scene.scene());
  scene.render(container);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(Sobol, WithoutOutputsNothingIsShown)
{
  result.outputs.clear();
  showAtTime(true, 0);
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
  EXPECT_EQ(container.getMetaData()->title, "Total Sensitivities at t= 0 s");
}

TEST_F(Sobol, TitlesNameIndexOutputAndTime)
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

TEST_F(Sobol, TimeInTheTitleHasSixSignificantDigits)
{
  *result.timePoints = {1234567.0, 0.1 + 0.2, 1e-7};
  showAtTime(false, 0);
  EXPECT_EQ(chart()->GetTitle(), "Sensitivities at t= 1.23457e+06 s");
  showAtTime(false, 1);
  EXPECT_EQ(chart()->GetTitle(), "Sensitivities at t= 0.3 s");
  showAtTime(false, 2);
  EXPECT_EQ(chart()->GetTitle(), "Sensitivities at t= 1e-07 s");
}

TEST_F(Sobol, BandsAreStackedOverTime)
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

TEST_F(Sobol, BarsAreStackedPerOutput)
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

TEST_F(Sobol, BarsAreLabelledByTheNames)
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

TEST_F(Sobol, LongNamesAreWrittenSmaller)
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

class SobolLeftAxis : public Sobol, public ::testing::WithParamInterface<bool>
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
  container.setScene(scene.scene());
  scene.render(container);
  EXPECT_EQ(left()->GetMinimum(), 0.0);
  EXPECT_EQ(left()->GetMaximum(), maximum);
}

INSTANTIATE_TEST_SUITE_P(BothViews, SobolLeftAxis, ::testing::Bool());

TEST_F(Sobol, OtherStylesGetAnEmptyChartWithTheTitle)
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

TEST_F(Sobol, TheChartIsNewCurrentAndWithoutScene)
{
  const vtkSmartPointer<vtkChartXY> before = chart();
  showOverTime(false, 0);
  EXPECT_NE(chart(), before);
  EXPECT_EQ(container.getItem(), chart());
  EXPECT_EQ(chart()->GetScene(), nullptr);
}

TEST_F(Sobol, SettingsSpeakAgainAfterwards)
{
  container.getMetaData()->blockSignals(true);
  showOverTime(false, 0);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
  container.getMetaData()->blockSignals(true);
  container.setupStackedSobol(false);
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(Sobol, TheChartCanBeBuiltAgainForAnotherStyle)
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

TEST_F(Sobol, RedrawOfAReservedStyleKeepsThePlots)
{
  showOverTime(false, 1);
  container.setScene(scene.scene());
  container.redraw();
  EXPECT_EQ(chart()->GetTitle(), "Not yet implemented");
  EXPECT_EQ(chart()->GetNumberOfPlots(), 1);
}

TEST_F(Sobol, CountsComeFromTheTableAsBuilt)
{
  result.parameterNames = {"k", "k"};
  showOverTime(false, 0);
  EXPECT_EQ(columnNames(table()), (std::vector<std::string>{"k", "Time"}));
  EXPECT_EQ(column("k")[0], indexValue(0, 0, 1));
  EXPECT_EQ(stringsOf(chart()->GetPlot(0)->GetLabels()), (std::vector<std::string>{"k"}));
}

TEST_F(Sobol, MissingAndTextSeriesAreLeftOut)
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
    container.setScene(scene.scene());
    scene.render(container);
    EXPECT_EQ(errors.text(), "");
  }
}

TEST_F(Sobol, ATextColumnMayComeFirst)
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

TEST_F(Sobol, NoParametersOrNoTimesPaintWithoutComplaint)
{
  VtkErrors errors;
  for (const bool atTime : {false, true})
  {
    result = everyKind();
    result.parameterValues.clear();
    atTime ? showAtTime(false, 0) : showOverTime(false, 0);
    container.setScene(scene.scene());
    scene.render(container);
  }
  result = everyKind();
  result.timePoints->clear();
  showOverTime(false, 0);
  container.setScene(scene.scene());
  scene.render(container);
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
  EXPECT_EQ(errors.text(), "");
}

TEST_F(Sobol, UnorderedAndUnknownTimesPaintWithoutComplaint)
{
  VtkErrors errors;
  for (const double time : {nan, std::numeric_limits<double>::infinity(), -1.0})
  {
    *result.timePoints = {5.0, time, 2.0};
    showOverTime(false, 1);
    container.setScene(scene.scene());
    scene.render(container);
  }
  EXPECT_EQ(errors.text(), "");
}

TEST_F(Sobol, WhatTheResultLacksIsNan)
{
  result.total = nullptr;
  result.parameterNames.pop_back();
  showOverTime(true, 1);
  EXPECT_TRUE(std::isnan(column("k_on")[0]));
  showOverTime(false, 99);
  EXPECT_TRUE(std::isnan(column("k_on")[0]));
  showAtTime(false, 99);
  EXPECT_TRUE(std::isnan(column("k_on")[0]));
  result.timePoints = nullptr;
  showOverTime(false, 1);
  EXPECT_EQ(table()->GetNumberOfRows(), 0);
  container.setSobolPostprocessResult(nullptr, false, false, 0, 0);
  EXPECT_EQ(chart()->GetTitle(), "Sensitivity of Molecule: M");
}

TEST_F(Sobol, RowsSelectedInAnEarlierLongerTableAreForgotten)
{
  container.setPlotData(tableOf({{"a", std::vector<double>(100)}}));
  vtkNew<vtkIdTypeArray> rows;
  rows->InsertNextValue(1);
  rows->InsertNextValue(99);
  vtkNew<vtkSelectionNode> node;
  node->SetContentType(vtkSelectionNode::INDICES);
  node->SetFieldType(vtkSelectionNode::ROW);
  node->SetSelectionList(rows);
  vtkNew<vtkSelection> selection;
  selection->AddNode(node);
  container.getAnnotationLink()->SetCurrentSelection(selection);
  showAtTime(false, 0);
  container.setScene(scene.scene());
  scene.render(container);
  EXPECT_EQ(valuesOf(chart()->GetPlot(0)->GetSelection()), (std::vector<double>{1.0}));
}

TEST(VtkErrorsOfTheTests, AreCollected)
{
  VtkErrors errors;
  const auto table = tableOf({{"a", {1}}});
  table->AddColumn(Talmesh::plot::makeColumn("longer", {1, 2}));
  EXPECT_NE(errors.text().find("longer"), std::string::npos);
}

TEST_F(Sobol, BarsAndLabelsAreSeen)
{
  showAtTime(false, 1);
  container.setScene(scene.scene());
  scene.render(container);
  EXPECT_GT(scene.paintedPixels(), 5000);
}

} // namespace
