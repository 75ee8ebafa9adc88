#include "formats/WrittenHdf5.h"

#include <algorithm>

WrittenHdf5::WrittenHdf5(const QString& path)
    : id(H5Fcreate(path.toLocal8Bit().constData(), H5F_ACC_TRUNC, H5P_DEFAULT, H5P_DEFAULT))
    , parents(H5Pcreate(H5P_LINK_CREATE))
{
  H5Pset_create_intermediate_group(parents, 1);
}

WrittenHdf5::~WrittenHdf5()
{
  H5Pclose(parents);
  H5Fclose(id);
}

void WrittenHdf5::group(const std::string& path)
{
  H5Gclose(H5Gcreate2(id, path.c_str(), parents, H5P_DEFAULT, H5P_DEFAULT));
}

void WrittenHdf5::numbers(const std::string& path, const std::vector<hsize_t>& shape,
                          const std::vector<double>& values, bool packed)
{
  const hid_t space = shape.empty()
                          ? H5Screate(H5S_SCALAR)
                          : H5Screate_simple(static_cast<int>(shape.size()), shape.data(), nullptr);
  const hid_t layout = H5Pcreate(H5P_DATASET_CREATE);
  if (packed)
  {
    std::vector<hsize_t> chunk = shape;
    chunk.front() = 1;
    H5Pset_chunk(layout, static_cast<int>(chunk.size()), chunk.data());
    H5Pset_deflate(layout, 6);
  }
  const hid_t set =
      H5Dcreate2(id, path.c_str(), H5T_IEEE_F64LE, space, parents, layout, H5P_DEFAULT);
  if (!values.empty())
    H5Dwrite(set, H5T_NATIVE_DOUBLE, H5S_ALL, H5S_ALL, H5P_DEFAULT, values.data());
  H5Dclose(set);
  H5Pclose(layout);
  H5Sclose(space);
}

void WrittenHdf5::texts(const std::string& path, const std::vector<std::string>& values, bool fixed)
{
  const hsize_t count = values.size();
  std::size_t longest = 1;
  std::vector<const char*> pointers;
  for (const std::string& value : values)
  {
    longest = std::max(longest, value.size());
    pointers.push_back(value.c_str());
  }
  std::string padded;
  for (std::string value : values)
  {
    value.resize(longest, '\0');
    padded += value;
  }
  const hid_t type = H5Tcopy(H5T_C_S1);
  H5Tset_size(type, fixed ? longest : H5T_VARIABLE);
  H5Tset_strpad(type, H5T_STR_NULLPAD);
  const hid_t space = H5Screate_simple(1, &count, nullptr);
  const hid_t set = H5Dcreate2(id, path.c_str(), type, space, parents, H5P_DEFAULT, H5P_DEFAULT);
  const void* data = fixed ? static_cast<const void*>(padded.data()) : pointers.data();
  H5Dwrite(set, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, data);
  H5Dclose(set);
  H5Sclose(space);
  H5Tclose(type);
}

void WrittenHdf5::number(const std::string& object, const std::string& attribute, double value)
{
  const hid_t space = H5Screate(H5S_SCALAR);
  const hid_t made = H5Acreate_by_name(id, object.c_str(), attribute.c_str(), H5T_IEEE_F64LE, space,
                                       H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT);
  H5Awrite(made, H5T_NATIVE_DOUBLE, &value);
  H5Aclose(made);
  H5Sclose(space);
}

void WrittenHdf5::texts(const std::string& object, const std::string& attribute,
                        const std::vector<std::string>& values)
{
  const hsize_t count = values.size();
  std::vector<const char*> pointers;
  for (const std::string& value : values)
    pointers.push_back(value.c_str());
  const hid_t type = H5Tcopy(H5T_C_S1);
  H5Tset_size(type, H5T_VARIABLE);
  const hid_t space = H5Screate_simple(1, &count, nullptr);
  const hid_t made = H5Acreate_by_name(id, object.c_str(), attribute.c_str(), type, space,
                                       H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT);
  H5Awrite(made, type, pointers.data());
  H5Aclose(made);
  H5Sclose(space);
  H5Tclose(type);
}
