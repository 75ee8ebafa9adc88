#ifndef ZipArchive_h
#define ZipArchive_h

#include "app/import/Result.h"

#include <QIODevice>
#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct zip;
struct zip_file;

namespace Talmesh::app
{

/// A file in a ZIP file.
struct ZipMember
{
  std::string name;
  std::uint64_t bytes = 0;
  std::uint64_t packedBytes = 0;
};

/// What a ZIP file holds.
class ZipArchive
{
public:
  /// More members are refused.
  static constexpr std::size_t mostMembers = 50000;

  static Result<std::shared_ptr<ZipArchive>> open(const QString& path);

  const std::vector<ZipMember>& members() const { return listed; }
  /// The number of the member of that name; as large as members() without one.
  std::size_t find(const std::string& name) const;

  /// A device that reads a member, which the archive must outlive: sequential, already open. It
  /// ends with an error where the member has another size than it tells, or is damaged.
  Result<std::unique_ptr<QIODevice>> read(std::size_t member) const;

  /// All of a member, which is refused when it is larger than `most` bytes.
  Result<std::string> content(std::size_t member, std::uint64_t most) const;

private:
  using Handle = std::unique_ptr<zip, void (*)(zip*)>;

  explicit ZipArchive(Handle opened);

  Handle handle;
  std::vector<ZipMember> listed;
};

} // namespace Talmesh::app

#endif
