#ifndef KeptMemory_h
#define KeptMemory_h

#include <vtkType.h>

class vtkDataArray;

namespace Talmesh
{
/// While there is one, memory of large columns made with giveRoom() that nobody uses any more waits
/// for the next of them, instead of going back to the system: new pages cost more than what is
/// written to them. What still waits when the last one ends is freed.
///
/// A column gives its memory up when it is destroyed or resized, so none that anybody holds is
/// touched. No more waits than was in use when the first one began.
class KeptMemory
{
public:
  KeptMemory();
  ~KeptMemory();
  KeptMemory(const KeptMemory&) = delete;
  KeptMemory& operator=(const KeptMemory&) = delete;
};

/// Gives a column without rows, whose values lie in memory one after another, that many. They are
/// undefined.
void giveRoom(vtkDataArray* column, vtkIdType rows);
} // namespace Talmesh

#endif
