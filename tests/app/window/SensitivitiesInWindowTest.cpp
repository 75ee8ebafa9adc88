#include "external/PlotMetaData.h"

#include <vtkPlotBar.h>
#include <vtkPlotStacked.h>

#include "window/StudyWindow.h"

using namespace Talmesh::app;

namespace
{

class SensitivitiesInWindow : public StudyWindow
{
};

} // namespace

TEST_F(SensitivitiesInWindow, ShowSensitivitiesOfEverySpeciesAndTime)
{
  show("sensitivity-first-overTime");
  ASSERT_EQ(find<QComboBox>("studyVariant")->count(), 6);
  EXPECT_EQ(title(), "Sensitivity of Molecule: TetR");
  chooseVariant(2);
  EXPECT_EQ(title(), "Sensitivity of Molecule: cI");
  show("sensitivity-total-atTime");
  auto* times = find<QComboBox>("studyVariant");
  EXPECT_EQ(times->count(), 36);
  EXPECT_EQ(times->currentText(), "2 h");
  EXPECT_EQ(title(), "Total Sensitivities at t= 7200 s");
  QTest::keyClick(times, Qt::Key_Home);
  EXPECT_EQ(title(), "Total Sensitivities at t= 900 s");
}

TEST_F(SensitivitiesInWindow, KeepTheBandsOfSensitivitiesThroughChangesOfSettings)
{
  show("sensitivity-total-overTime");
  chooseVariant(1);
  PlotMetaData& settings = *container().getMetaData();
  const auto expectBands = [this](const std::string& expectedTitle)
  {
    ASSERT_EQ(chart().GetNumberOfPlots(), 1);
    auto* bands = vtkPlotStacked::SafeDownCast(chart().GetPlot(0));
    ASSERT_NE(bands, nullptr);
    EXPECT_EQ(seriesOf(bands), 4);
    EXPECT_EQ(title(), expectedTitle);
    EXPECT_EQ(axisTitle(vtkAxis::LEFT), "Total Sensitivity");
    EXPECT_EQ(axisTitle(vtkAxis::BOTTOM), "Time [s]");
    EXPECT_TRUE(chart().GetShowLegend());
    EXPECT_EQ(container().getItem(), &chart());
    EXPECT_NE(chart().GetScene(), nullptr) << "the window shows the chart that is drawn last";
  };
  expectBands("Total Sensitivity of Molecule: LacI");
  container().setLineWidth(3.0);
  expectBands("Total Sensitivity of Molecule: LacI");
  settings.setPlotLine(true);
  expectBands("Total Sensitivity of Molecule: LacI");
  container().setPlotTitle("Mine");
  settings.setLogX(true);
  expectBands("Mine");
  container().setLineWidth(1.0);
  expectBands("Mine");
  chooseVariant(1);
  expectBands("Total Sensitivity of Molecule: cI");
}

TEST_F(SensitivitiesInWindow, KeepTheBarsOfSensitivitiesThroughChangesOfSettings)
{
  show("sensitivity-first-atTime");
  container().setLineWidth(3.0);
  container().getMetaData()->setPlotLine(true);
  auto* bars = vtkPlotBar::SafeDownCast(chart().GetPlot(0));
  ASSERT_NE(bars, nullptr);
  EXPECT_EQ(seriesOf(bars), 4);
  EXPECT_EQ(title(), "Sensitivities at t= 7200 s");
  vtkStringArray* names = chart().GetAxis(vtkAxis::BOTTOM)->GetTickLabels();
  ASSERT_EQ(names->GetNumberOfValues(), 6);
  EXPECT_EQ(names->GetValue(0), "Molecule: TetR");
  EXPECT_EQ(names->GetValue(5), "Pattern: cI mRNA");
}
