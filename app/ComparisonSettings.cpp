#include "app/ComparisonSettings.h"

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>

#include <initializer_list>

namespace Talmesh::app
{

namespace
{

QDoubleSpinBox* makeThreshold(const char* name, const QString& toolTip, int decimals, double step)
{
  auto* box = new QDoubleSpinBox;
  box->setObjectName(QLatin1String(name));
  box->setToolTip(toolTip);
  box->setRange(0.0, 1.0);
  box->setDecimals(decimals);
  box->setSingleStep(step);
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

/// Shows a value that the spin box cannot write out without making it another one.
void showValue(QDoubleSpinBox* box, double value)
{
  const QSignalBlocker silent(box);
  // A value that the user is typing would lose its last digits.
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
      "pThreshold", tr("Parameters with at most this p count as different and are shown first"), 4,
      0.01);
  pThreshold->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
  ksThreshold = makeThreshold(
      "ksThreshold",
      tr("Parameters with at least this Kolmogorov-Smirnov statistic D count as different"), 3,
      0.05);
  addLabelled(layout, tr("Largest p"), pThreshold);
  addLabelled(layout, tr("Smallest D"), ksThreshold);
  for (QDoubleSpinBox* box : {pThreshold, ksThreshold})
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &ComparisonSettings::choiceChanged);
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
  for (QCheckBox* box : {density, commonDensityScale, logParameterAxes, bands})
    connect(box, &QCheckBox::toggled, this, &ComparisonSettings::choiceChanged);
}

void ComparisonSettings::setChoice(const ComparisonChoice& choice, plotStyles style,
                                   bool parameters)
{
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

ComparisonChoice ComparisonSettings::choice() const
{
  ComparisonChoice choice;
  choice.pThreshold = pThreshold->value();
  choice.ksThreshold = ksThreshold->value();
  choice.density = density->isChecked();
  choice.commonDensityScale = commonDensityScale->isChecked();
  choice.logParameterAxes = logParameterAxes->isChecked();
  choice.bands = bands->isChecked();
  return choice;
}

void ComparisonSettings::enableControls()
{
  const bool distributionsShown = hasParameters && shownStyle == selectionCdfPlot;
  showState(distributions, distributionsShown);
  showState(pairs, hasParameters && shownStyle == multiPlot);
  // The thresholds also say what the table of results calls significant, in every style.
  for (QWidget* control :
       std::initializer_list<QWidget*>{distributions, pairs, pThreshold, ksThreshold})
    control->setEnabled(hasParameters);
  density->setEnabled(distributionsShown);
  commonDensityScale->setEnabled(distributionsShown && density->isChecked());
  bands->setEnabled(distributionsShown);
  logParameterAxes->setEnabled(
      distributionsShown ||
      (hasParameters && (shownStyle == multiPlot || shownStyle == fitParameterDistribution)));
}

} // namespace Talmesh::app
