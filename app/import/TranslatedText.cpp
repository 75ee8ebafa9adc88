#include "app/import/TranslatedText.h"

#include <QCoreApplication>

namespace Talmesh::app
{

namespace
{

/// The number of the value for which the place at `at` stands, from 0; as large as `values` when
/// it is none.
std::size_t valueAt(const std::string& text, std::size_t at, std::size_t values)
{
  if (text[at] != '%' || at + 1 == text.size() || text[at + 1] < '1' || text[at + 1] > '9')
    return values;
  return static_cast<std::size_t>(text[at + 1] - '1');
}

} // namespace

std::string translated(const char* context, const char* text)
{
  return QCoreApplication::translate(context, text).toStdString();
}

std::string withValues(const std::string& text, const std::vector<std::string>& values)
{
  std::string result;
  for (std::size_t at = 0; at < text.size(); ++at)
  {
    const std::size_t value = valueAt(text, at, values.size());
    if (value < values.size())
    {
      result += values[value];
      ++at;
    }
    else
      result += text[at];
  }
  return result;
}

} // namespace Talmesh::app
