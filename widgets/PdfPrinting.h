#ifndef PdfPrinting_h
#define PdfPrinting_h

#include <QString>

class VtkPlotWidget;

/// Writes what `widget` shows, whose OpenGL context is current, with VTK's own exporter: every line
/// of every run as a vector.
void printPdf(VtkPlotWidget& widget, const QString& fileName);

/// The prefix under which a PDF is written so that the file, prefix and ".pdf", gets the name that
/// was asked for: `fileName` without its last ".pdf", unless that starts at position 0 or 1.
QString exportPrefix(const QString& fileName);

#endif
