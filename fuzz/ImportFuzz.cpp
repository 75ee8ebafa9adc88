#include "app/import/Layouts.h"
#include "app/import/RunTableImport.h"
#include "app/session/StudyFile.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>
#include <zip.h>
#include <zlib.h>

#include "ImportedChecks.h"
#include "WrittenArrays.h"

namespace
{

using namespace Talmesh::app;

/// What the first byte of an input says that the rest is. Each goes through the whole of opening a
/// file, but for the text, which is also read in the layout that the second byte names.
enum class Input : std::uint8_t
{
  Text,
  File,
  Gzip,
  Npy,
  Npz,
  Xlsx,
  Ods,
  Hdf5,
  SeveralFiles,
  Count
};

/// A file in memory, with a path.
class MemoryFile
{
public:
  explicit MemoryFile(const std::string& bytes)
      : descriptor(memfd_create("fuzz", 0))
  {
    require(descriptor >= 0 &&
            write(descriptor, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
  }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile() { close(descriptor); }

  QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(descriptor); }

private:
  int descriptor;
};

std::string gzipped(const std::string& text)
{
  z_stream stream{};
  require(deflateInit2(&stream, 1, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY) == Z_OK);
  std::string packed(deflateBound(&stream, text.size()) + 32, '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
  stream.avail_in = static_cast<uInt>(text.size());
  stream.next_out = reinterpret_cast<Bytef*>(&packed[0]);
  stream.avail_out = static_cast<uInt>(packed.size());
  require(deflate(&stream, Z_FINISH) == Z_STREAM_END);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  return packed;
}

/// A ZIP file; its members are stored as they are, so that the fuzzer's bytes stay to be seen.
std::string zipped(const std::vector<std::pair<std::string, std::string>>& members)
{
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* target = zip_source_buffer_create(nullptr, 0, 0, &error);
  zip_source_keep(target);
  zip_t* archive = zip_open_from_source(target, ZIP_TRUNCATE, &error);
  for (const auto& [name, content] : members)
  {
    zip_source_t* source = zip_source_buffer(archive, content.data(), content.size(), 0);
    const zip_int64_t place = zip_file_add(archive, name.c_str(), source, ZIP_FL_OVERWRITE);
    zip_set_file_compression(archive, static_cast<zip_uint64_t>(place), ZIP_CM_STORE, 0);
  }
  require(zip_close(archive) == 0);
  zip_stat_t told;
  require(zip_source_stat(target, &told) == 0 && zip_source_open(target) == 0);
  std::string bytes(told.size, '\0');
  require(zip_source_read(target, &bytes[0], bytes.size()) ==
          static_cast<zip_int64_t>(bytes.size()));
  zip_source_close(target);
  zip_source_free(target);
  return bytes;
}

/// Pieces of the input, which zero bytes part.
std::vector<std::string> pieces(std::string_view text, std::size_t most)
{
  std::vector<std::string> all;
  while (!text.empty() && all.size() < most)
  {
    const std::size_t end = text.find('\0');
    all.emplace_back(text.substr(0, end));
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  }
  return all;
}

std::string workbook(const std::string& rest)
{
  std::vector<std::string> parts = pieces(rest, 4);
  parts.resize(4);
  return zipped({{"xl/workbook.xml", "<workbook><sheets><sheet name='A' id='1'/><sheet name='B' "
                                     "id='2'/></sheets></workbook>"},
                 {"xl/_rels/workbook.xml.rels", "<r><Relationship Id='1' Target='a.xml'/>"
                                                "<Relationship Id='2' Target='b.xml'/></r>"},
                 {"xl/a.xml", parts[0]},
                 {"xl/b.xml", parts[1]},
                 {"xl/sharedStrings.xml", parts[2].empty() ? "<sst/>" : parts[2]},
                 {"xl/styles.xml", parts[3].empty() ? "<s/>" : parts[3]}});
}

std::string archive(const std::string& rest)
{
  constexpr const char* names[] = {"time.npy", "data.npy", "items.npy", "parameters.npy", "k.npy"};
  std::vector<std::pair<std::string, std::string>> members;
  // A mark of its own parts arrays, which hold zeros.
  constexpr std::string_view mark = "\x93NUMPY";
  std::size_t begin = 0;
  for (const char* name : names)
  {
    const std::size_t end = rest.find(mark, begin + 1);
    members.emplace_back(name, rest.substr(begin, end - begin));
    if (end == std::string::npos)
      break;
    begin = end;
  }
  return zipped(members);
}

std::string fileOf(Input input, const std::string& rest)
{
  switch (input)
  {
  case Input::Gzip:
    return gzipped(rest);
  case Input::Npy:
    return "\x93NUMPY" + rest;
  case Input::Npz:
    return archive(rest);
  case Input::Xlsx:
    return workbook(rest);
  case Input::Ods:
    return zipped(
        {{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"}, {"content.xml", rest}});
  default:
    return rest;
  }
}

/// The HDF5 library is none of ours: it gets no bytes, but files that it has written itself.
bool isHdf5(const std::string& bytes)
{
  return bytes.find("HDF\r\n\x1A\n") != std::string::npos;
}

void openFiles(const std::vector<QString>& paths, const ImportRequest& request)
{
  ImportReport report;
  QStringList list;
  for (const QString& path : paths)
    list.append(path);
  checkOpened(openStudyFiles(list, {}, request, &report));
  checkReport(report);
}

void openSeveral(const std::string& rest, ImportRequest request)
{
  constexpr const char* wishes[] = {"", "runs", "items"};
  request.files = wishes[rest.size() % 3];
  request.join = rest.size() % 2 == 0 ? "" : "order";
  std::vector<std::unique_ptr<MemoryFile>> files;
  std::vector<QString> paths;
  for (const std::string& piece : pieces(rest, 5))
    if (!isHdf5(piece))
      paths.push_back(files.emplace_back(std::make_unique<MemoryFile>(piece))->path());
  if (!paths.empty())
    openFiles(paths, request);
}

void readText(const std::string& text, std::uint8_t wish)
{
  ImportRequest request;
  if (wish > 0 && wish <= layouts().size())
    request.layout = layouts()[wish - 1U].name;
  if (wish >= 128)
    request.unequal = wish % 2 == 0 ? UnequalRuns::Union : UnequalRuns::Interpolate;
  // What stands beside the table is a table, too.
  const FileBeside beside = [&text](const std::string&) { return std::make_optional(text); };
  ImportReport report;
  checkImported(importTable(text, {request, {}, {}, beside}, report));
  checkReport(report);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  if (size < 2)
    return 0;
  const auto input = static_cast<Input>(data[0] % static_cast<unsigned>(Input::Count));
  const std::string rest(reinterpret_cast<const char*>(data) + 2, size - 2);
  ImportRequest request;
  if (data[1] % 8 == 1)
    request.sheet = "B";
  if (input == Input::Text)
    readText(rest, data[1]);
  else if (input == Input::SeveralFiles)
    openSeveral(rest, request);
  else if (input == Input::Hdf5)
  {
    const MemoryFile file(hdf5File(rest));
    openFiles({file.path()}, request);
  }
  else if (!isHdf5(rest))
  {
    const MemoryFile file(fileOf(input, rest));
    openFiles({file.path()}, request);
  }
  return 0;
}
