#include "app/comparison/SideBoxes.h"

#include "app/comparison/ComparisonChoice.h"
#include "plot/DistributionGroup.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPixmap>
#include <QSignalBlocker>

namespace Talmesh::app
{

namespace
{

/// A box shows the beginning and the end of longer names; its list and its tool tip have all.
constexpr int charactersOfAName = 10;

QIcon swatch(const QColor& colour)
{
  QPixmap square(12, 12);
  square.fill(colour);
  return square;
}

QColor colourOf(const std::array<unsigned char, 3>& color)
{
  return {color[0], color[1], color[2]};
}

std::string nameIn(const QComboBox& box)
{
  return box.currentData().toString().toStdString();
}

/// The first entry stands for what has no name.
void showName(QComboBox& box, const std::string& name)
{
  const QSignalBlocker silent(box);
  const int found = box.findData(QString::fromStdString(name));
  box.setCurrentIndex(found < 0 ? 0 : found);
  box.setToolTip(box.currentText());
}

} // namespace

SideBoxes::SideBoxes(QWidget* parent)
    : QWidget(parent)
    , compared(makeBox("comparedSide", tr("The runs that are compared")))
    , with(makeBox("comparedWith", tr("The runs that they are compared with")))
{
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  auto* label = new QLabel(tr("with", "between two selections that are compared"));
  label->setBuddy(with);
  grid->addWidget(compared, 0, 0);
  grid->addWidget(label, 0, 1);
  grid->addWidget(with, 0, 2);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(2, 1);
  offer();
}

QComboBox* SideBoxes::makeBox(const char* name, const QString& toolTip)
{
  auto* box = new QComboBox;
  box->setObjectName(QLatin1String(name));
  box->setAccessibleName(toolTip);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(charactersOfAName);
  box->view()->setTextElideMode(Qt::ElideMiddle);
  connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
          [this] { emit sidesChanged(nameIn(*compared), nameIn(*with)); });
  return box;
}

void SideBoxes::setKept(const std::vector<NamedSide>& kept)
{
  // A list that is open would close.
  if (kept == offered)
    return;
  offered = kept;
  offer();
}

void SideBoxes::offer()
{
  const auto fill = [this](QComboBox& box, const QString& first)
  {
    const QSignalBlocker silent(box);
    const std::string shown = nameIn(box);
    box.clear();
    box.addItem(first, QString());
    for (const NamedSide& side : offered)
    {
      const QString name = QString::fromStdString(side.name);
      box.addItem(swatch(side.colour), name, name);
      box.setItemData(box.count() - 1, name, Qt::ToolTipRole);
    }
    showName(box, shown);
  };
  fill(*compared, tr("Present selection"));
  fill(*with, tr("The others"));
  compared->setItemIcon(0, swatch(colourOf(colorOfSelectedRuns)));
  colourFirst();
}

void SideBoxes::setSides(const std::string& first, const std::string& second)
{
  showName(*compared, first);
  showName(*with, second);
  colourFirst();
}

/// The others of a kept selection are not drawn in a colour that it may have itself.
void SideBoxes::colourFirst()
{
  const bool isPresent = compared->currentIndex() == 0;
  with->setItemIcon(0, swatch(isPresent ? colourOf(colorOfOtherRuns) : colourOf(colorOfRest)));
}

} // namespace Talmesh::app
