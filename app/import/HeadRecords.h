#ifndef HeadRecords_h
#define HeadRecords_h

#include "app/import/TextSample.h"

#include <cstddef>
#include <string>
#include <vector>

namespace Talmesh::app
{

/// What the first records of a table say of each other.
class HeadRecords
{
public:
  /// All must outlive it.
  HeadRecords(const std::vector<SampledRecord>& head, const std::vector<SampledRecord>& places,
              bool decimalCommas);

  bool isNumber(const std::string& field) const;
  /// The next one that is no comment; behind the last one their number, or more.
  std::size_t nextRecord(std::size_t at) const;
  /// Whether a header lacks a name as R leaves it out, for the names of the rows.
  bool rowsAreOneLonger(std::size_t header) const;
  /// Whether a record below the names is a second line of them, or of units: no number, and words
  /// where the rows have numbers.
  bool isLowerHeader(std::size_t at, std::size_t header) const;

private:
  bool isMissing(const std::string& field) const;
  bool columnHasNumbers(std::size_t column, std::size_t behind) const;

  const std::vector<SampledRecord>& head;
  const std::vector<SampledRecord>& places;
  bool decimalCommas;
};

/// The fields without the empty ones behind the last other one.
std::vector<std::string> withoutEmptyEnd(std::vector<std::string> fields);

/// Whether a record is the name of a section: [Data].
bool isBracketLine(const SampledRecord& record);

} // namespace Talmesh::app

#endif
