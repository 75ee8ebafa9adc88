#include "app/formats/NumpyFiles.h"

#include "app/formats/ArrayLayout.h"
#include "app/formats/NpyHeader.h"
#include "app/formats/UnpackLimit.h"
#include "app/formats/ZipArchive.h"
#include "app/import/ColumnWords.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t numbersAtOnce = 32 << 10;
constexpr std::string_view ending = ".npy";

using Device = Result<std::unique_ptr<QIODevice>>;

std::string cutShort()
{
  return translated("NumpyFiles", "the array is cut short; save or copy it again");
}

/// Takes elements of a fixed size from a device, some at a time.
class ElementReader
{
public:
  ElementReader(QIODevice& opened, std::size_t elementBytes, std::size_t elements)
      : device(opened)
      , size(elementBytes)
      , left(elements)
  {
  }

  /// @return how many elements there are now; 0 at the end, and where the file ends too early
  std::size_t next()
  {
    const std::size_t wanted = std::min(left, std::max<std::size_t>(1, (256 << 10) / size));
    bytes.resize(wanted * size);
    std::size_t got = 0;
    while (got < bytes.size())
    {
      const qint64 part = device.read(&bytes[got], static_cast<qint64>(bytes.size() - got));
      if (part <= 0)
        return 0;
      got += static_cast<std::size_t>(part);
    }
    left -= wanted;
    return wanted;
  }

  bool isComplete() const { return left == 0; }
  const char* element(std::size_t i) const { return bytes.data() + i * size; }

private:
  QIODevice& device;
  std::size_t size;
  std::size_t left;
  std::string bytes;
};

/// The arrays of one file, or of the members of an archive.
class NpySource : public ArraySource
{
public:
  /// @param name what messages and columns call the array
  /// @param bytes of the array with its header
  /// @return why the array cannot be read; empty on success
  std::string add(std::string name, std::uint64_t bytes, const std::function<Device()>& reopen)
  {
    const Device device = reopen();
    if (!device.hasValue())
      return device.error();
    const Result<NpyHeader> header = readNpyHeader(*device.value());
    if (!header.hasValue())
      return header.error();
    const NpyHeader& read = header.value();
    const std::size_t elements = numberOfValues(read.shape);
    if (elements > bytes / read.elementBytes())
      return cutShort();
    StoredArray array;
    array.name = std::move(name);
    array.shape = read.shape;
    array.firstIndexFastest = read.fortranOrder;
    if (read.structured)
      array.kind = StoredArray::Kind::Records;
    else if (read.fields.front().type.isText())
      array.kind = StoredArray::Kind::Texts;
    else if (read.fields.front().type.kind == NpyType::Kind::Padding)
      return translated("NumpyFiles",
                        "the array holds bytes without a meaning; save it as numbers");
    listed.push_back(array);
    headers.push_back(read);
    devices.push_back(reopen);
    return {};
  }

  const std::vector<StoredArray>& arrays() const override { return listed; }

  /// What lacks values is not listed.
  std::string objectionTo(std::size_t /*array*/) const override { return {}; }

  std::string readNumbers(std::size_t array, const NumberSink& sink) override
  {
    const NpyType& type = headers[array].fields.front().type;
    std::vector<double> numbers;
    return readElements(array,
                        [&](const ElementReader& elements, std::size_t count)
                        {
                          numbers.resize(count);
                          for (std::size_t i = 0; i < count; ++i)
                            numbers[i] = npyNumber(elements.element(i), type);
                          return sink(numbers.data(), count);
                        });
  }

  std::string readTexts(std::size_t array, std::vector<std::string>& texts) override
  {
    const NpyType& type = headers[array].fields.front().type;
    return readElements(array,
                        [&](const ElementReader& elements, std::size_t count)
                        {
                          for (std::size_t i = 0; i < count; ++i)
                            texts.push_back(npyText(elements.element(i), type));
                          return true;
                        });
  }

