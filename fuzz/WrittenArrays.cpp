#include "WrittenArrays.h"

#include <array>
#include <vector>

#include "FuzzChoices.h"

#define H5_USE_110_API
#include <hdf5.h>

namespace
{

constexpr std::array<const char*, 16> names = {"time",
                                               "data",
                                               "A",
                                               "B",
                                               "items",
                                               "run",
                                               "parameters",
                                               "parameter_names",
                                               "k",
                                               "axis0",
                                               "axis1",
                                               "block0_items",
                                               "block0_values",
                                               "table",
                                               "run1",
                                               "run2"};
constexpr std::array<const char*, 6> attributes = {"columns", "axes", "pandas_type",
                                                   "k1",      "NAME", "drug"};
constexpr std::array<const char*, 8> words = {"time",        "run", "item",          "frame",
                                              "frame_table", "A,B", "run,time,item", ""};

/// Writes what the choices say; what the library refuses to write stays away.
class ArrayWriter
{
public:
  ArrayWriter(FuzzChoices& choices, hid_t opened)
      : choose(choices)
      , file(opened)
  {
  }

  void write()
  {
    groups.push_back(H5Gopen2(file, "/", H5P_DEFAULT));
    for (int step = 0; step < 24 && !choose.atEnd(); ++step)
      act();
    for (const hid_t group : groups)
      H5Gclose(group);
  }

private:
  hid_t parent()
  {
    return groups[static_cast<std::size_t>(choose.pick(static_cast<int>(groups.size())))];
  }
  const char* name() { return names[static_cast<std::size_t>(choose.pick(names.size()))]; }

  void act()
  {
    switch (choose.pick(8))
    {
    case 0:
      addGroup();
      break;
    case 1:
      H5Lcreate_hard(parent(), ".", parent(), name(), H5P_DEFAULT, H5P_DEFAULT);
      break;
    case 2:
      addTexts();
      break;
    case 3:
      addRecords();
      break;
    case 4:
      addAttribute();
      break;
    default:
      addNumbers();
    }
  }

  void addGroup()
  {
    const hid_t group = H5Gcreate2(parent(), name(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT);
    if (group >= 0)
      groups.push_back(group);
  }

  hid_t space(int mostAxes)
  {
    std::vector<hsize_t> shape;
    for (int axes = choose.pick(mostAxes + 1); axes > 0; --axes)
      shape.push_back(static_cast<hsize_t>(choose.pick(6)));
    last = shape.empty() ? 1 : shape.front();
    for (std::size_t i = 1; i < shape.size(); ++i)
      last *= shape[i];
    return shape.empty() ? H5Screate(H5S_SCALAR)
                         : H5Screate_simple(static_cast<int>(shape.size()), shape.data(), nullptr);
  }

  void addSet(hid_t type, hid_t extent, const void* data)
  {
    const hid_t set =
        H5Dcreate2(parent(), name(), type, extent, H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT);
    if (set >= 0)
    {
      H5Dwrite(set, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, data);
      addAttributeTo(set);
      H5Dclose(set);
    }
    H5Sclose(extent);
  }

  void addNumbers()
  {
    const hid_t extent = space(4);
    std::vector<double> values(last + 1);
    for (double& value : values)
      value = choose.number();
    addSet(H5T_NATIVE_DOUBLE, extent, values.data());
  }

  void addTexts()
  {
    const hid_t type = H5Tcopy(H5T_C_S1);
    H5Tset_size(type, H5T_VARIABLE);
    const hid_t extent = space(2);
    std::vector<const char*> texts(last + 1);
    for (const char*& text : texts)
      text = words[static_cast<std::size_t>(choose.pick(words.size()))];
    addSet(type, extent, texts.data());
    H5Tclose(type);
  }

  void addRecords()
  {
    struct Record
    {
      double time;
      float pair[2];
      char text[4];
    };
    const hsize_t two = 2;
    const hid_t pair = H5Tarray_create2(H5T_NATIVE_FLOAT, 1, &two);
    const hid_t text = H5Tcopy(H5T_C_S1);
    H5Tset_size(text, 4);
    const hid_t type = H5Tcreate(H5T_COMPOUND, sizeof(Record));
    H5Tinsert(type, "time", HOFFSET(Record, time), H5T_NATIVE_DOUBLE);
    H5Tinsert(type, name(), HOFFSET(Record, pair), pair);
    H5Tinsert(type, "text", HOFFSET(Record, text), text);
    const hid_t extent = space(2);
    std::vector<Record> records(last + 1);
    for (Record& record : records)
      record.time = choose.number();
    addSet(type, extent, records.data());
    for (const hid_t used : {type, text, pair})
      H5Tclose(used);
  }

  void addAttribute() { addAttributeTo(parent()); }

  void addAttributeTo(hid_t object)
  {
    const char* attribute = attributes[static_cast<std::size_t>(choose.pick(attributes.size()))];
    const bool number = choose.flip();
    const hid_t text = H5Tcopy(H5T_C_S1);
    H5Tset_size(text, H5T_VARIABLE);
    const hid_t type = number ? H5T_NATIVE_DOUBLE : text;
    const hid_t extent = space(1);
    const std::vector<double> values(last + 1, 0.5);
    std::vector<const char*> texts(last + 1);
    for (const char*& word : texts)
      word = words[static_cast<std::size_t>(choose.pick(words.size()))];
    const hid_t made = H5Acreate2(object, attribute, type, extent, H5P_DEFAULT, H5P_DEFAULT);
    if (made >= 0)
    {
      H5Awrite(made, type,
               number ? static_cast<const void*>(values.data())
                      : static_cast<const void*>(texts.data()));
      H5Aclose(made);
    }
    H5Sclose(extent);
    H5Tclose(text);
  }

  FuzzChoices& choose;
  hid_t file;
  std::vector<hid_t> groups;
  hsize_t last = 1;
};

} // namespace

std::string hdf5File(const std::string& choices)
{
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
  FuzzChoices choose(reinterpret_cast<const std::uint8_t*>(choices.data()), choices.size());
  const hid_t access = H5Pcreate(H5P_FILE_ACCESS);
  H5Pset_fapl_core(access, 1 << 16, 0);
  const hid_t file = H5Fcreate("fuzz", H5F_ACC_TRUNC, H5P_DEFAULT, access);
  ArrayWriter(choose, file).write();
  H5Fflush(file, H5F_SCOPE_GLOBAL);
  std::string bytes(static_cast<std::size_t>(H5Fget_file_image(file, nullptr, 0)), '\0');
  H5Fget_file_image(file, &bytes[0], bytes.size());
  H5Fclose(file);
  H5Pclose(access);
  return bytes;
}
