#ifndef SoundPicture_h
#define SoundPicture_h

#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/PlotScene.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>

#include <gtest/gtest.h>

#include <cmath>

/// Renders the container, and expects that its settings announce changes, that its chart is in the
/// scene and that the axes of its XY chart have ends.
inline void expectSoundPicture(PlotScene& scene, const PlotContainer& container)
{
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
  scene.render(container);
  ASSERT_NE(container.getItem(), nullptr);
  EXPECT_EQ(container.getItem()->GetScene(), scene.scene());
  vtkChartXY* chart = container.getChartXY();
  for (int position = 0; chart && position < chart->GetNumberOfAxes(); ++position)
  {
    vtkAxis* axis = chart->GetAxis(position);
    EXPECT_TRUE(std::isfinite(axis->GetMinimum())) << position;
    EXPECT_TRUE(std::isfinite(axis->GetMaximum())) << position;
  }
}

#endif