  std::string readRecords(std::size_t array, std::vector<NamedColumn>& columns,
                          const ImportProgress& progress) override
  {
    std::vector<Field> fields = columnsOf(headers[array]);
    std::size_t done = 0;
    bool cancelled = false;
    const std::string error =
        readElements(array,
                     [&](const ElementReader& elements, std::size_t count)
                     {
                       for (Field& field : fields)
                         for (std::size_t i = 0; i < count; ++i)
                           field.add(elements.element(i));
                       done += count;
                       cancelled =
                           progress && !progress(static_cast<double>(done) /
                                                 static_cast<double>(listed[array].shape.front()));
                       return !cancelled;
                     });
    if (!cancelled)
      for (Field& field : fields)
        columns.push_back(field.words.take(std::move(field.column)));
    return error;
  }

private:
  /// A column on its way out of records.
  struct Field
  {
    NamedColumn column;
    ColumnWords words;
    NpyType type;
    std::size_t offset = 0;

    void add(const char* element)
    {
      if (type.isText())
        words.add(npyText(element + offset, type));
      else
        column.values.push_back(npyNumber(element + offset, type));
    }
  };

  static std::vector<Field> columnsOf(const NpyHeader& header)
  {
    std::vector<Field> fields;
    std::size_t offset = 0;
    for (const NpyField& field : header.fields)
      for (std::size_t i = 0; i < field.count; ++i, offset += field.type.bytes)
      {
        if (field.type.kind == NpyType::Kind::Padding)
          continue;
        Field& added = fields.emplace_back();
        added.column.name =
            field.count == 1 ? field.name : field.name + ' ' + std::to_string(i + 1);
        added.type = field.type;
        added.offset = offset;
      }
    return fields;
  }

  template <typename Take>
  std::string readElements(std::size_t array, const Take& take)
  {
    const Device device = devices[array]();
    if (!device.hasValue())
      return device.error();
    const Result<NpyHeader> header = readNpyHeader(*device.value());
    if (!header.hasValue())
      return header.error();
    ElementReader elements(*device.value(), headers[array].elementBytes(),
                           numberOfValues(headers[array].shape));
    while (!elements.isComplete())
    {
      const std::size_t count = elements.next();
      if (count == 0)
        return cutShort();
      if (!take(elements, count))
        return {};
    }
    return {};
  }

  std::vector<StoredArray> listed;
  std::vector<NpyHeader> headers;
  std::vector<std::function<Device()>> devices;
};

Device openFile(const QString& path)
{
  auto file = std::make_unique<QFile>(path);
  if (!file->open(QIODevice::ReadOnly))
    return Device::failed(file->errorString().toStdString());
  return Device(std::unique_ptr<QIODevice>(std::move(file)));
}

bool isArray(const std::string& name)
{
  return name.size() > ending.size() &&
         name.compare(name.size() - ending.size(), ending.size(), ending) == 0;
}

} // namespace

bool isNpy(const FileStart& start)
{
  return start.bytes.compare(0, 6, "\x93NUMPY") == 0;
}

bool isNpz(const FileStart& start)
{
  return !start.members.empty() && std::all_of(start.members.begin(), start.members.end(), isArray);
}

Result<FileContent> readNpy(const QString& path, const FormatRequest& /*request*/,
                            const ImportProgress& progress)
{
  NpySource source;
  const std::string error = source.add(QFileInfo(path).completeBaseName().toStdString(),
                                       static_cast<std::uint64_t>(QFileInfo(path).size()),
                                       [path] { return openFile(path); });
  if (!error.empty())
    return Result<FileContent>::failed(error);
  return arrangeArrays(source, FormatRequest(), progress);
}

Result<FileContent> readNpz(const QString& path, const FormatRequest& request,
                            const ImportProgress& progress)
{
  const Result<std::shared_ptr<ZipArchive>> archive = ZipArchive::open(path);
  if (!archive.hasValue())
    return Result<FileContent>::without(archive);
  NpySource source;
  std::vector<std::string> notes;
  const std::vector<ZipMember>& members = archive.value()->members();
  for (std::size_t i = 0; i < members.size(); ++i)
  {
    const std::string name = members[i].name.substr(0, members[i].name.size() - ending.size());
    const std::string error =
        source.add(name, members[i].bytes, [zip = archive.value(), i] { return zip->read(i); });
    if (!error.empty())
      notes.push_back(withValues(translated("NumpyFiles", "The array %1 is left out: %2."),
                                 {quotedForMessage(name), error}));
  }
  if (source.arrays().empty())
    return Result<FileContent>::failed(notes.front());
  Result<FileContent> content = arrangeArrays(source, request, progress);
  if (content.hasValue())
    content.value().notes.insert(content.value().notes.begin(), notes.begin(), notes.end());
  return content;
}

} // namespace Talmesh::app
