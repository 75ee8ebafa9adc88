#include "vtk/vtkGuardedAxis.h"

#include <vtkContextScene.h>
#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkStringArray.h>
#include <vtkTextProperty.h>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace
{

/// A linear axis whose ticks follow its text.
class RoundAxis : public ::testing::Test
{
protected:
  RoundAxis()
  {
    axis->SetScene(scene);
    axis->SetBehavior(vtkAxis::FIXED);
    axis->SetTicksFollowText(true);
  }

  void lay(int position, float length)
  {
    const bool upright = position == vtkAxis::LEFT;
    axis->SetPosition(position);
    axis->SetPoint1(40.0F, 30.0F);
    axis->SetPoint2(upright ? 40.0F : 40.0F + length, upright ? 30.0F + length : 30.0F);
  }

  std::vector<std::string> labels()
  {
    axis->Update();
    std::vector<std::string> texts;
    for (vtkIdType i = 0; i < axis->GetTickLabels()->GetNumberOfValues(); ++i)
      texts.push_back(axis->GetTickLabels()->GetValue(i));
    return texts;
  }

  /// Pixels between neighbouring ticks.
  double spacing()
  {
    axis->Update();
    const vtkFloatArray* const places = axis->GetTickScenePositions();
    return places->GetNumberOfValues() > 1
               ? std::fabs(double(places->GetValue(1)) - double(places->GetValue(0)))
               : 0.0;
  }

  vtkNew<vtkContextScene> scene;
  vtkNew<vtkGuardedAxis> axis;
};

using Texts = std::vector<std::string>;

} // namespace

TEST_F(RoundAxis, BeginsAtARoundNumber)
{
  lay(vtkAxis::LEFT, 180.0F);
  axis->SetRange(-1.3, 0.9);
  EXPECT_EQ(labels(), Texts({"-1.0", "-0.5", "0.0", "0.5"}));
  axis->SetTicksFollowText(false);
  EXPECT_EQ(labels().front(), "-1") << "as VTK writes it";
}

TEST_F(RoundAxis, LabelsAsMuchAsTheTextHasRoomFor)
{
  lay(vtkAxis::BOTTOM, 400.0F);
  axis->SetRange(0.0, 36000.0);
  for (const int size : {5, 7, 12, 24})
  {
    axis->GetLabelProperties()->SetFontSize(size);
    axis->SetTicksFollowText(false);
    axis->SetTicksFollowText(true);
    // Digits of Arial are 0.556 of the font's size wide.
    const double widest = 5 * 0.556 * size;
    EXPECT_GT(spacing(), widest) << size;
    EXPECT_LT(spacing(), 6.0 * widest) << size;
    EXPECT_GE(labels().size(), 2U) << size;
  }
}

TEST_F(RoundAxis, HasFewerLabelsWhereItIsShorter)
{
  axis->SetRange(0.0, 10.0);
  lay(vtkAxis::LEFT, 400.0F);
  const std::size_t many = labels().size();
  lay(vtkAxis::LEFT, 80.0F);
  axis->SetRange(0.0, 10.0001);
  EXPECT_LT(labels().size(), many);
  EXPECT_GE(labels().size(), 2U);
}

TEST_F(RoundAxis, LeavesLogarithmsAndNumbersOfTicksAsTheyAre)
{
  lay(vtkAxis::BOTTOM, 400.0F);
  axis->SetRange(0.0, 0.97);
  axis->SetNumberOfTicks(3);
  EXPECT_EQ(labels().size(), 3U);
  axis->SetNumberOfTicks(-1);
  axis->SetRange(0.1, 1000.0);
  axis->SetLogScale(true);
  const Texts logarithmic = labels();
  axis->SetTicksFollowText(false);
  EXPECT_EQ(labels(), logarithmic);
}

TEST_F(RoundAxis, IsTickedWithAnyEnds)
{
  lay(vtkAxis::BOTTOM, 300.0F);
  for (const double low : {-1e300, -5.0, 0.0, 1e-300, 1.0, 1e15})
    for (const double span : {1e-290, 1e-9, 1.0, 1e5, 1e300})
    {
      axis->SetRange(low, low + span);
      EXPECT_LE(labels().size(), 40U) << low << " " << span;
    }
}
