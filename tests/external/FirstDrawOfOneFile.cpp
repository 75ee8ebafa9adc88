#include "external/SharedTypes.h"

#include "FirstDraw.h"

static const std::uint_fast32_t drawn = Talmesh::MersenneTwister();

std::uint_fast32_t firstDrawOfOneFile()
{
  return drawn;
}
