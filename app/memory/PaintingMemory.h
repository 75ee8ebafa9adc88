#ifndef PaintingMemory_h
#define PaintingMemory_h

#include <QSize>

#include <cstddef>
#include <string>

class PlotContainer;

namespace Talmesh::app
{

/// The bytes that painting what a container shows takes at least, beyond those of its table. What a
/// graphics driver needs besides is unknown; most end a program that they find without memory.
std::size_t memoryToPaint(const PlotContainer& container, const QSize& pixels);

/// The bytes that drawing a container anew, and painting it into its scene, takes at least: also
/// those of the tables that are made for a chart.
std::size_t memoryToDraw(const PlotContainer& container);

/// What to say when the system has less (see hasMemory()).
std::string missingMemory();

} // namespace Talmesh::app

#endif
