#include "app/ExportDialog.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSettings>
#include <QSpinBox>

#include <algorithm>
#include <initializer_list>

namespace Talmesh::app
{

namespace
{

/// A page of most journals is so wide between its margins.
constexpr double usualWidth = 180.0;
constexpr double smallestSide = 20.0;
constexpr double largestSide = 1200.0;
/// A picture with more pixels on a side takes more memory than a figure is worth.
constexpr int mostPixels = 20000;

const QString settingsGroup = QStringLiteral("export");

QDoubleSpinBox* makeSide(const char* name, QWidget* switchedBy)
{
  auto* box = new QDoubleSpinBox;
  box->setObjectName(QLatin1String(name));
  box->setRange(smallestSide, largestSide);
  box->setDecimals(1);
  box->setSuffix(QStringLiteral(" mm"));
  QObject::connect(static_cast<QRadioButton*>(switchedBy), &QRadioButton::toggled, box,
                   &QWidget::setEnabled);
  return box;
}

} // namespace

ExportDialog::ExportDialog(bool pixels, const QSize& screen, QWidget* parent)
    : QDialog(parent)
    , inPixels(pixels)
    , asOnScreen(new QRadioButton(tr("As on the &screen")))
    , onPaper(new QRadioButton(tr("Of a size on &paper, with text of 12 points")))
    , width(makeSide("exportWidth", onPaper))
    , height(makeSide("exportHeight", onPaper))
    , resolution(new QSpinBox)
    , pixelSize(new QLabel)
{
  setWindowTitle(tr("Size of the picture"));
  setObjectName(QStringLiteral("exportDialog"));
  asOnScreen->setObjectName(QStringLiteral("asOnScreen"));
  onPaper->setObjectName(QStringLiteral("onPaper"));
  resolution->setObjectName(QStringLiteral("exportResolution"));
  resolution->setRange(72, 1200);
  resolution->setSuffix(tr(" dpi"));
  connect(onPaper, &QRadioButton::toggled, resolution, &QWidget::setEnabled);

  auto* layout = new QFormLayout(this);
  layout->addRow(asOnScreen);
  layout->addRow(onPaper);
  layout->addRow(tr("&Width"), width);
  layout->addRow(tr("&Height"), height);
  layout->addRow(tr("&Resolution"), resolution);
  layout->addRow(tr("Pixels"), pixelSize);
  for (QWidget* field : std::initializer_list<QWidget*>{resolution, pixelSize})
  {
    field->setVisible(inPixels);
    layout->labelForField(field)->setVisible(inPixels);
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
  buttons->setObjectName(QStringLiteral("exportButtons"));
  layout->addRow(buttons);
  connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);
  for (QDoubleSpinBox* side : {width, height})
    connect(side, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &ExportDialog::showPixels);
  connect(resolution, QOverload<int>::of(&QSpinBox::valueChanged), this, &ExportDialog::showPixels);
  connect(onPaper, &QRadioButton::toggled, this, &ExportDialog::showPixels);
  restore(screen);
}

void ExportDialog::restore(const QSize& screen)
{
  const double ratio = static_cast<double>(screen.height()) / std::max(screen.width(), 1);
  QSettings settings;
  settings.beginGroup(settingsGroup);
  width->setValue(settings.value(QStringLiteral("width"), usualWidth).toDouble());
  height->setValue(settings.value(QStringLiteral("height"), width->value() * ratio).toDouble());
  resolution->setValue(settings.value(QStringLiteral("resolution"), 300).toInt());
  const bool paperLast = settings.value(QStringLiteral("onPaper"), true).toBool();
  (paperLast ? onPaper : asOnScreen)->setChecked(true);
  for (QWidget* field : std::initializer_list<QWidget*>{width, height, resolution})
    field->setEnabled(paperLast);
  showPixels();
}

void ExportDialog::showPixels()
{
  const std::optional<PaperSize> chosen = paper();
  const QSize pixels = chosen ? pixelsOn(*chosen) : QSize();
  pixelSize->setText(
      chosen ? QStringLiteral("%1 \u00d7 %2").arg(pixels.width()).arg(pixels.height()) : QString());
  const bool tooLarge = inPixels && std::max(pixels.width(), pixels.height()) > mostPixels;
  if (tooLarge)
    pixelSize->setText(tr("more than %1 on a side").arg(mostPixels));
  if (auto* buttons = findChild<QDialogButtonBox*>())
    buttons->button(QDialogButtonBox::Save)->setEnabled(!tooLarge);
}

std::optional<PaperSize> ExportDialog::paper() const
{
  if (asOnScreen->isChecked())
    return {};
  return PaperSize{QSizeF(width->value(), height->value()), resolution->value()};
}

void ExportDialog::accept()
{
  QSettings settings;
  settings.beginGroup(settingsGroup);
  settings.setValue(QStringLiteral("onPaper"), onPaper->isChecked());
  settings.setValue(QStringLiteral("width"), width->value());
  settings.setValue(QStringLiteral("height"), height->value());
  if (inPixels)
    settings.setValue(QStringLiteral("resolution"), resolution->value());
  QDialog::accept();
}

} // namespace Talmesh::app
