#include "app/formats/Hdf5Object.h"

#include "app/import/NameParts.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cstring>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t mostTexts = 1 << 20;
constexpr std::size_t longestText = 1 << 20;
constexpr std::size_t mostTextBytes = std::size_t{256} << 20U;

struct Listing
{
  Hdf5Members members;
  std::size_t left;
};

herr_t list(hid_t group, const char* name, const H5L_info_t* link, void* data)
{
  auto& listing = *static_cast<Listing*>(data);
  H5O_info_t object;
  if (listing.left == 0)
    return 1;
  --listing.left;
  if (link->type != H5L_TYPE_HARD || H5Oget_info_by_name(group, name, &object, H5P_DEFAULT) < 0)
    return 0;
  if (object.type == H5O_TYPE_GROUP)
    listing.members.groups.emplace_back(name);
  else if (object.type == H5O_TYPE_DATASET)
    listing.members.dataSets.emplace_back(name);
  return 0;
}

herr_t readInto(hid_t stored, bool isAttribute, hid_t type, void* buffer)
{
  return isAttribute ? H5Aread(stored, type, buffer)
                     : H5Dread(stored, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, buffer);
}

std::string readLongTexts(hid_t stored, bool isAttribute, hid_t type, hid_t space,
                          std::vector<char*> pointers, std::vector<std::string>& texts)
{
  if (readInto(stored, isAttribute, type, pointers.data()) < 0)
    return damagedHdf5();
  std::size_t bytes = 0;
  for (const char* text : pointers)
  {
    bytes += text ? std::strlen(text) : 0;
    if (bytes > mostTextBytes)
      break;
    texts.push_back(text ? toUtf8(text) : std::string());
  }
  H5Dvlen_reclaim(type, space, H5P_DEFAULT, pointers.data());
  return texts.size() == pointers.size() ? std::string() : damagedHdf5();
}

} // namespace

std::string damagedHdf5()
{
  return translated("Hdf5Object", "the HDF5 file is damaged, or packed in a way that is not "
                                  "installed here; copy it again, or repack it with h5repack");
}

Hdf5Members hdf5MembersOf(hid_t group, std::size_t most)
{
  Listing listing{{}, most};
  H5Literate(group, H5_INDEX_NAME, H5_ITER_NATIVE, nullptr, list, &listing);
  std::sort(listing.members.groups.begin(), listing.members.groups.end(), comesBeforeInNumbers);
  std::sort(listing.members.dataSets.begin(), listing.members.dataSets.end(), comesBeforeInNumbers);
  return listing.members;
}

Hdf5Object openHdf5Group(hid_t parent, const std::string& path)
{
  return {H5Gopen2(parent, path.c_str(), H5P_DEFAULT), H5Gclose};
}

Hdf5Object openHdf5DataSet(hid_t parent, const std::string& path)
{
  return {H5Dopen2(parent, path.c_str(), H5P_DEFAULT), H5Dclose};
}

haddr_t hdf5PlaceOf(hid_t object)
{
  H5O_info_t info;
  return H5Oget_info(object, &info) < 0 ? HADDR_UNDEF : info.addr;
}

std::string readHdf5Texts(hid_t stored, bool isAttribute, std::vector<std::string>& texts)
{
  const Hdf5Object space(isAttribute ? H5Aget_space(stored) : H5Dget_space(stored), H5Sclose);
  const Hdf5Object type(isAttribute ? H5Aget_type(stored) : H5Dget_type(stored), H5Tclose);
  const hssize_t points = space.isOpen() ? H5Sget_simple_extent_npoints(space) : -1;
  if (points < 0 || static_cast<std::size_t>(points) > mostTexts ||
      H5Tget_class(type) != H5T_STRING)
    return damagedHdf5();
  const auto count = static_cast<std::size_t>(points);
  const Hdf5Object memory(H5Tcopy(H5T_C_S1), H5Tclose);
  H5Tset_cset(memory, H5Tget_cset(type));
  if (H5Tis_variable_str(type) > 0)
  {
    H5Tset_size(memory, H5T_VARIABLE);
    return count == 0 ? std::string()
                      : readLongTexts(stored, isAttribute, memory, space,
                                      std::vector<char*>(count, nullptr), texts);
  }
  const std::size_t length = H5Tget_size(type) + 1;
  if (length > longestText || count * length > mostTextBytes)
    return damagedHdf5();
  H5Tset_size(memory, length);
  std::vector<char> bytes(count * length + 1, '\0');
  if (readInto(stored, isAttribute, memory, bytes.data()) < 0)
    return damagedHdf5();
  const bool spaces = H5Tget_strpad(type) == H5T_STR_SPACEPAD;
  for (std::size_t i = 0; i < count; ++i)
  {
    const char* text = bytes.data() + i * length;
    std::string copy(text, strnlen(text, length));
    if (spaces)
      copy.erase(copy.find_last_not_of(' ') + 1);
    texts.push_back(toUtf8(copy));
  }
  return {};
}

std::vector<std::string> hdf5Texts(hid_t object, const char* attribute)
{
  std::vector<std::string> texts;
  if (H5Aexists(object, attribute) <= 0)
    return texts;
  const Hdf5Object opened(H5Aopen(object, attribute, H5P_DEFAULT), H5Aclose);
  if (opened.isOpen() && !readHdf5Texts(opened, true, texts).empty())
    texts.clear();
  return texts;
}

std::optional<double> hdf5Number(hid_t object, const char* attribute)
{
  const Hdf5Object opened(H5Aopen(object, attribute, H5P_DEFAULT), H5Aclose);
  if (!opened.isOpen())
    return std::nullopt;
  const Hdf5Object space(H5Aget_space(opened), H5Sclose);
  const Hdf5Object type(H5Aget_type(opened), H5Tclose);
  const H5T_class_t kind = H5Tget_class(type);
  double number = 0.0;
  if (H5Sget_simple_extent_npoints(space) != 1 ||
      (kind != H5T_INTEGER && kind != H5T_FLOAT && kind != H5T_ENUM) ||
      H5Aread(opened, H5T_NATIVE_DOUBLE, &number) < 0)
    return std::nullopt;
  return number;
}

std::vector<std::string> hdf5Attributes(hid_t object)
{
  constexpr hsize_t most = 1000;
  std::vector<std::string> names;
  H5O_info_t info;
  if (H5Oget_info(object, &info) < 0)
    return names;
  for (hsize_t i = 0; i < std::min(info.num_attrs, most); ++i)
  {
    const Hdf5Object attribute(
        H5Aopen_by_idx(object, ".", H5_INDEX_NAME, H5_ITER_NATIVE, i, H5P_DEFAULT, H5P_DEFAULT),
        H5Aclose);
    std::vector<char> name(256, '\0');
    if (attribute.isOpen() && H5Aget_name(attribute, name.size(), name.data()) > 0)
      names.emplace_back(name.data());
  }
  return names;
}

} // namespace Talmesh::app
