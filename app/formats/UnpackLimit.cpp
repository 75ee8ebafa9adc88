#include "app/formats/UnpackLimit.h"

#include "app/import/SystemMemory.h"
#include "app/import/TranslatedText.h"

namespace Talmesh::app
{

UnpackLimit::UnpackLimit(std::uint64_t packedBytes)
    : packed(packedBytes)
{
}

std::string UnpackLimit::objection(std::uint64_t unpackedBytes) const
{
  if (unpackedBytes <= freeBytes)
    return {};
  if (unpackedBytes / largestRatio >= packed)
    return withValues(translated("UnpackLimit", "it unpacks to more than %1 times its size, as "
                                                "damaged files do; unpack it before opening it"),
                      {std::to_string(largestRatio)});
  if (!hasMemory(unpackedBytes))
    return translated("UnpackLimit", "the table does not fit into memory");
  return {};
}

} // namespace Talmesh::app
