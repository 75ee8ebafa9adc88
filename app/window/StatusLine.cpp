#include "app/window/StatusLine.h"

#include "app/window/TaskBar.h"

#include <QLabel>
#include <QStatusBar>

namespace Talmesh::app
{

namespace
{

constexpr int noteMilliseconds = 10000;

} // namespace

StatusLine::StatusLine(QStatusBar& bar)
    : line(bar)
    , openingBar(new TaskBar)
    , searchingBar(new TaskBar)
    , featureBar(new TaskBar)
    , groupingBar(new TaskBar)
    , comparingBar(new TaskBar)
    , exportingBar(new TaskBar)
    , selectedLabel(new QLabel)
    , sizeLabel(new QLabel)
{
  sizeLabel->setObjectName(QStringLiteral("studySize"));
  selectedLabel->setObjectName(QStringLiteral("selectionSize"));
  const std::initializer_list<QWidget*> widgets = {openingBar,    searchingBar, featureBar,
                                                   groupingBar,   comparingBar, exportingBar,
                                                   selectedLabel, sizeLabel};
  for (QWidget* widget : widgets)
  {
    line.addPermanentWidget(widget);
    // A status bar shows what is added to it.
    widget->setVisible(widget == selectedLabel || widget == sizeLabel);
  }
}

void StatusLine::say(const QString& message)
{
  line.showMessage(message, noteMilliseconds);
}

void StatusLine::tell(const QString& message)
{
  line.showMessage(message);
}

void StatusLine::clear()
{
  line.clearMessage();
}

void StatusLine::setSelection(const QString& text)
{
  selectedLabel->setText(text);
}

void StatusLine::setSize(const QString& text)
{
  sizeLabel->setText(text);
}

QString StatusLine::selection() const
{
  return selectedLabel->text();
}

QString StatusLine::size() const
{
  return sizeLabel->text();
}

} // namespace Talmesh::app
