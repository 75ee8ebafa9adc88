#ifndef WrittenHdf5_h
#define WrittenHdf5_h

#include <QString>

#include <string>
#include <vector>

#define H5_USE_110_API
#include <hdf5.h>

/// Writes an HDF5 file as its own library does. Parents of a path are made with it.
class WrittenHdf5
{
public:
  explicit WrittenHdf5(const QString& path);
  WrittenHdf5(const WrittenHdf5&) = delete;
  WrittenHdf5& operator=(const WrittenHdf5&) = delete;
  ~WrittenHdf5();

  void group(const std::string& path);
  /// Numbers, compressed in chunks of one step of the first axis where `packed`.
  void numbers(const std::string& path, const std::vector<hsize_t>& shape,
               const std::vector<double>& values, bool packed = false);
  /// Texts of any length, or of the fixed one of the longest.
  void texts(const std::string& path, const std::vector<std::string>& values, bool fixed = false);
  void number(const std::string& object, const std::string& attribute, double value);
  void texts(const std::string& object, const std::string& attribute,
             const std::vector<std::string>& values);
  hid_t file() const { return id; }

private:
  hid_t id;
  hid_t parents;
};

#endif
