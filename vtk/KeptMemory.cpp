#include "vtk/KeptMemory.h"

#include <vtkDataArray.h>

#include <cstdlib>
#include <map>
#include <mutex>

namespace Talmesh
{
namespace
{
/// Bytes; smaller blocks come from pages that the process has.
constexpr std::size_t smallestBlock = 1 << 20;

bool isWellUsed(std::size_t needed, std::size_t block)
{
  return needed >= block / 4 * 3;
}

class Blocks
{
public:
  /// @return null if there is no memory
  void* take(std::size_t bytes)
  {
    const std::lock_guard<std::mutex> lock(access);
    const auto found = waiting.lower_bound(bytes);
    if (found != waiting.end() && isWellUsed(bytes, found->first))
    {
      void* const block = found->second;
      used.emplace(block, found->first);
      waiting.erase(found);
      return block;
    }
    freeAtLeast(bytes);
    void* const block = std::malloc(bytes);
    if (block)
      used.emplace(block, bytes);
    return block;
  }

  void giveUp(void* block)
  {
    const std::lock_guard<std::mutex> lock(access);
    const auto found = used.find(block);
    // VTK leaves an array its function when it has given it memory of its own.
    if (found == used.end())
    {
      std::free(block);
      return;
    }
    if (keepers > 0)
      waiting.emplace(found->second, block);
    else
      std::free(block);
    used.erase(found);
  }

  void beginKeeping()
  {
    const std::lock_guard<std::mutex> lock(access);
    ++keepers;
  }

  void endKeeping()
  {
    const std::lock_guard<std::mutex> lock(access);
    if (--keepers > 0)
      return;
    for (const auto& [bytes, block] : waiting)
      std::free(block);
    waiting.clear();
  }

private:
  /// Memory that does not fit must not be held beside that which does.
  void freeAtLeast(std::size_t bytes)
  {
    std::size_t freed = 0;
    while (freed < bytes && !waiting.empty())
    {
      freed += waiting.begin()->first;
      std::free(waiting.begin()->second);
      waiting.erase(waiting.begin());
    }
  }

  std::mutex access;
  int keepers = 0;
  std::map<void*, std::size_t> used;
  std::multimap<std::size_t, void*> waiting;
};

/// Lives on for arrays that are destroyed when the process ends.
Blocks& blocks()
{
  static auto* const all = new Blocks;
  return *all;
}

void giveUpBlock(void* block)
{
  blocks().giveUp(block);
}
} // namespace

KeptMemory::KeptMemory()
{
  blocks().beginKeeping();
}

KeptMemory::~KeptMemory()
{
  blocks().endKeeping();
}

void giveRoom(vtkDataArray* column, vtkIdType rows)
{
  const vtkIdType values = rows * column->GetNumberOfComponents();
  const std::size_t bytes =
      static_cast<std::size_t>(values) * static_cast<std::size_t>(column->GetDataTypeSize());
  void* const block = bytes < smallestBlock ? nullptr : blocks().take(bytes);
  if (block)
  {
    column->SetVoidArray(block, values, 0, vtkAbstractArray::VTK_DATA_ARRAY_USER_DEFINED);
    column->SetArrayFreeFunction(giveUpBlock);
  }
  else
  {
    column->Resize(rows);
    column->SetNumberOfTuples(rows);
  }
}
} // namespace Talmesh
