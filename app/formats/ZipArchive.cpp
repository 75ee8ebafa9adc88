#include "app/formats/ZipArchive.h"

#include "app/formats/UnpackLimit.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <QFile>

#include <algorithm>
#include <zip.h>

namespace Talmesh::app
{

namespace
{

std::string damagedMember(const std::string& name)
{
  return withValues(translated("ZipArchive", "%1 in it is damaged or cut short; copy it again"),
                    {quotedForMessage(name)});
}

class MemberDevice : public QIODevice
{
public:
  MemberDevice(zip_file* opened, const ZipMember& member)
      : file(opened)
      , left(member.bytes)
      , damage(QString::fromStdString(damagedMember(member.name)))
  {
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
  }

  ~MemberDevice() override { zip_fclose(file); }

  bool isSequential() const override { return true; }
  bool atEnd() const override { return left == 0; }

protected:
  qint64 readData(char* data, qint64 most) override
  {
    const auto wanted = std::min(static_cast<std::uint64_t>(std::max<qint64>(most, 0)), left);
    if (wanted == 0)
      return most == 0 ? 0 : -1;
    const zip_int64_t got = zip_fread(file, data, wanted);
    if (got <= 0)
    {
      setErrorString(damage);
      left = 0;
      return -1;
    }
    left -= static_cast<std::uint64_t>(got);
    return got;
  }

  qint64 writeData(const char* /*data*/, qint64 /*most*/) override { return -1; }

private:
  zip_file* file;
  std::uint64_t left;
  QString damage;
};

std::string whyNotOpened(int code)
{
  if (code == ZIP_ER_MEMORY)
    return translated("ZipArchive", "the table does not fit into memory");
  return translated("ZipArchive", "the ZIP file is damaged or cut short; copy it again");
}

} // namespace

ZipArchive::ZipArchive(Handle opened)
    : handle(std::move(opened))
{
}

Result<std::shared_ptr<ZipArchive>> ZipArchive::open(const QString& path)
{
  using Opened = Result<std::shared_ptr<ZipArchive>>;
  int code = 0;
  Handle handle(zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY, &code), zip_discard);
  if (!handle)
    return Opened::failed(whyNotOpened(code));
  const zip_int64_t count = zip_get_num_entries(handle.get(), 0);
  if (count < 0 || static_cast<std::size_t>(count) > mostMembers)
    return Opened::failed(
        withValues(translated("ZipArchive", "the ZIP file holds %1 files; at most %2 are read"),
                   {std::to_string(count), std::to_string(mostMembers)}));
  std::shared_ptr<ZipArchive> archive(new ZipArchive(std::move(handle)));
  for (zip_int64_t i = 0; i < count; ++i)
  {
    zip_stat_t told;
    zip_stat_init(&told);
    ZipMember member;
    if (zip_stat_index(archive->handle.get(), static_cast<zip_uint64_t>(i), 0, &told) == 0)
    {
      member.name = (told.valid & ZIP_STAT_NAME) != 0 ? toUtf8(told.name) : std::string();
      member.bytes = (told.valid & ZIP_STAT_SIZE) != 0 ? told.size : 0;
      member.packedBytes = (told.valid & ZIP_STAT_COMP_SIZE) != 0 ? told.comp_size : 0;
    }
    archive->listed.push_back(member);
  }
  return archive;
}

std::size_t ZipArchive::find(const std::string& name) const
{
  const auto found = std::find_if(listed.begin(), listed.end(),
                                  [&](const ZipMember& member) { return member.name == name; });
  return static_cast<std::size_t>(found - listed.begin());
}

Result<std::unique_ptr<QIODevice>> ZipArchive::read(std::size_t member) const
{
  using Device = Result<std::unique_ptr<QIODevice>>;
  const ZipMember& wanted = listed[member];
  const std::string tooMuch = UnpackLimit(wanted.packedBytes).objection(wanted.bytes);
  if (!tooMuch.empty())
    return Device::failed(quotedForMessage(wanted.name) + ": " + tooMuch);
  zip_file* file = zip_fopen_index(handle.get(), member, 0);
  if (file)
    return Device(std::make_unique<MemberDevice>(file, wanted));
  const int code = zip_error_code_zip(zip_get_error(handle.get()));
  if (code == ZIP_ER_NOPASSWD || code == ZIP_ER_ENCRNOTSUPP)
    return Device::failed(translated(
        "ZipArchive", "it is protected by a password; save it without, or as a table of text"));
  return Device::failed(damagedMember(wanted.name));
}

Result<std::string> ZipArchive::content(std::size_t member, std::uint64_t most) const
{
  const ZipMember& wanted = listed[member];
  if (wanted.bytes > most)
    return Result<std::string>::failed(
        withValues(translated("ZipArchive", "%1 in it is too large to be read"),
                   {quotedForMessage(wanted.name)}));
  const Result<std::unique_ptr<QIODevice>> device = read(member);
  if (!device.hasValue())
    return Result<std::string>::without(device);
  const QByteArray all = device.value()->readAll();
  if (static_cast<std::uint64_t>(all.size()) != wanted.bytes)
    return Result<std::string>::failed(damagedMember(wanted.name));
  return all.toStdString();
}

} // namespace Talmesh::app
