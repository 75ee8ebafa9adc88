#ifndef TableExport_h
#define TableExport_h

#include <QString>

class PlotContainer;

/// Writes the container's whole table to `fileName` as comma-separated text.
/// @return whether the file holds all of it afterwards
bool exportTable(PlotContainer& container, const QString& fileName);

#endif
