#include "app/export/ExportDialog.h"

#include <QComboBox>
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

const QString settingsGroup = QStringLiteral("export");

QDoubleSpinBox* makeSide(const char* name)
{
  auto* box = new QDoubleSpinBox;
  box->setObjectName(QLatin1String(name));
  box->setRange(PaperSize::smallestSide, PaperSize::largestSide);
  box->setDecimals(1);
  box->setSuffix(QStringLiteral(" mm"));
  return box;
}

QSpinBox* makeResolution(const char* name)
{
  auto* box = new QSpinBox;
  box->setObjectName(QLatin1String(name));
  box->setRange(PaperSize::smallestResolution, PaperSize::largestResolution);
  box->setSuffix(ExportDialog::tr(" dpi"));
  return box;
}

/// Its smallest value stands for the usual size.
QSpinBox* makeTextSize()
{
  auto* box = new QSpinBox;
  box->setObjectName(QStringLiteral("exportTextSize"));
  box->setRange(PaperSize::smallestText - 1, PaperSize::largestText);
  box->setSuffix(ExportDialog::tr(" pt"));
  return box;
}

} // namespace

ExportDialog::ExportDialog(std::optional<int> most, const QSize& screen, QWidget* parent)
    : QDialog(parent)
    , mostOnASide(most)
    , asOnScreen(new QRadioButton(tr("As on the &screen")))
    , onPaper(new QRadioButton(tr("Of a size on &paper")))
    , width(makeSide("exportWidth"))
    , height(makeSide("exportHeight"))
    , text(makeTextSize())
    , resolution(makeResolution("exportResolution"))
    , pictureResolution(makeResolution("exportPictureResolution"))
    , shapes(new QComboBox)
    , pixelSize(new QLabel)
    , buttons(new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel))
{
  setWindowTitle(tr("Size of the picture"));
  setObjectName(QStringLiteral("exportDialog"));
  asOnScreen->setObjectName(QStringLiteral("asOnScreen"));
  onPaper->setObjectName(QStringLiteral("onPaper"));
  buttons->setObjectName(QStringLiteral("exportButtons"));
  pixelSize->setObjectName(QStringLiteral("exportPixels"));
  shapes->setObjectName(QStringLiteral("exportVectors"));
  shapes->addItem(tr("As vectors, many as a picture"), static_cast<int>(Vectors::Auto));
  shapes->addItem(tr("All as vectors"), static_cast<int>(Vectors::All));
  shapes->addItem(tr("As a picture"), static_cast<int>(Vectors::None));
  layOut();
  connectFields();
  restore(screen);
}

void ExportDialog::layOut()
{
  auto* layout = new QFormLayout(this);
  layout->addRow(asOnScreen);
  layout->addRow(onPaper);
  layout->addRow(tr("&Width"), width);
  layout->addRow(tr("&Height"), height);
  layout->addRow(tr("&Text"), text);
  layout->addRow(tr("&Resolution"), resolution);
  layout->addRow(tr("Pixels"), pixelSize);
  layout->addRow(tr("&Lines and points"), shapes);
  layout->addRow(tr("R&esolution of pictures"), pictureResolution);
  const auto show = [layout](std::initializer_list<QWidget*> fields, bool shown)
  {
    for (QWidget* field : fields)
    {
      field->setVisible(shown);
      layout->labelForField(field)->setVisible(shown);
    }
  };
  show({resolution, pixelSize}, mostOnASide.has_value());
  show({shapes, pictureResolution}, !mostOnASide);
  layout->addRow(buttons);
}

void ExportDialog::connectFields()
{
  connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);
  for (QDoubleSpinBox* side : {width, height})
    connect(side, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &ExportDialog::showPixels);
  connect(resolution, QOverload<int>::of(&QSpinBox::valueChanged), this, &ExportDialog::showPixels);
  connect(width, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
          &ExportDialog::showTextSize);
  for (QWidget* field : std::initializer_list<QWidget*>{width, height, text, resolution})
    connect(onPaper, &QRadioButton::toggled, field, &QWidget::setEnabled);
  connect(onPaper, &QRadioButton::toggled, this, &ExportDialog::showPixels);
}

void ExportDialog::restore(const QSize& screen)
{
  const double ratio = static_cast<double>(screen.height()) / std::max(screen.width(), 1);
  QSettings settings;
  settings.beginGroup(settingsGroup);
  width->setValue(settings.value(QStringLiteral("width"), usualWidth).toDouble());
  height->setValue(settings.value(QStringLiteral("height"), width->value() * ratio).toDouble());
  showTextSize();
  text->setValue(settings.value(QStringLiteral("textSize"), text->minimum()).toInt());
  resolution->setValue(settings.value(QStringLiteral("resolution"), 300).toInt());
  const auto found = [this](const QVariant& choice)
  { return std::max(shapes->findData(choice), 0); };
  pictureResolution->setValue(settings.value(QStringLiteral("pictureResolution"), 300).toInt());
  shapes->setCurrentIndex(found(settings.value(QStringLiteral("vectors"))));
  const bool paperLast = settings.value(QStringLiteral("onPaper"), true).toBool();
  (paperLast ? onPaper : asOnScreen)->setChecked(true);
  for (QWidget* field : std::initializer_list<QWidget*>{width, height, text, resolution})
    field->setEnabled(paperLast);
  showPixels();
}

void ExportDialog::showPixels()
{
  const std::optional<PaperSize> chosen = paper();
  const QSize pixels = chosen ? pixelsOn(*chosen) : QSize();
  pixelSize->setText(
      chosen ? QStringLiteral("%1 \u00d7 %2").arg(pixels.width()).arg(pixels.height()) : QString());
  const std::string error = chosen ? errorOf(*chosen, mostOnASide) : std::string();
  if (!error.empty())
    pixelSize->setText(QString::fromStdString(error));
  buttons->button(QDialogButtonBox::Save)->setEnabled(error.empty());
}

void ExportDialog::showTextSize()
{
  text->setSpecialValueText(tr("%1 pt for this width").arg(usualTextSize(width->value())));
}

std::optional<int> ExportDialog::textSize() const
{
  return asOnScreen->isChecked() || text->value() == text->minimum()
             ? std::nullopt
             : std::optional<int>(text->value());
}

std::optional<PaperSize> ExportDialog::paper() const
{
  if (asOnScreen->isChecked())
    return {};
  return PaperSize{QSizeF(width->value(), height->value()), dotsPerInch()};
}

int ExportDialog::dotsPerInch() const
{
  return (mostOnASide ? resolution : pictureResolution)->value();
}

Vectors ExportDialog::vectors() const
{
  return static_cast<Vectors>(shapes->currentData().toInt());
}

void ExportDialog::accept()
{
  QSettings settings;
  settings.beginGroup(settingsGroup);
  settings.setValue(QStringLiteral("onPaper"), onPaper->isChecked());
  settings.setValue(QStringLiteral("width"), width->value());
  settings.setValue(QStringLiteral("height"), height->value());
  settings.setValue(QStringLiteral("textSize"), text->value());
  if (mostOnASide)
  {
    settings.setValue(QStringLiteral("resolution"), resolution->value());
  }
  else
  {
    settings.setValue(QStringLiteral("vectors"), shapes->currentData());
    settings.setValue(QStringLiteral("pictureResolution"), pictureResolution->value());
  }
  QDialog::accept();
}

} // namespace Talmesh::app
