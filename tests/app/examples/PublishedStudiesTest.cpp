#include "app/examples/CircuitSensitivity.h"
#include "app/examples/ExampleStudy.h"
#include "app/examples/IndomethacinStudy.h"
#include "app/examples/LeastSquaresFit.h"
#include "app/examples/PuromycinStudy.h"

#include <vtkDoubleArray.h>
#include <vtkTable.h>
#include <vtkVariant.h>

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using namespace Talmesh::app;

/// Four significant digits.
void expectFourDigits(double value, double reference)
{
  EXPECT_NEAR(value, reference, 5e-5 * std::fabs(reference));
}

TEST(LeastSquaresFit, FindsALineExactly)
{
  const auto residuals = [](const std::vector<double>& p)
  {
    std::vector<double> r;
    for (int x = 0; x < 5; ++x)
      r.push_back(3.0 + 2.0 * x - (p[0] + p[1] * x));
    return r;
  };
  const std::vector<FitStep> steps = fitLeastSquares(residuals, {0.0, 0.0});
  // At (0, 0) the residuals are 3, 5, 7, 9 and 11.
  EXPECT_NEAR(steps.front().sumOfSquares, 285.0, 1e-9);
  EXPECT_NEAR(steps.back().parameters[0], 3.0, 1e-9);
  EXPECT_NEAR(steps.back().parameters[1], 2.0, 1e-9);
}

TEST(LeastSquaresFit, RefusesFewerObservationsThanParameters)
{
  const auto one = [](const std::vector<double>&) { return std::vector<double>{1.0}; };
  EXPECT_THROW(fitLeastSquares(one, {1.0, 2.0}), std::invalid_argument);
}

TEST(IndomethacinStudy, AgreesWithTheReferenceFit)
{
  // R 4.2: m <- nls(conc ~ SSbiexp(time, A1, lrc1, A2, lrc2), Indometh)
  //        print(coef(m), digits = 10); print(deviance(m), digits = 10)
  const FitStep best = fitIndomethacin().back();
  expectFourDigits(best.parameters[0], 2.7734070572);
  expectFourDigits(best.parameters[1], std::exp(0.8863544954));
  expectFourDigits(best.parameters[2], 0.6067351687);
  expectFourDigits(best.parameters[3], std::exp(-1.0919293095));
  expectFourDigits(best.sumOfSquares, 1.887676436);
}

TEST(IndomethacinStudy, RecordsEveryStepDownhill)
{
  vtkSmartPointer<vtkTable> table = indomethacinFitTable();
  ASSERT_EQ(table->GetNumberOfColumns(), 6);
  EXPECT_STREQ(table->GetColumnName(2), "Parameter: A1");
  ASSERT_GT(table->GetNumberOfRows(), 5);
  for (vtkIdType row = 1; row < table->GetNumberOfRows(); ++row)
  {
    EXPECT_LE(table->GetValue(row, 0).ToDouble(), table->GetValue(row - 1, 0).ToDouble());
    EXPECT_EQ(table->GetValue(row, 1).ToDouble(), static_cast<double>(row));
  }
  EXPECT_GT(table->GetValue(0, 0).ToDouble(), 2.0);
}

TEST(IndomethacinStudy, HandsOutResidualsThatSumToTheScore)
{
  const IndomethacinResiduals study = indomethacinResiduals();
  EXPECT_EQ(study.settings->dataKind(), FitSettings::timeCourse);
  ASSERT_EQ(study.predictions.size(), 6U);
  double squares = 0.0;
  for (std::size_t subject = 0; subject < 6; ++subject)
  {
    for (std::size_t i = 0; i < 11; ++i)
      squares +=
          std::pow(study.settings->observations[subject][i] - study.predictions[subject][i], 2);
  }
  expectFourDigits(squares, 1.887676436);
  // R 4.2: sd(Indometh$conc[Indometh$time == 0.25])
  EXPECT_NEAR(study.settings->errors[0][0], 0.4135537047, 1e-9);
}

TEST(PuromycinStudy, AgreesWithTheReferenceFit)
{
  // R 4.2: coef(nls(rate ~ SSmicmen(conc, Vm, K), subset(Puromycin, state == "treated")))
  const MichaelisMenten fit = fitPuromycin();
  expectFourDigits(fit.vm, 212.68370727121);
  expectFourDigits(fit.k, 0.06412122579);
}

