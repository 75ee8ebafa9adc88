#include "app/formats/PartNames.h"

#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <QString>

#include <algorithm>

namespace Talmesh::app
{

std::string listOfParts(const std::vector<std::string>& names)
{
  constexpr std::size_t most = 8;
  std::string list;
  for (std::size_t i = 0; i < std::min(names.size(), most); ++i)
    list += (i == 0 ? "" : ", ") + quotedForMessage(names[i]);
  if (names.size() > most)
    list += ", ...";
  return list;
}

Result<std::string> chosenPart(const std::vector<std::string>& names, const std::string& wanted)
{
  if (wanted.empty())
    return names.front();
  auto found = std::find(names.begin(), names.end(), wanted);
  const QString text = QString::fromStdString(wanted);
  if (found == names.end())
    found =
        std::find_if(names.begin(), names.end(),
                     [&](const std::string& name) {
                       return QString::fromStdString(name).compare(text, Qt::CaseInsensitive) == 0;
                     });
  if (found != names.end())
    return *found;
  return Result<std::string>::failed(
      withValues(translated("PartNames", "it holds no %1; it holds %2"),
                 {quotedForMessage(wanted), listOfParts(names)}));
}

} // namespace Talmesh::app
