#include "app/DesignOption.h"

#include <charconv>
#include <system_error>

namespace Talmesh::app
{

std::optional<stats::KnownDesign> readDesignOption(std::string_view text)
{
  // More parameters than a table has columns.
  constexpr std::size_t tooMany = 100'000;
  const std::string_view name = text.substr(0, text.find(':'));
  stats::KnownDesign design{true, 0};
  if (name != "saltelli")
    return std::nullopt;
  if (name.size() == text.size())
    return design;
  const std::string_view digits = text.substr(name.size() + 1);
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, design.parameters);
  if (read.ec != std::errc() || read.ptr != end || design.parameters == 0 ||
      design.parameters >= tooMany)
    return std::nullopt;
  return design;
}

} // namespace Talmesh::app
