#include "app/formats/Hdf5Source.h"

#include "app/formats/Hdf5Records.h"
#include "app/formats/UnpackLimit.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <QString>
#include <QStringList>

#include <algorithm>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t mostDataSets = 20000;
constexpr std::size_t numbersAtOnce = 64 << 10;
constexpr std::size_t mostNumbersAtOnce = 8 << 20;
constexpr std::size_t largestChunkCache = std::size_t{64} << 20U;

std::vector<std::size_t> shapeOf(hid_t dataSet)
{
  const Hdf5Object space(H5Dget_space(dataSet), H5Sclose);
  const int axes = space.isOpen() ? H5Sget_simple_extent_ndims(space) : -1;
  if (axes < 0 || H5Sget_simple_extent_type(space) == H5S_NULL)
    return {0};
  std::vector<hsize_t> extents(static_cast<std::size_t>(axes));
  if (axes > 0)
    H5Sget_simple_extent_dims(space, extents.data(), nullptr);
  return {extents.begin(), extents.end()};
}

/// The first attribute of these names that holds as many texts as there are places; one text may
/// name them all, parted by commas.
std::vector<std::string> namesIn(hid_t dataSet, std::initializer_list<const char*> attributes,
                                 std::size_t places)
{
  for (const char* attribute : attributes)
  {
    std::vector<std::string> texts = hdf5Texts(dataSet, attribute);
    if (texts.size() == 1 && places > 1)
    {
      const QStringList parts = QString::fromStdString(texts.front()).split(QLatin1Char(','));
      texts.clear();
      for (const QString& part : parts)
        texts.push_back(part.trimmed().toStdString());
    }
    if (texts.size() == places)
      return texts;
  }
  return {};
}

/// What the file calls the axes: by its own attribute, or by the scales that are attached to them.
std::vector<std::string> axesOf(hid_t dataSet, std::size_t axes)
{
  std::vector<std::string> names =
      namesIn(dataSet, {"axes", "dims", "dimensions", "DIMENSION_LABELS"}, axes);
  if (!names.empty() || H5Aexists(dataSet, "DIMENSION_LIST") <= 0)
    return names;
  const Hdf5Object attribute(H5Aopen(dataSet, "DIMENSION_LIST", H5P_DEFAULT), H5Aclose);
  const Hdf5Object space(H5Aget_space(attribute), H5Sclose);
  const Hdf5Object type(H5Tvlen_create(H5T_STD_REF_OBJ), H5Tclose);
  std::vector<hvl_t> lists(axes, hvl_t{0, nullptr});
  if (H5Sget_simple_extent_npoints(space) != static_cast<hssize_t>(axes) ||
      H5Aread(attribute, type, lists.data()) < 0)
    return {};
  for (const hvl_t& scales : lists)
  {
    std::vector<char> path(1024, '\0');
    Hdf5Object scale;
    if (scales.len > 0)
      scale = Hdf5Object(H5Rdereference2(dataSet, H5P_DEFAULT, H5R_OBJECT, scales.p), H5Oclose);
    if (scale.isOpen())
      H5Iget_name(scale, path.data(), path.size() - 1);
    names.emplace_back(path.data());
  }
  H5Dvlen_reclaim(type, space, H5P_DEFAULT, lists.data());
  return names;
}

/// netCDF writes such a data set for an axis without values.
bool isBareAxis(hid_t dataSet)
{
  const std::vector<std::string> name = hdf5Texts(dataSet, "NAME");
  return !name.empty() &&
         name.front().rfind("This is a netCDF dimension but not a netCDF variable", 0) == 0;
}

/// How many rows of the first axis are read at once: some chunks of the file as a whole, which are
/// unpacked once then.
std::size_t rowsAtOnce(hid_t dataSet, std::size_t rowNumbers, std::size_t axes)
{
  std::size_t rows = std::max<std::size_t>(1, numbersAtOnce / rowNumbers);
  const Hdf5Object layout(H5Dget_create_plist(dataSet), H5Pclose);
  std::vector<hsize_t> chunk(axes);
  if (H5Pget_layout(layout) != H5D_CHUNKED ||
      H5Pget_chunk(layout, static_cast<int>(axes), chunk.data()) < 0)
    return rows;
  const auto step = static_cast<std::size_t>(std::max<hsize_t>(1, chunk.front()));
  if (step > mostNumbersAtOnce / rowNumbers)
    return rows;
  return (rows + step - 1) / step * step;
}

} // namespace

Hdf5Source::Hdf5Source(hid_t group_, std::uint64_t fileBytes_)
    : group(group_)
    , fileBytes(fileBytes_)
{
  for (const std::string& name : hdf5MembersOf(group, mostDataSets).dataSets)
    add(name);
}

