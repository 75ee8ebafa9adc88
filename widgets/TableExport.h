#ifndef TableExport_h
#define TableExport_h

#include <QString>

class PlotContainer;

/// Writes the container's whole table to `fileName` as comma-separated text. An older file stays
/// whole until the new one is, where its folder takes new files.
/// @return whether the file holds all of it afterwards
bool exportTable(PlotContainer& container, const QString& fileName);

#endif
