#ifndef PaintingMemory_h
#define PaintingMemory_h

#include <QSize>

#include <cstddef>

class PlotContainer;

namespace Talmesh::app
{

/// The bytes that painting what a container shows takes at least, beyond those of its table. What a
/// graphics driver needs besides is unknown; most end a program that they find without memory.
std::size_t memoryToPaint(const PlotContainer& container, const QSize& pixels);

/// Whether the system would give that many bytes now.
bool hasMemory(std::size_t bytes);

} // namespace Talmesh::app

#endif
