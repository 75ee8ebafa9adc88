#include "app/comparison/ComparisonSettings.h"

#include "app/comparison/ThresholdBox.h"
#include "app/styles/ViewerStyles.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>

#include <initializer_list>

namespace Talmesh::app
{

namespace
{

ThresholdBox* makeThreshold(const char* name, const QString& toolTip, ThresholdBox::Steps steps)
{
  auto* box = new ThresholdBox(steps);
  box->setObjectName(QLatin1String(name));
  box->setToolTip(toolTip);
  return box;
}

QCheckBox* makeSwitch(const char* name, const QString& text, const QString& toolTip)
{
  auto* box = new QCheckBox(text);
  box->setObjectName(QLatin1String(name));
  box->setToolTip(toolTip);
  return box;
}

void addLabelled(QGridLayout* layout, const QString& text, QWidget* field)
{
  const int row = layout->rowCount();
  auto* label = new QLabel(text);
  label->setBuddy(field);
  label->setToolTip(field->toolTip());
  layout->addWidget(label, row, 0);
  layout->addWidget(field, row, 1);
}

void showValue(ThresholdBox* box, double value)
{
  const QSignalBlocker silent(box);
  // Showing a value rewrites the text, which the user may be typing: 0.00 on the way to 0.001.
  if (box->value() != value)
    box->setValue(value);
}

void showState(QAbstractButton* button, bool on)
{
  const QSignalBlocker silent(button);
  button->setChecked(on);
}

} // namespace

ComparisonSettings::ComparisonSettings(QWidget* parent)
    : QWidget(parent)
{
  auto* layout = new QGridLayout(this);
  layout->setVerticalSpacing(layout->verticalSpacing() / 2);
  addPages(layout);
  addThresholds(layout);
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

void ComparisonSettings::addThresholds(QGridLayout* layout)
{
  pThreshold = makeThreshold(
      "pThreshold", tr("Parameters with at most this p count as different and are shown first"),
      ThresholdBox::Steps::relative);
  ksThreshold = makeThreshold(
      "ksThreshold",
      tr("Parameters with at least this Kolmogorov-Smirnov statistic D count as different"),
      ThresholdBox::Steps::equal);
  ksThreshold->setSingleStep(0.05);
  addLabelled(layout, tr("Largest p"), pThreshold);
  addLabelled(layout, tr("Smallest D"), ksThreshold);
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
  const auto writeTo = [this](QCheckBox* box, bool ComparisonChoice::*value)
  {
    connect(box, &QCheckBox::toggled, this,
            [this, value](bool on)
            {
              chosen.*value = on;
              emit choiceChanged();
            });
  };
  writeTo(density, &ComparisonChoice::density);
  writeTo(commonDensityScale, &ComparisonChoice::commonDensityScale);
  writeTo(logParameterAxes, &ComparisonChoice::logParameterAxes);
  writeTo(bands, &ComparisonChoice::bands);
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
  shownStyle = style;
  hasParameters = parameters;
  enableControls();
}

void ComparisonSettings::enableControls()
{
  showState(distributions, hasParameters && shownStyle == selectionCdfPlot);
  showState(pairs, hasParameters && shownStyle == multiPlot);
  // The thresholds also say what the table of results calls significant, in every style.
  for (QWidget* control :
       std::initializer_list<QWidget*>{distributions, pairs, pThreshold, ksThreshold})
    control->setEnabled(hasParameters);
  const ViewerStyle& style = viewerStyle(shownStyle);
  const bool hasCurves = hasParameters && style.showsDistributions;
  density->setEnabled(hasCurves);
  commonDensityScale->setEnabled(hasCurves && density->isChecked());
  bands->setEnabled(hasCurves);
  logParameterAxes->setEnabled(hasParameters && style.comparesRuns);
}

} // namespace Talmesh::app
