#include "formats/WrittenFiles.h"

#include <QFile>

#include <algorithm>
#include <zip.h>
#include <zlib.h>

using namespace Talmesh::app;

QString WrittenFiles::path(const std::string& name) const
{
  return folder.filePath(QString::fromStdString(name));
}

QString WrittenFiles::write(const std::string& name, const std::string& bytes) const
{
  QFile file(path(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_EQ(file.write(bytes.data(), static_cast<qint64>(bytes.size())),
            static_cast<qint64>(bytes.size()));
  return file.fileName();
}

void writeZipTo(const QString& path,
                const std::vector<std::pair<std::string, std::string>>& members)
{
  int error = 0;
  zip_t* archive = zip_open(path.toLocal8Bit().constData(), ZIP_CREATE | ZIP_TRUNCATE, &error);
  ASSERT_NE(archive, nullptr);
  for (const auto& [member, content] : members)
  {
    zip_source_t* source = zip_source_buffer(archive, content.data(), content.size(), 0);
    const zip_int64_t place = zip_file_add(archive, member.c_str(), source, ZIP_FL_ENC_UTF_8);
    // The type of an OpenDocument file is stored as it is.
    if (member == "mimetype")
      zip_set_file_compression(archive, static_cast<zip_uint64_t>(place), ZIP_CM_STORE, 0);
  }
  ASSERT_EQ(zip_close(archive), 0);
}

QString
WrittenFiles::writeZip(const std::string& name,
                       const std::vector<std::pair<std::string, std::string>>& members) const
{
  writeZipTo(path(name), members);
  return path(name);
}

FileContent WrittenFiles::contentOf(const QString& file, const std::string& part) const
{
  const FileFormat* format = formatOf(file);
  if (!format)
  {
    ADD_FAILURE() << "no format";
    return {};
  }
  const Result<FileContent> content = readFormat(*format, file, {part}, {});
  EXPECT_EQ(content.error(), "");
  return content.hasValue() ? content.value() : FileContent();
}

std::string WrittenFiles::errorOf(const QString& file, const std::string& part) const
{
  const FileFormat* format = formatOf(file);
  if (!format)
    return "no format";
  const Result<FileContent> content = readFormat(*format, file, {part}, {});
  EXPECT_FALSE(content.hasValue());
  EXPECT_EQ(content.error().find('\n'), std::string::npos);
  return content.error();
}

std::string gzipped(const std::string& text)
{
  z_stream stream{};
  EXPECT_EQ(deflateInit2(&stream, 9, Z_DEFLATED, 15 + 16, 9, Z_DEFAULT_STRATEGY), Z_OK);
  std::string packed(deflateBound(&stream, text.size()) + 32, '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
  stream.avail_in = static_cast<uInt>(text.size());
  stream.next_out = reinterpret_cast<Bytef*>(&packed[0]);
  stream.avail_out = static_cast<uInt>(packed.size());
  EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  return packed;
}

std::string npy(const std::string& type, const std::string& shape, const std::string& values,
                bool fortranOrder)
{
  std::string header = "{'descr': " + type +
                       ", 'fortran_order': " + (fortranOrder ? "True" : "False") +
                       ", 'shape': " + shape + ", }";
  header.append(63 - (header.size() + 10) % 64, ' ');
  header += '\n';
  const auto size = static_cast<unsigned>(header.size());
  return std::string("\x93NUMPY\x01\0", 8) + static_cast<char>(size & 255U) +
         static_cast<char>(size >> 8U) + header + values;
}

std::vector<std::string> namesOf(const FileContent& content)
{
  std::vector<std::string> names;
  for (const NamedColumn& column : content.columns)
    names.push_back(column.name);
  return names;
}

namespace
{

const NamedColumn& columnOf(const FileContent& content, const std::string& name)
{
  static const NamedColumn none;
  for (const NamedColumn& column : content.columns)
    if (column.name == name)
      return column;
  ADD_FAILURE() << "no column " << name;
  return none;
}

} // namespace

std::vector<double> numbersOf(const FileContent& content, const std::string& column)
{
  return columnOf(content, column).values;
}

std::vector<std::string> textsOf(const FileContent& content, const std::string& column)
{
  const NamedColumn& found = columnOf(content, column);
  std::vector<std::string> texts;
  for (const int word : found.wordOfRow)
    texts.push_back(found.words[static_cast<std::size_t>(word)]);
  return texts;
}
