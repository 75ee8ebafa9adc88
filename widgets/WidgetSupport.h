#ifndef WidgetSupport_h
#define WidgetSupport_h

#include <QFileDialog>

class QGroupBox;

/// Options of the library's file dialogs: none, so that the platform's own dialogs are used.
inline QFileDialog::Options getFileDialogOption()
{
  return {};
}

/// Does nothing here. It marks the group boxes that another platform's Qt draws wrongly.
inline void QT_BUG_26351_WORKAROUND(QGroupBox*) {}

#endif
