#include "app/formats/Hdf5File.h"

#include "app/formats/ArrayLayout.h"
#include "app/formats/Hdf5Frames.h"
#include "app/formats/Hdf5Runs.h"
#include "app/formats/Hdf5Source.h"
#include "app/formats/PartNames.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <mutex>

namespace Talmesh::app
{

namespace
{

using Content = Result<FileContent>;

constexpr int deepest = 8;
constexpr std::size_t mostMembers = 20000;

Hdf5Object openFile(const QString& path)
{
  const Hdf5Object access(H5Pcreate(H5P_FILE_ACCESS), H5Pclose);
  H5Pset_fclose_degree(access, H5F_CLOSE_STRONG);
  // Who reads does not keep a simulation from writing.
  H5Pset_file_locking(access, false, true);
  return {H5Fopen(QFile::encodeName(path).constData(), H5F_ACC_RDONLY, access), H5Fclose};
}

class Hdf5Reader
{
public:
  Hdf5Reader(hid_t file_, std::uint64_t bytes_, const FormatRequest& request_,
             const ImportProgress& progress_)
      : file(file_)
      , bytes(bytes_)
      , request(request_)
      , progress(progress_)
  {
  }

  Content read()
  {
    if (request.part.empty())
      return readGroup(openHdf5Group(file, "/"), "", 0);
    if (H5Lexists(file, request.part.c_str(), H5P_DEFAULT) <= 0)
      return Content::failed(withValues(
          translated("Hdf5File", "it holds no %1; at its top are %2"),
          {quotedForMessage(request.part), listOfParts(allMembers(openHdf5Group(file, "/")))}));
    const Hdf5Object object(H5Oopen(file, request.part.c_str(), H5P_DEFAULT), H5Oclose);
    if (H5Iget_type(object) == H5I_GROUP)
      return readGroup(openHdf5Group(file, request.part), request.part + "/", 0);
    const std::size_t slash = request.part.rfind('/');
    const Hdf5Object parent = openHdf5Group(
        file, slash == std::string::npos || slash == 0 ? "/" : request.part.substr(0, slash));
    FormatRequest inside;
    inside.part = request.part.substr(slash == std::string::npos ? 0 : slash + 1);
    return parent.isOpen() ? arrays(parent, inside) : Content::failed(damagedHdf5());
  }

private:
  static std::vector<std::string> allMembers(hid_t group)
  {
    const Hdf5Members members = hdf5MembersOf(group, mostMembers);
    std::vector<std::string> all = members.groups;
    all.insert(all.end(), members.dataSets.begin(), members.dataSets.end());
    return all;
  }

  Content arrays(hid_t group, const FormatRequest& inside)
  {
    Hdf5Source source(group, bytes);
    return arrangeArrays(source, inside, progress);
  }

  /// @param path ends with a slash, unless it is empty
  Content readGroup(const Hdf5Object& group, const std::string& path, int depth)
  {
    if (!group.isOpen())
      return Content::failed(damagedHdf5());
    const haddr_t place = hdf5PlaceOf(group);
    const bool circle = std::find(visited.begin(), visited.end(), place) != visited.end();
    visited.push_back(place);
    if (circle || depth > deepest)
      return Content::failed(
          translated("Hdf5File", "its groups hold each other; name a data set with --sheet"));
    if (isPandasFrame(group))
      return readPandasFrame(group, bytes, progress);
    const Hdf5Members members = hdf5MembersOf(group, mostMembers);
    if (areRunGroups(group, members.groups, bytes))
      return readRunGroups(group, members.groups, bytes, progress);
    if (!members.dataSets.empty())
      return arrays(group, FormatRequest());
    if (members.groups.size() == 1)
      return readGroup(openHdf5Group(group, members.groups.front()),
                       path + members.groups.front() + "/", depth + 1);
    if (members.groups.empty())
      return Content::failed(translated("Hdf5File", "it holds no data set"));
    std::vector<std::string> paths;
    for (const std::string& name : members.groups)
      paths.push_back(path + name);
    return Content::failed(
        withValues(translated("Hdf5File", "it holds several groups (%1); name one with --sheet"),
                   {listOfParts(paths)}));
  }

  hid_t file;
  std::uint64_t bytes;
  const FormatRequest& request;
  const ImportProgress& progress;
  std::vector<haddr_t> visited;
};

} // namespace

bool isHdf5(const FileStart& start)
{
  constexpr std::string_view mark("\x89HDF\r\n\x1A\n", 8);
  for (const std::size_t offset : {0, 512, 1024, 2048})
    if (start.bytes.compare(std::min(offset, start.bytes.size()), mark.size(), mark) == 0)
      return true;
  return false;
}

Result<FileContent> readHdf5(const QString& path, const FormatRequest& request,
                             const ImportProgress& progress)
{
  static std::mutex oneAtATime;
  const std::lock_guard<std::mutex> guard(oneAtATime);
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
  const Hdf5Object file = openFile(path);
  if (!file.isOpen())
    return Content::failed(damagedHdf5());
  const auto bytes = static_cast<std::uint64_t>(QFileInfo(path).size());
  return Hdf5Reader(file, bytes, request, progress).read();
}

} // namespace Talmesh::app
