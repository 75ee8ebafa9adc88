#include "app/window/StudyDock.h"

#include "app/document/OwnChart.h"

#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace Talmesh::app
{

StudyDock::StudyDock(QWidget* parent)
    : QDockWidget(tr("Study"), parent)
    , description(new QLabel)
    , variantLabel(new QLabel)
    , variants(new QComboBox)
{
  setObjectName(QStringLiteral("studyDock"));
  description->setObjectName(QStringLiteral("studyDescription"));
  description->setWordWrap(true);
  description->setTextFormat(Qt::PlainText);
  variants->setObjectName(QStringLiteral("studyVariant"));
  variants->setToolTip(tr("Choose what the chart shows"));
  variantLabel->setBuddy(variants);
  auto* panel = new QWidget;
  auto* layout = new QVBoxLayout(panel);
  layout->addWidget(description);
  layout->addWidget(variantLabel);
  layout->addWidget(variants);
  layout->addStretch();
  setWidget(panel);
  connect(variants, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          &StudyDock::variantChanged);
}

void StudyDock::setChart(const OwnChart& chart)
{
  const QSignalBlocker silent(variants);
  description->setText(QString::fromStdString(chart.description));
  variantLabel->setText(QString::fromStdString(chart.variantLabel));
  variants->clear();
  for (const std::string& variant : chart.variants)
    variants->addItem(QString::fromStdString(variant));
  variants->setCurrentIndex(chart.firstVariant);
  variants->setVisible(!chart.variants.empty());
  variantLabel->setVisible(!chart.variants.empty());
}

int StudyDock::variant() const
{
  return std::max(0, variants->currentIndex());
}

} // namespace Talmesh::app
