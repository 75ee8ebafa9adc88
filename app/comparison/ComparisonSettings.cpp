#include "app/comparison/ComparisonSettings.h"

#include "app/comparison/ComparisonControls.h"
#include "app/comparison/DesignBox.h"
#include "app/comparison/SeedBox.h"
#include "app/comparison/SideBoxes.h"
#include "app/comparison/TestNames.h"
#include "app/comparison/ThresholdBox.h"
#include "app/styles/ViewerStyles.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QToolButton>

#include <initializer_list>

namespace Talmesh::app
{

ComparisonSettings::ComparisonSettings(QWidget* parent)
    : QWidget(parent)
{
  auto* layout = new QGridLayout(this);
  layout->setVerticalSpacing(layout->verticalSpacing() / 2);
  addPages(layout);
  addSides(layout);
  addTests(layout);
  addThresholds(layout);
  addHalves(layout);
  addSwitches(layout);
  layout->setRowStretch(layout->rowCount(), 1);
  layout->setColumnStretch(1, 1);
  setChoice({}, xyPlot, false);
}

QToolButton* ComparisonSettings::addPage(const QString& text, const QString& toolTip,
                                         plotStyles style)
{
  auto* button = new QToolButton;
  button->setText(text);
  button->setToolTip(toolTip);
  button->setCheckable(true);
  button->setFocusPolicy(Qt::StrongFocus);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(button, &QToolButton::clicked, this,
          [this, style]
          {
            // The button goes down when its page is shown, not when it is pressed.
            enableControls();
            emit styleChosen(style);
          });
  return button;
}

void ComparisonSettings::addPages(QGridLayout* layout)
{
  distributions =
      addPage(tr("&Distributions"),
              tr("The runs, and below them how each parameter is distributed"), selectionCdfPlot);
  distributions->setObjectName(QStringLiteral("distributionPage"));
  pairs = addPage(tr("Parameter &pairs"), tr("The runs, and each parameter over each other one"),
                  multiPlot);
  pairs->setObjectName(QStringLiteral("pairPage"));
  layout->addWidget(distributions, 0, 0);
  layout->addWidget(pairs, 0, 1);
}

void ComparisonSettings::addTests(QGridLayout* layout)
{
  comparedBy = makeChoiceBox("comparedBy", tr("How selected runs are told from the others"),
                             comparedByNames());
  adjustment = makeChoiceBox("adjustment",
                             tr("What the adjusted p bounds when several parameters are tested"),
                             adjustmentNames());
  const int row = layout->rowCount();
  layout->addWidget(comparedBy, row, 0);
  layout->addWidget(adjustment, row, 1);
  connect(comparedBy, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          [this](int entry)
          {
            chosen.comparedBy = static_cast<stats::ComparedBy>(entry);
            emit choiceChanged();
          });
  connect(adjustment, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          [this](int entry)
          {
            chosen.adjustment = static_cast<stats::Adjustment>(entry);
            emit choiceChanged();
          });
}

void ComparisonSettings::addThresholds(QGridLayout* layout)
{
  pThreshold = makeThreshold(
      "pThreshold",
      tr("Parameters with at most this adjusted p count as different and are shown first"),
      ThresholdBox::Steps::relative);
  ksThreshold = makeThreshold(
      "ksThreshold",
      tr("Parameters with at least this Kolmogorov-Smirnov statistic D count as different"),
      ThresholdBox::Steps::equal);
  ksThreshold->setSingleStep(0.05);
  const int row = layout->rowCount();
  addLabelled(layout, row, 0, tr("Adjusted p \u2264"), pThreshold);
  addLabelled(layout, row, 1, tr("D \u2265"), ksThreshold);
  const auto writeTo = [this](ThresholdBox* box, double ComparisonChoice::*value)
  {
    connect(box, QOverload<double>::of(&ThresholdBox::valueChanged), this,
            [this, value](double entered)
            {
              chosen.*value = entered;
              emit choiceChanged();
            });
  };
  writeTo(pThreshold, &ComparisonChoice::pThreshold);
  writeTo(ksThreshold, &ComparisonChoice::ksThreshold);
}

void ComparisonSettings::addSwitches(QGridLayout* layout)
{
  density = makeSwitch("density", tr("D&ensities"),
                       tr("Densities instead of empirical distribution functions (ECDF)"));
  commonDensityScale = makeSwitch("commonDensityScale", tr("Common density scale"),
                                  tr("The same scale for the densities of all parameters"));
  logParameterAxes = makeSwitch("logParameterAxes", tr("Logarithmic parameters"),
                                tr("Logarithmic parameter axes, where all values are positive"));
  bands = makeSwitch("quartileBands", tr("Quartile bands"),
                     tr("Range, quartiles and median of all runs; of the runs themselves only the "
                        "selected ones"));
  const int row = layout->rowCount();
  layout->addWidget(density, row, 0);
  layout->addWidget(commonDensityScale, row, 1);
  layout->addWidget(bands, row + 1, 0);
  layout->addWidget(logParameterAxes, row + 1, 1);
  writeSwitch(density, &ComparisonChoice::density);
  writeSwitch(commonDensityScale, &ComparisonChoice::commonDensityScale);
  writeSwitch(logParameterAxes, &ComparisonChoice::logParameterAxes);
  writeSwitch(bands, &ComparisonChoice::bands);
}

void ComparisonSettings::writeSwitch(QCheckBox* box, bool ComparisonChoice::*value)
{
  connect(box, &QCheckBox::toggled, this,
          [this, value](bool on)
          {
            chosen.*value = on;
            emit choiceChanged();
          });
}

void ComparisonSettings::addHalves(QGridLayout* layout)
{
  halves = makeSwitch("halves", tr("Chec&k in halves"),
                      tr("The honest check of what was found by looking: split the parameter sets "
                         "at random, keep what differs in one half, and test that in the other"));
  seed = new SeedBox;
  design = new DesignBox;
  const int row = layout->rowCount();
  layout->addWidget(halves, row, 0);
  layout->addWidget(seed, row, 1);
  layout->addWidget(design, row + 1, 0, 1, 2);
  connect(design, &DesignBox::designChanged, this,
          [this]
          {
            chosen.design = design->design();
            emit choiceChanged();
          });
  writeSwitch(halves, &ComparisonChoice::halves);
  connect(seed, &SeedBox::seedChanged, this,
          [this](std::uint64_t drawn)
          {
            chosen.seed = drawn;
            emit choiceChanged();
          });
}

void ComparisonSettings::addSides(QGridLayout* layout)
{
  sides = new SideBoxes;
  layout->addWidget(sides, layout->rowCount(), 0, 1, 2);
  connect(sides, &SideBoxes::sidesChanged, this,
          [this](const std::string& compared, const std::string& with)
          {
            chosen.compared = compared;
            chosen.comparedWith = with;
            emit choiceChanged();
          });
}

void ComparisonSettings::setKept(const std::vector<NamedSide>& kept)
{
  sides->setKept(kept);
}

void ComparisonSettings::setPermutes(bool permutes)
{
  drawsUnits = permutes;
  enableControls();
}

void ComparisonSettings::setChoice(const ComparisonChoice& choice, plotStyles style,
                                   bool parameters)
{
  chosen = choice;
  showValue(pThreshold, choice.pThreshold);
  showValue(ksThreshold, choice.ksThreshold);
  showState(density, choice.density);
  showState(commonDensityScale, choice.commonDensityScale);
  showState(logParameterAxes, choice.logParameterAxes);
  showState(bands, choice.bands);
  showState(halves, choice.halves);
  sides->setSides(choice.compared, choice.comparedWith);
  seed->setSeed(choice.seed);
  design->setDesign(choice.design);
  showEntry(comparedBy, static_cast<int>(choice.comparedBy));
  showEntry(adjustment, static_cast<int>(choice.adjustment));
  shownStyle = style;
  hasParameters = parameters;
  enableControls();
}

void ComparisonSettings::enableControls()
{
  showState(distributions, hasParameters && shownStyle == selectionCdfPlot);
  showState(pairs, hasParameters && shownStyle == multiPlot);
  // The table of results shows the tests, and what meets the thresholds, in every style.
  for (QWidget* control :
       std::initializer_list<QWidget*>{distributions, pairs, comparedBy, adjustment, pThreshold,
                                       ksThreshold, halves, sides, design})
    control->setEnabled(hasParameters);
  seed->setEnabled(hasParameters &&
                   (drawsUnits || chosen.halves || chosen.adjustment == stats::Adjustment::maxT));
  const ViewerStyle& style = viewerStyle(shownStyle);
  const bool hasCurves = hasParameters && style.showsDistributions;
  density->setEnabled(hasCurves);
  commonDensityScale->setEnabled(hasCurves && density->isChecked());
  bands->setEnabled(hasCurves);
  logParameterAxes->setEnabled(hasParameters && style.comparesRuns);
}

} // namespace Talmesh::app
