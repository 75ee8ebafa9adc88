#include "app/StudyCatalogue.h"

#include "app/CircuitSensitivity.h"
#include "app/OwnChart.h"
#include "app/StudyCharts.h"

#include <QCoreApplication>

#include <mutex>

namespace Talmesh::app
{

namespace
{

/// The indices of the fixed sequence of points agree to about two digits with this many.
constexpr std::size_t sensitivitySamples = 1024;
constexpr double secondsPerHour = 3600.0;

struct Texts
{
  Q_DECLARE_TR_FUNCTIONS(StudyCatalogue)
};

using Draw = std::function<void(PlotContainer&, int)>;

OpenedStudy opened(const CatalogueEntry& entry, OwnChart chart)
{
  chart.id = entry.id;
  OpenedStudy result;
  result.study.name = QString(entry.subject + QStringLiteral(": ") + entry.title)
                          .remove(QLatin1Char('&'))
                          .toStdString();
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
  const QString subject = Texts::tr("&Indomethacin");
  const std::string source =
      Texts::tr("Plasma concentrations of six subjects after an injection (Kwan and others, "
                "1976), fitted with a decay over two compartments.")
          .toStdString();
  const auto add = [&](const char* id, const QString& title, const QString& toolTip, Draw draw)
  {
    OwnChart chart;
    chart.description = source;
    chart.draw = std::move(draw);
    entries.push_back(entryOf({id, subject, title, toolTip, {}}, chart));
  };
  add("indomethacin-fit", Texts::tr("&Course of the fit"),
      Texts::tr("Every step of the fit, one chart per pair of parameters, coloured by the sum of "
                "squares"),
      [](PlotContainer& container, int) { drawIndomethacinFit(container); });
  OwnChart course;
  course.description = source;
  course.variantLabel = Texts::tr("Concentration axis").toStdString();
  course.variants = {Texts::tr("linear").toStdString(), Texts::tr("logarithmic").toStdString()};
  course.draw = [](PlotContainer& container, int variant)
  { drawIndomethacinCourse(container, variant == 1); };
  entries.push_back(entryOf({"indomethacin-course",
                             subject,
                             Texts::tr("&Fitted decay"),
                             Texts::tr("The measured concentrations and the fitted curve"),
                             {}},
                            course));
  add("indomethacin-residuals", Texts::tr("&Residuals"),
      Texts::tr("Observation minus prediction, all subjects"),
      [](PlotContainer& container, int) { drawIndomethacinResiduals(container, false, false); });
  add("indomethacin-scaled", Texts::tr("&Scaled residuals"),
      Texts::tr("Residuals divided by the standard deviation of the subjects"),
      [](PlotContainer& container, int) { drawIndomethacinResiduals(container, true, false); });
  add("indomethacin-sideBySide", Texts::tr("&Predictions and observations"),
      Texts::tr("Both side by side, all subjects"),
      [](PlotContainer& container, int) { drawIndomethacinResiduals(container, false, true); });
}

void addPuromycin(std::vector<CatalogueEntry>& entries)
{
  OwnChart chart;
  chart.description =
      Texts::tr("Initial rates of a reaction in cells treated with puromycin (Bates and Watts, "
                "1988): means of two replicates, their standard errors and the Michaelis-Menten "
                "curve.")
          .toStdString();
  chart.draw = [](PlotContainer& container, int) { drawPuromycinRates(container); };
  entries.push_back(entryOf({"puromycin-rates",
                             Texts::tr("&Puromycin"),
                             Texts::tr("&Initial rates"),
                             Texts::tr("Mean rates with error bars and the fitted curve"),
                             {}},
                            chart));
}

/// Computed once, as the numbers are always the same.
std::shared_ptr<SobolPostProcessResult> keptSensitivity(const ImportProgress& progress)
{
  static std::mutex computing;
  static std::shared_ptr<SobolPostProcessResult> kept;
  const std::lock_guard<std::mutex> lock(computing);
  if (!kept)
    kept = circuitSensitivity(sensitivitySamples, progress);
  return kept;
}

void describeVariants(OwnChart& chart, const SobolPostProcessResult& result, bool atTimePoint)
{
  if (!atTimePoint)
  {
    chart.variantLabel = Texts::tr("Species").toStdString();
    for (const TypedConcentrationName& output : result.outputs)
      chart.variants.push_back(selectionPairToString(output));
    return;
  }
  chart.variantLabel = Texts::tr("Time").toStdString();
  for (const double time : *result.timePoints)
    chart.variants.push_back(Texts::tr("%1 h").arg(time / secondsPerHour, 0, 'g', 3).toStdString());
  chart.firstVariant = static_cast<int>(chart.variants.size()) - 1;
}

OpenedStudy openSensitivity(const CatalogueEntry& entry, bool atTimePoint, bool total,
                            const ImportProgress& progress)
{
  const std::shared_ptr<SobolPostProcessResult> result = keptSensitivity(progress);
  OwnChart chart;
  chart.description = Texts::tr("Sobol indices of the example circuit: how much of the variance of "
                                "a species each parameter explains, alone (first order) or with "
                                "all its interactions (total).")
                          .toStdString();
  describeVariants(chart, *result, atTimePoint);
  chart.draw = [result, atTimePoint, total](PlotContainer& container, int variant) {
    drawSensitivity(container, *result, {atTimePoint, total, static_cast<std::size_t>(variant)});
  };
  return opened(entry, std::move(chart));
}

void addSensitivity(std::vector<CatalogueEntry>& entries)
{
  const QString subject = Texts::tr("Circuit &sensitivity");
  const auto add = [&](const char* id, const QString& title, const QString& toolTip,
                       bool atTimePoint, bool total)
  {
    CatalogueEntry entry = {id, subject, title, toolTip, {}};
    entry.open = [entry, atTimePoint, total](const ImportProgress& progress)
    { return openSensitivity(entry, atTimePoint, total, progress); };
    entries.push_back(entry);
  };
  const QString bands = Texts::tr("One band per parameter, for one species over time");
  const QString bars = Texts::tr("One bar per species, divided by parameters, at one time");
  add("sensitivity-first-overTime", Texts::tr("&First-order indices over time"), bands, false,
      false);
  add("sensitivity-total-overTime", Texts::tr("&Total indices over time"), bands, false, true);
  add("sensitivity-first-atTime", Texts::tr("First-order indices by &species"), bars, true, false);
  add("sensitivity-total-atTime", Texts::tr("Total indices &by species"), bars, true, true);
}

void addPriors(std::vector<CatalogueEntry>& entries)
{
  const auto priors = std::make_shared<std::vector<NamedDistribution>>(circuitPriors());
  OwnChart chart;
  chart.description = Texts::tr("The distributions from which the parameters of the example "
                                "circuit's runs are drawn.")
                          .toStdString();
  chart.variantLabel = Texts::tr("Parameter").toStdString();
  for (const NamedDistribution& prior : *priors)
    chart.variants.push_back(prior.name);
  chart.draw = [priors](PlotContainer& container, int variant)
  { drawPrior(container, priors->at(static_cast<std::size_t>(variant))); };
  entries.push_back(entryOf({"priors",
                             Texts::tr("Circuit &parameters"),
                             Texts::tr("&Prior distributions"),
                             Texts::tr("The density of one parameter"),
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
