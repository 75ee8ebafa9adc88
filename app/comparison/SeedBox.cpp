#include "app/comparison/SeedBox.h"

#include "app/comparison/ComparisonChoice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRandomGenerator>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>

namespace Talmesh::app
{

SeedBox::SeedBox(QWidget* parent)
    : QWidget(parent)
    , box(new QSpinBox)
{
  const QString tip = tr("What is drawn at random follows from this number: the halves, and the "
                         "permutations. The same one gives the same result on every machine");
  setToolTip(tip);
  box->setObjectName(QStringLiteral("seed"));
  box->setRange(1, static_cast<int>(largestSeed));
  box->setKeyboardTracking(false);
  auto* label = new QLabel(tr("Seed"));
  label->setBuddy(box);
  auto* anew = new QToolButton;
  anew->setObjectName(QStringLiteral("drawSeed"));
  anew->setText(tr("Draw anew"));
  anew->setToolTip(tr("Draw other halves and other permutations"));
  anew->setFocusPolicy(Qt::StrongFocus);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(label);
  layout->addWidget(box, 1);
  layout->addWidget(anew);
  // Room for a drawn one, not for the largest there is.
  box->setMinimumWidth(box->fontMetrics().horizontalAdvance(QStringLiteral("00000")));
  connect(anew, &QToolButton::clicked, this, &SeedBox::drawAnew);
  connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this,
          [this](int seed) { emit seedChanged(static_cast<std::uint64_t>(seed)); });
}

void SeedBox::setSeed(std::uint64_t seed)
{
  const QSignalBlocker silent(box);
  // Showing a value rewrites the text, which the user may be typing.
  if (box->value() != static_cast<int>(seed))
    box->setValue(static_cast<int>(seed));
}

/// Short, to be read out and typed elsewhere, and never the one that is there.
void SeedBox::drawAnew()
{
  constexpr int mostDrawn = 9999;
  int seed = box->value();
  while (seed == box->value())
    seed = QRandomGenerator::global()->bounded(1, mostDrawn + 1);
  box->setValue(seed);
}

} // namespace Talmesh::app
