#include "app/comparison/DesignBox.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSpinBox>

namespace Talmesh::app
{

namespace
{

/// More parameters than any such design has.
constexpr int mostParameters = 9999;

} // namespace

DesignBox::DesignBox(QWidget* parent)
    : QWidget(parent)
    , saltelli(new QCheckBox(tr("Saltelli design")))
    , parameters(new QSpinBox)
{
  setToolTip(tr("The parameter sets are known to be a Saltelli design, for Sobol indices: k + 2 or "
                "2 k + 2 runs for each base sample, which are not independent. Without this, such "
                "a design is recognised by its values"));
  saltelli->setObjectName(QStringLiteral("saltelliDesign"));
  parameters->setObjectName(QStringLiteral("designedParameters"));
  parameters->setRange(0, mostParameters);
  parameters->setPrefix(QStringLiteral("k = "));
  parameters->setSpecialValueText(tr("k: all that vary"));
  parameters->setKeyboardTracking(false);
  parameters->setEnabled(false);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(saltelli);
  layout->addWidget(parameters, 1);
  connect(saltelli, &QCheckBox::toggled, this,
          [this](bool on)
          {
            parameters->setEnabled(on);
            emit designChanged();
          });
  connect(parameters, QOverload<int>::of(&QSpinBox::valueChanged), this, &DesignBox::designChanged);
}

void DesignBox::setDesign(const stats::KnownDesign& design)
{
  const QSignalBlocker silentSwitch(saltelli);
  const QSignalBlocker silentNumber(parameters);
  saltelli->setChecked(design.isSaltelli);
  parameters->setEnabled(design.isSaltelli);
  // Showing a value rewrites the text, which the user may be typing.
  if (const auto shown = static_cast<int>(design.parameters); parameters->value() != shown)
    parameters->setValue(shown);
}

stats::KnownDesign DesignBox::design() const
{
  return {saltelli->isChecked(), static_cast<std::size_t>(parameters->value())};
}

} // namespace Talmesh::app
