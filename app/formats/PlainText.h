#ifndef PlainText_h
#define PlainText_h

#include "app/import/ImportProgress.h"
#include "app/import/Result.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <string>

namespace Talmesh::app
{

/// Reads a regular file as it is. Reading ends behind the first zero byte, as no table has one,
/// where the first line has no end, and with the last line that is whole where somebody writes the
/// file meanwhile.
Result<std::string> readPlainText(const QString& path, const ImportProgress& progress);

/// Gives the memory of a text back to the system while it is read, so that a table is not held
/// twice, as text and as numbers. What was passed reads as zeros from then on.
class PassedPages
{
public:
  explicit PassedPages(std::string& text);

  void pass(std::size_t bytes);

private:
  std::uintptr_t given; ///< the first page that is still there
  std::uintptr_t begin;
};

} // namespace Talmesh::app

#endif
