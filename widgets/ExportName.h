#ifndef ExportName_h
#define ExportName_h

#include <QString>

/// The prefix under which a PDF is written so that the file, prefix and ".pdf", gets the name that
/// was asked for: `fileName` without its last ".pdf", unless that starts at position 0 or 1.
QString exportPrefix(const QString& fileName);

#endif
