#include "app/examples/StudyCatalogue.h"

#include "app/document/OwnChart.h"
#include "app/examples/CircuitSensitivity.h"
#include "app/examples/StudyCharts.h"
#include "app/import/TranslatedText.h"

#include <algorithm>
#include <iomanip>
#include <iterator>
#include <sstream>

namespace Talmesh::app
{

namespace
{

constexpr double secondsPerHour = 3600.0;

std::string shortText(double value)
{
  std::ostringstream text;
  text << std::setprecision(3) << value;
  return text.str();
}

OpenedStudy opened(const CatalogueEntry& entry, OwnChart chart)
{
  chart.id = entry.id;
  OpenedStudy result;
  const std::string name = entry.subject + ": " + entry.title;
  std::remove_copy(name.begin(), name.end(), std::back_inserter(result.study.name), '&');
  result.study.chart = std::make_shared<const OwnChart>(std::move(chart));
  return result;
}

/// An entry whose chart needs no computation worth a word.
CatalogueEntry entryOf(CatalogueEntry entry, const OwnChart& chart)
{
  entry.open = [entry, chart](const ImportProgress&) { return opened(entry, chart); };
  return entry;
}

void addIndomethacin(std::vector<CatalogueEntry>& entries)
{
  const std::string subject = translated("StudyCatalogue", "&Indomethacin");
  const std::string source =
      translated("StudyCatalogue",
                 "Plasma concentrations of six subjects after an injection (Kwan and others, "
                 "1976), fitted with a decay over two compartments.");
  const auto add =
      [&](const char* id, const std::string& title, const std::string& toolTip, ChartSteps steps)
  {
    OwnChart chart;
    chart.description = source;
    chart.steps = [steps = std::move(steps)](int) { return steps; };
    entries.push_back(entryOf({id, subject, title, toolTip, {}}, chart));
  };
  add("indomethacin-fit", translated("StudyCatalogue", "&Course of the fit"),
      translated("StudyCatalogue",
                 "Every step of the fit, one chart per pair of parameters, coloured by the sum of "
                 "squares"),
      indomethacinFit());
  OwnChart course;
  course.description = source;
  course.variantLabel = translated("StudyCatalogue", "Concentration axis");
  course.variants = {translated("StudyCatalogue", "linear"),
                     translated("StudyCatalogue", "logarithmic")};
  course.steps = [](int variant) { return indomethacinCourse(variant == 1); };
  entries.push_back(
      entryOf({"indomethacin-course",
               subject,
               translated("StudyCatalogue", "&Fitted decay"),
               translated("StudyCatalogue", "The measured concentrations and the fitted curve"),
               {}},
              course));
  add("indomethacin-residuals", translated("StudyCatalogue", "&Residuals"),
      translated("StudyCatalogue", "Observation minus prediction, all subjects"),
      indomethacinResidualChart(false, false));
  add("indomethacin-scaled", translated("StudyCatalogue", "&Scaled residuals"),
      translated("StudyCatalogue", "Residuals divided by the standard deviation of the subjects"),
      indomethacinResidualChart(true, false));
  add("indomethacin-sideBySide", translated("StudyCatalogue", "&Predictions and observations"),
      translated("StudyCatalogue", "Both side by side, all subjects"),
      indomethacinResidualChart(false, true));
}

void addPuromycin(std::vector<CatalogueEntry>& entries)
{
  OwnChart chart;
  chart.description =
      translated("StudyCatalogue",
                 "Initial rates of a reaction in cells treated with puromycin (Bates and Watts, "
                 "1988): means of two replicates, their standard errors and the Michaelis-Menten "
                 "curve.");
  chart.steps = [](int) { return puromycinRateChart(); };
  entries.push_back(
      entryOf({"puromycin-rates",
               translated("StudyCatalogue", "&Puromycin"),
               translated("StudyCatalogue", "&Initial rates"),
               translated("StudyCatalogue", "Mean rates with error bars and the fitted curve"),
               {}},
              chart));
}

void describeVariants(OwnChart& chart, const SobolPostProcessResult& result, bool atTimePoint)
{
  if (!atTimePoint)
  {
    chart.variantLabel = translated("StudyCatalogue", "Species");
    for (const TypedConcentrationName& output : result.outputs)
      if (output.first != TimeOrValue)
        chart.variants.push_back(selectionPairToString(output));
    return;
  }
  chart.variantLabel = translated("StudyCatalogue", "Time");
  for (const double time : *result.timePoints)
    chart.variants.push_back(
        withValues(translated("StudyCatalogue", "%1 h"), {shortText(time / secondsPerHour)}));
  chart.firstVariant = static_cast<int>(chart.variants.size()) - 1;
}

Result<OpenedStudy> openSensitivity(const CatalogueEntry& entry, bool atTimePoint, bool total,
                                    const ImportProgress& progress)
{
  const Result<CircuitIndices> indices = keptCircuitSensitivity(progress);
  if (!indices.hasValue())
    return Result<OpenedStudy>::without(indices);
  const CircuitIndices& result = indices.value();
  OwnChart chart;
  chart.description = translated(
      "StudyCatalogue", "Sobol indices of the example circuit: how much of the variance of "
                        "a species each parameter explains, alone (first order) or with "
                        "all its interactions (total).");
  describeVariants(chart, *result, atTimePoint);
  chart.steps = [result, atTimePoint, total](int variant) {
    return sensitivityChart(result, {atTimePoint, total, static_cast<std::size_t>(variant)});
  };
  return opened(entry, std::move(chart));
}

void addSensitivity(std::vector<CatalogueEntry>& entries)
{
  const std::string subject = translated("StudyCatalogue", "Circuit &sensitivity");
  const auto add = [&](const char* id, const std::string& title, const std::string& toolTip,
                       bool atTimePoint, bool total)
  {
    CatalogueEntry entry = {id, subject, title, toolTip, {}};
    entry.open = [entry, atTimePoint, total](const ImportProgress& progress)
    { return openSensitivity(entry, atTimePoint, total, progress); };
    entries.push_back(entry);
  };
  const std::string bands =
      translated("StudyCatalogue", "One band per parameter, for one species over time");
  const std::string bars =
      translated("StudyCatalogue", "One bar per species, divided by parameters, at one time");
  add("sensitivity-first-overTime", translated("StudyCatalogue", "&First-order indices over time"),
      bands, false, false);
  add("sensitivity-total-overTime", translated("StudyCatalogue", "&Total indices over time"), bands,
      false, true);
  add("sensitivity-first-atTime", translated("StudyCatalogue", "First-order indices by &species"),
      bars, true, false);
  add("sensitivity-total-atTime", translated("StudyCatalogue", "Total indices &by species"), bars,
      true, true);
}

void addPriors(std::vector<CatalogueEntry>& entries)
{
  const auto priors = std::make_shared<std::vector<NamedDistribution>>(circuitPriors());
  OwnChart chart;
  chart.description =
      translated("StudyCatalogue", "The distributions from which the parameters of the example "
                                   "circuit's runs are drawn.");
  chart.variantLabel = translated("StudyCatalogue", "Parameter");
  for (const NamedDistribution& prior : *priors)
    chart.variants.push_back(prior.name);
  chart.steps = [priors](int variant)
  { return priorDensity(priors->at(static_cast<std::size_t>(variant))); };
  entries.push_back(entryOf({"priors",
                             translated("StudyCatalogue", "Circuit p&arameters"),
                             translated("StudyCatalogue", "&Prior distributions"),
                             translated("StudyCatalogue", "The density of one parameter"),
                             {}},
                            chart));
}

} // namespace

std::vector<CatalogueEntry> studyCatalogue()
{
  std::vector<CatalogueEntry> entries;
  addIndomethacin(entries);
  addPuromycin(entries);
  addSensitivity(entries);
  addPriors(entries);
  return entries;
}

} // namespace Talmesh::app
