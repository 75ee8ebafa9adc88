#ifndef ComparisonControls_h
#define ComparisonControls_h

#include "app/comparison/TestNames.h"
#include "app/comparison/ThresholdBox.h"

#include <QList>
#include <QString>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QGridLayout;

/// Controls with a name by which they are found, and how they show a value without emitting
/// anything.
namespace Talmesh::app
{

ThresholdBox* makeThreshold(const char* name, const QString& toolTip, ThresholdBox::Steps steps);
QCheckBox* makeSwitch(const char* name, const QString& text, const QString& toolTip);
/// The entries are the values of an enumeration, in its order.
QComboBox* makeChoiceBox(const char* name, const QString& toolTip,
                         const QList<ChoiceName>& entries);
/// A short label and its field, in one cell.
void addLabelled(QGridLayout* layout, int row, int column, const QString& text, QWidget* field);

void showValue(ThresholdBox* box, double value);
void showEntry(QComboBox* box, int entry);
void showState(QAbstractButton* button, bool on);

} // namespace Talmesh::app

#endif
