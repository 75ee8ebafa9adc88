#ifndef Hdf5Object_h
#define Hdf5Object_h

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// The names of these calls mean the same in all versions from 1.10 on.
#define H5_USE_110_API
#include <hdf5.h>

namespace Talmesh::app
{

/// An object of the HDF5 library, closed with its owner.
class Hdf5Object
{
public:
  using Close = herr_t (*)(hid_t);

  Hdf5Object() = default;
  Hdf5Object(hid_t opened, Close closing)
      : id(opened)
      , close(closing)
  {
  }
  Hdf5Object(Hdf5Object&& other) noexcept
      : id(std::exchange(other.id, -1))
      , close(other.close)
  {
  }
  Hdf5Object& operator=(Hdf5Object&& other) noexcept
  {
    std::swap(id, other.id);
    std::swap(close, other.close);
    return *this;
  }
  ~Hdf5Object()
  {
    if (id >= 0)
      close(id);
  }

  bool isOpen() const { return id >= 0; }
  operator hid_t() const { return id; } // NOLINT: what the library calls an object

private:
  hid_t id = -1;
  Close close = nullptr;
};

/// What lies directly in a group, in the order of the numbers in their names. Links to other files
/// are not followed, nor are those by name.
struct Hdf5Members
{
  std::vector<std::string> groups;
  std::vector<std::string> dataSets;
};

/// @param most more members are left out
Hdf5Members hdf5MembersOf(hid_t group, std::size_t most);

Hdf5Object openHdf5Group(hid_t parent, const std::string& path);
Hdf5Object openHdf5DataSet(hid_t parent, const std::string& path);

/// Where an object lies in the file; the same one has one place, however it is reached.
haddr_t hdf5PlaceOf(hid_t object);

/// The texts of an attribute, of one or of a list of them; empty without such an attribute.
std::vector<std::string> hdf5Texts(hid_t object, const char* attribute);
/// The number of an attribute that is one number.
std::optional<double> hdf5Number(hid_t object, const char* attribute);
std::vector<std::string> hdf5Attributes(hid_t object);

/// The texts that are stored in `dataSet` or, of an attribute, in that.
std::string readHdf5Texts(hid_t stored, bool isAttribute, std::vector<std::string>& texts);

/// That the file is damaged, as far as the library tells.
std::string damagedHdf5();

} // namespace Talmesh::app

#endif
