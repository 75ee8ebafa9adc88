#ifndef PanelParts_h
#define PanelParts_h

#include <QIcon>
#include <QList>

class QAction;
class QColor;
class QLabel;
class QWidget;

namespace Talmesh::app
{

/// A square of one colour, which it keeps in a row that is selected.
QIcon swatch(const QColor& colour, int size);

/// A button for each action, one above the other, as wide as the widest of them.
QWidget* makeButtonColumn(const QList<QAction*>& steps);

/// A text in the middle of a panel that says why it is empty.
QLabel* makeExplanation(const QString& text);

} // namespace Talmesh::app

#endif
