#ifndef Hdf5Source_h
#define Hdf5Source_h

#include "app/formats/ArraySource.h"
#include "app/formats/Hdf5Object.h"

#include <cstdint>
#include <vector>

namespace Talmesh::app
{

/// The data sets that lie directly in a group, as arrays.
class Hdf5Source : public ArraySource
{
public:
  /// @param group must outlive the source
  /// @param fileBytes the size of the file
  Hdf5Source(hid_t group, std::uint64_t fileBytes);

  const std::vector<StoredArray>& arrays() const override { return listed; }
  std::string objectionTo(std::size_t array) const override;
  std::string readNumbers(std::size_t array, const NumberSink& sink) override;
  std::string readTexts(std::size_t array, std::vector<std::string>& texts) override;
  std::string readRecords(std::size_t array, std::vector<NamedColumn>& columns,
                          const ImportProgress& progress) override;

private:
  void add(const std::string& name);
  Hdf5Object open(std::size_t array) const;
  std::string whyNotFilled(hid_t dataSet, std::uint64_t elementBytes, std::size_t elements) const;

  hid_t group;
  std::uint64_t fileBytes;
  std::vector<StoredArray> listed;
};

} // namespace Talmesh::app

#endif