void Hdf5Source::add(const std::string& name)
{
  const Hdf5Object dataSet = openHdf5DataSet(group, name);
  if (!dataSet.isOpen() || isBareAxis(dataSet))
    return;
  const Hdf5Object type(H5Dget_type(dataSet), H5Tclose);
  const H5T_class_t kind = H5Tget_class(type);
  StoredArray array;
  array.name = toUtf8(name);
  if (kind == H5T_STRING)
    array.kind = StoredArray::Kind::Texts;
  else if (kind == H5T_COMPOUND)
    array.kind = StoredArray::Kind::Records;
  else if (kind != H5T_INTEGER && kind != H5T_FLOAT && kind != H5T_ENUM)
    return;
  array.shape = shapeOf(dataSet);
  if (!array.shape.empty())
  {
    array.axes = axesOf(dataSet, array.shape.size());
    array.labels =
        namesIn(dataSet, {"columns", "names", "items", "species", "labels", "column_names"},
                array.shape.back());
  }
  listed.push_back(array);
}

Hdf5Object Hdf5Source::open(std::size_t array) const
{
  const std::string name = listed[array].name;
  const Hdf5Object access(H5Pcreate(H5P_DATASET_ACCESS), H5Pclose);
  H5Pset_chunk_cache(access, 12421, largestChunkCache, 1.0);
  return {H5Dopen2(group, name.c_str(), access), H5Dclose};
}

std::string Hdf5Source::whyNotFilled(hid_t dataSet, std::uint64_t elementBytes,
                                     std::size_t elements) const
{
  const Hdf5Object layout(H5Dget_create_plist(dataSet), H5Pclose);
  if (H5Pget_layout(layout) == H5D_VIRTUAL || H5Pget_external_count(layout) > 0)
    return translated("Hdf5Source",
                      "its values lie in other files, which are not read; copy them into one file");
  if (elements > UINT64_MAX / std::max<std::uint64_t>(1, elementBytes))
    return damagedHdf5();
  const std::uint64_t stored = std::min<std::uint64_t>(H5Dget_storage_size(dataSet), fileBytes);
  return UnpackLimit(stored).objection(elements * elementBytes);
}

std::string Hdf5Source::objectionTo(std::size_t array) const
{
  const Hdf5Object dataSet = open(array);
  return dataSet.isOpen()
             ? whyNotFilled(dataSet, sizeof(double), numberOfValues(listed[array].shape))
             : damagedHdf5();
}

std::string Hdf5Source::readNumbers(std::size_t array, const NumberSink& sink)
{
  const std::vector<std::size_t>& shape = listed[array].shape;
  const Hdf5Object dataSet = open(array);
  const std::size_t elements = numberOfValues(shape);
  const std::string refused =
      dataSet.isOpen() ? whyNotFilled(dataSet, sizeof(double), elements) : damagedHdf5();
  if (!refused.empty() || elements == 0)
    return refused;
  if (shape.empty())
  {
    double value = 0.0;
    if (H5Dread(dataSet, H5T_NATIVE_DOUBLE, H5S_ALL, H5S_ALL, H5P_DEFAULT, &value) < 0)
      return damagedHdf5();
    sink(&value, 1);
    return {};
  }
  const std::size_t rowNumbers = elements / shape.front();
  const std::size_t block = rowsAtOnce(dataSet, rowNumbers, shape.size());
  const Hdf5Object space(H5Dget_space(dataSet), H5Sclose);
  std::vector<hsize_t> start(shape.size(), 0);
  std::vector<hsize_t> count(shape.begin(), shape.end());
  std::vector<double> values;
  for (std::size_t row = 0; row < shape.front(); row += block)
  {
    start.front() = row;
    count.front() = std::min(block, shape.front() - row);
    values.resize(static_cast<std::size_t>(count.front()) * rowNumbers);
    const hsize_t length = values.size();
    const Hdf5Object memory(H5Screate_simple(1, &length, nullptr), H5Sclose);
    if (H5Sselect_hyperslab(space, H5S_SELECT_SET, start.data(), nullptr, count.data(), nullptr) <
            0 ||
        H5Dread(dataSet, H5T_NATIVE_DOUBLE, memory, space, H5P_DEFAULT, values.data()) < 0)
      return damagedHdf5();
    if (!sink(values.data(), values.size()))
      return {};
  }
  return {};
}

std::string Hdf5Source::readTexts(std::size_t array, std::vector<std::string>& texts)
{
  const Hdf5Object dataSet = open(array);
  if (!dataSet.isOpen())
    return damagedHdf5();
  const std::string refused = whyNotFilled(dataSet, 16, numberOfValues(listed[array].shape));
  return refused.empty() ? readHdf5Texts(dataSet, false, texts) : refused;
}

std::string Hdf5Source::readRecords(std::size_t array, std::vector<NamedColumn>& columns,
                                    const ImportProgress& progress)
{
  const Hdf5Object dataSet = open(array);
  if (!dataSet.isOpen())
    return damagedHdf5();
  const Hdf5Object type(H5Dget_type(dataSet), H5Tclose);
  const std::size_t elements = numberOfValues(listed[array].shape);
  const std::string refused = whyNotFilled(dataSet, H5Tget_size(type), elements);
  return refused.empty() ? readHdf5Records(dataSet, elements, columns, progress) : refused;
}

} // namespace Talmesh::app
