#ifndef SobolFixture_h
#define SobolFixture_h

#include "external/PlotMetaData.h"
#include "external/SobolPostProcessResult.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "support/PlotScene.h"
#include "support/SampleRuns.h"
#include "support/SampleTables.h"

#include <vtkAxis.h>
#include <vtkChartXY.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// A container in a scene and a result to show in it.
class SobolFixture : public ::testing::Test
{
protected:
  SobolFixture() { container.setScene(scene.scene()); }

  /// Value of an index that names all of its subscripts; exact in single precision.
  static double indexValue(std::size_t output, std::size_t time, std::size_t parameter)
  {
    return static_cast<double>(output) / 8.0 + static_cast<double>(time) / 64.0 +
           static_cast<double>(parameter) / 512.0;
  }

  static std::shared_ptr<SobolPostProcessResult::Indices> makeIndices(std::size_t outputs,
                                                                      double offset)
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
  static SobolPostProcessResult everyKind()
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

  /// The chart is made without a scene: shows and paints it.
  void render()
  {
    container.setScene(scene.scene());
    scene.render(container);
  }

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
  std::vector<double> column(const std::string& name)
  {
    return SampleRuns::valuesOf(table(), name);
  }

  PlotScene scene;
  PlotContainer container{nullptr};
  SobolPostProcessResult result = everyKind();
};

#endif
