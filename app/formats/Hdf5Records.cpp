#include "app/formats/Hdf5Records.h"

#include "app/import/ColumnWords.h"
#include "app/import/TableText.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t bytesAtOnce = 1 << 20;
constexpr std::size_t longestRecord = std::size_t{16} << 20U;

bool isNumber(H5T_class_t kind)
{
  return kind == H5T_INTEGER || kind == H5T_FLOAT || kind == H5T_ENUM;
}

/// A column on its way out of records.
struct FieldColumn
{
  NamedColumn column;
  ColumnWords words;
  std::size_t offset = 0;
  /// The bytes of a text; 0 for a number, and for a text of any length, which is a pointer.
  std::size_t textBytes = 0;
  bool isLongText = false;

  void add(const char* record)
  {
    const char* place = record + offset;
    if (isLongText)
    {
      const char* text = nullptr;
      std::memcpy(&text, place, sizeof text);
      words.add(text ? toUtf8(text) : std::string());
    }
    else if (textBytes > 0)
      words.add(toUtf8(std::string(place, strnlen(place, textBytes))));
    else
    {
      double number = 0.0;
      std::memcpy(&number, place, sizeof number);
      column.values.push_back(number);
    }
  }
};

class RecordReader
{
public:
  explicit RecordReader(hid_t dataSet_)
      : dataSet(dataSet_)
      , stored(H5Dget_type(dataSet_), H5Tclose)
  {
    const int members = H5Tget_nmembers(stored);
    for (int i = 0; i < members && !tooMany; ++i)
      addField(static_cast<unsigned>(i));
  }

  std::string read(std::size_t rows, const ImportProgress& progress)
  {
    if (tooMany || recordBytes > longestRecord)
      return withValues(translated("Hdf5Records", "it holds more than %1 columns"),
                        {std::to_string(mostColumns)});
    if (fields.empty() || !makeType())
      return damagedHdf5();
    const std::size_t most = std::max<std::size_t>(1, bytesAtOnce / recordBytes);
    const Hdf5Object space(H5Dget_space(dataSet), H5Sclose);
    for (std::size_t row = 0; row < rows; row += most)
    {
      const std::size_t count = std::min(most, rows - row);
      if (!readRows(space, row, count))
        return damagedHdf5();
      cancelled =
          progress && !progress(static_cast<double>(row + count) / static_cast<double>(rows));
      if (cancelled)
        return {};
    }
    return {};
  }

  void take(std::vector<NamedColumn>& columns)
  {
    for (FieldColumn& field : fields)
      if (!cancelled)
        columns.push_back(field.words.take(std::move(field.column)));
  }

private:
  struct Part
  {
    std::string name;
    Hdf5Object type;
    std::size_t offset;
  };

  void addField(unsigned index)
  {
    char* name = H5Tget_member_name(stored, index);
    const Hdf5Object type(H5Tget_member_type(stored, index), H5Tclose);
    const std::string shown = name ? name : "";
    H5free_memory(name);
    if (!type.isOpen())
      return;
    const H5T_class_t kind = H5Tget_class(type);
    if (isNumber(kind))
      addColumns(shown, Hdf5Object(H5Tcopy(H5T_NATIVE_DOUBLE), H5Tclose), 1);
    else if (kind == H5T_ARRAY)
      addNumbers(shown, type);
    else if (kind == H5T_STRING)
      addText(shown, type);
  }

  void addNumbers(const std::string& name, hid_t type)
  {
    const Hdf5Object base(H5Tget_super(type), H5Tclose);
    const int axes = H5Tget_array_ndims(type);
    std::vector<hsize_t> extents(static_cast<std::size_t>(std::max(axes, 1)));
    if (axes < 1 || !isNumber(H5Tget_class(base)) || H5Tget_array_dims2(type, extents.data()) < 0)
      return;
    std::size_t count = 1;
    for (const hsize_t extent : extents)
      count *= static_cast<std::size_t>(std::min<hsize_t>(extent, mostColumns + 1));
    tooMany = tooMany || count > mostColumns;
    if (!tooMany)
      addColumns(name,
                 Hdf5Object(H5Tarray_create2(H5T_NATIVE_DOUBLE, static_cast<unsigned>(axes),
                                             extents.data()),
                            H5Tclose),
                 count);
  }

  void addText(const std::string& name, hid_t type)
  {
    Hdf5Object text(H5Tcopy(H5T_C_S1), H5Tclose);
    H5Tset_cset(text, H5Tget_cset(type));
    const bool isLong = H5Tis_variable_str(type) > 0;
    const std::size_t length = isLong ? sizeof(char*) : H5Tget_size(type) + 1;
    H5Tset_size(text, isLong ? H5T_VARIABLE : length);
    FieldColumn& field = fields.emplace_back();
    field.column.name = toUtf8(name);
    field.offset = recordBytes;
    field.isLongText = isLong;
    field.textBytes = isLong ? 0 : length;
    parts.push_back({name, std::move(text), recordBytes});
    recordBytes += length;
  }

  void addColumns(const std::string& name, Hdf5Object type, std::size_t count)
  {
    tooMany = tooMany || fields.size() + count > mostColumns;
    parts.push_back({name, std::move(type), recordBytes});
    for (std::size_t i = 0; i < count && !tooMany; ++i, recordBytes += sizeof(double))
    {
      FieldColumn& field = fields.emplace_back();
      field.column.name = toUtf8(count == 1 ? name : name + ' ' + std::to_string(i + 1));
      field.offset = recordBytes;
    }
  }

  bool makeType()
  {
    memory = Hdf5Object(H5Tcreate(H5T_COMPOUND, recordBytes), H5Tclose);
    for (const Part& part : parts)
      if (H5Tinsert(memory, part.name.c_str(), part.offset, part.type) < 0)
        return false;
    return memory.isOpen();
  }

  bool readRows(hid_t space, std::size_t row, std::size_t count)
  {
    const hsize_t first = row;
    const hsize_t length = count;
    const Hdf5Object block(H5Screate_simple(1, &length, nullptr), H5Sclose);
    bytes.assign(count * recordBytes, '\0');
    if (H5Sselect_hyperslab(space, H5S_SELECT_SET, &first, nullptr, &length, nullptr) < 0 ||
        H5Dread(dataSet, memory, block, space, H5P_DEFAULT, bytes.data()) < 0)
      return false;
    for (FieldColumn& field : fields)
      for (std::size_t i = 0; i < count; ++i)
        field.add(bytes.data() + i * recordBytes);
    H5Dvlen_reclaim(memory, block, H5P_DEFAULT, bytes.data());
    return true;
  }

  hid_t dataSet;
  Hdf5Object stored;
  Hdf5Object memory;
  std::vector<Part> parts;
  std::vector<FieldColumn> fields;
  std::size_t recordBytes = 0;
  std::vector<char> bytes;
  bool tooMany = false;
  bool cancelled = false;
};

} // namespace

std::string readHdf5Records(hid_t dataSet, std::size_t rows, std::vector<NamedColumn>& columns,
                            const ImportProgress& progress)
{
  RecordReader reader(dataSet);
  std::string error = reader.read(rows, progress);
  if (error.empty())
    reader.take(columns);
  return error;
}

} // namespace Talmesh::app
