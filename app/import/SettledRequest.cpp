#include "app/import/SettledRequest.h"

#include <set>

namespace Talmesh::app
{

namespace
{

/// The names among those of columns that one column only has.
class SingleNames
{
public:
  explicit SingleNames(const std::vector<std::string>& headers)
  {
    for (const std::string& header : headers)
      if (!single.insert(header).second)
        repeated.insert(header);
  }

  bool have(const std::string& name) const
  {
    return single.count(name) > 0 && repeated.count(name) == 0;
  }

private:
  std::set<std::string> single;
  std::set<std::string> repeated;
};

/// What was said stays.
void add(const std::vector<std::string>& found, const SingleNames& names,
         std::vector<std::string>& said)
{
  std::set<std::string> known(said.begin(), said.end());
  for (const std::string& name : found)
    if (names.have(name) && known.insert(name).second)
      said.push_back(name);
}

} // namespace

ImportRequest settledRequest(const ImportRequest& said, const ImportReport& report,
                             const std::vector<std::string>& headers)
{
  const SingleNames names(headers);
  ImportRequest settled = said;
  settled.layout = report.layout;
  if (!said.separator)
    settled.separator = report.settled.separator;
  if (!said.decimalMark)
    settled.decimalMark = report.settled.decimalMark;
  if (settled.time.empty() && names.have(report.time))
    settled.time = report.time;
  add(report.parameters, names, settled.parameters);
  add(report.categories, names, settled.conditions);
  add(report.ignored, names, settled.ignored);
  return settled;
}

} // namespace Talmesh::app