TEST(PuromycinStudy, AveragesTheReplicates)
{
  vtkSmartPointer<vtkTable> means = puromycinMeans();
  ASSERT_EQ(means->GetNumberOfRows(), 6);
  // 76 and 47: the mean is 61.5 and the standard error 14.5.
  EXPECT_FLOAT_EQ(means->GetValue(0, 1).ToFloat(), 61.5F);
  EXPECT_FLOAT_EQ(means->GetValue(0, 2).ToFloat(), 14.5F);
}

TEST(PuromycinStudy, DrawsTheCurveFromTheOrigin)
{
  vtkSmartPointer<vtkTable> curve = puromycinCurve(50);
  ASSERT_EQ(curve->GetNumberOfRows(), 50);
  EXPECT_EQ(curve->GetValue(0, 1).ToFloat(), 0.0F);
  EXPECT_GT(curve->GetValue(49, 0).ToFloat(), 1.1F);
  EXPECT_LT(curve->GetValue(49, 1).ToFloat(), 212.7F);
}

TEST(CircuitSensitivity, GivesEveryIndexOfEveryOutput)
{
  const CircuitIndices result = circuitSensitivity(24).value();
  ASSERT_EQ(result->outputs.size(), 7U);
  EXPECT_EQ(result->outputs[0].second, "TetR");
  EXPECT_EQ(result->outputs[5].second, "cI mRNA");
  EXPECT_EQ(result->outputs[6].second, "Time [s]");
  ASSERT_EQ(result->parameterNames.size(), 4U);
  EXPECT_EQ(result->parameterValues.size(), 4U);
  ASSERT_EQ(result->firstOrder->size(), 7U);
  for (const auto& output : *result->total)
  {
    ASSERT_EQ(output.size(), result->timePoints->size());
    for (const auto& atTime : output)
    {
      ASSERT_EQ(atTime.size(), 4U);
      for (const double index : atTime)
        EXPECT_GE(index, 0.0) << "a mean of squares";
    }
  }
}

TEST(CircuitSensitivity, FindsTheRepressedTranscriptionRateToMatterFirst)
{
  // At first every repressor is scarce and each protein grows with its transcription: alpha sets
  // how much mRNA is made and beta how soon it turns into protein, while the leakage alpha0 is
  // small beside alpha.
  const CircuitIndices result = circuitSensitivity(200).value();
  const auto& cI = result->total->at(2).front();
  EXPECT_GT(cI[0] + cI[2], cI[1]);
}

TEST(CircuitSensitivity, IsKeptForAllWhoShowIt)
{
  bool asked = false;
  const CircuitIndices first = keptCircuitSensitivity().value();
  const auto ask = [&asked](double) { return !(asked = true); };
  EXPECT_EQ(keptCircuitSensitivity(ask).value(), first);
  EXPECT_FALSE(asked) << "nothing is left to compute";
}

TEST(CircuitSensitivity, IsCancelledByItsProgress)
{
  // Two points and one for each of the four parameters are a sample: cancelled at any of them.
  for (int last = 0; last < 7; ++last)
  {
    int asked = 0;
    const auto result = circuitSensitivity(4, [&](double) { return asked++ < last; });
    EXPECT_TRUE(result.isCancelled()) << last;
    EXPECT_EQ(asked, last + 1) << "nothing more is computed";
  }
}

TEST(CircuitPriors, AreTheDistributionsOfTheStudy)
{
  const std::vector<NamedDistribution> priors = circuitPriors();
  ASSERT_EQ(priors.size(), 4U);
  EXPECT_EQ(priors[3].name, "n");
  const std::vector<ParameterRange>& ranges = exampleParameterRanges();
  // n is uniform and alpha log-uniform, whose density at x is 1 / (x log(upper / lower)).
  const double width = ranges[3].upper - ranges[3].lower;
  EXPECT_DOUBLE_EQ(priors[3].distribution->density(ranges[3].lower), 1.0 / width);
  EXPECT_DOUBLE_EQ(priors[0].distribution->range(1).second, ranges[0].upper);
  EXPECT_DOUBLE_EQ(priors[0].distribution->density(20.0),
                   1.0 / (20.0 * std::log(ranges[0].upper / ranges[0].lower)));
}

} // namespace
