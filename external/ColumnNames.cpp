#include "external/ColumnNames.h"

namespace Talmesh
{

TypedConcentrationName runIndexItem()
{
  return {TimeOrValue, runIndexName};
}

int timeItem(const std::vector<TypedConcentrationName>& items)
{
  int chosen = -1;
  for (std::size_t i = 0; i < items.size(); ++i)
  {
    if (items[i].first != TimeOrValue)
      continue;
    if (items[i].second == timeItemName)
      return static_cast<int>(i);
    if (items[i].second == valueItemName || chosen < 0)
      chosen = static_cast<int>(i);
  }
  return chosen;
}

bool labelsTime(const std::string& label)
{
  for (const char* word : {"Value", "Time", "Period"})
    if (label.find(word) != std::string::npos)
      return true;
  return false;
}

bool labelsRunIndex(const std::string& label)
{
  return label.find("Index") != std::string::npos;
}

} // namespace Talmesh
