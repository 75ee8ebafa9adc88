#ifndef WrittenFiles_h
#define WrittenFiles_h

#include "app/formats/FileFormats.h"

#include <gtest/gtest.h>

#include <QString>
#include <QTemporaryDir>

#include <string>
#include <utility>
#include <vector>

/// Files of every format, made for a test.
class WrittenFiles : public testing::Test
{
protected:
  /// Writes a file of these bytes; its path.
  QString write(const std::string& name, const std::string& bytes) const;
  /// Writes a ZIP file.
  QString writeZip(const std::string& name,
                   const std::vector<std::pair<std::string, std::string>>& members) const;
  QString path(const std::string& name) const;

  /// What a file of any format holds, which must be readable.
  Talmesh::app::FileContent contentOf(const QString& file, const std::string& part = {}) const;
  /// Why it cannot be read, as it must not.
  std::string errorOf(const QString& file, const std::string& part = {}) const;

  QTemporaryDir folder;
};

/// Writes a ZIP file of these members.
void writeZipTo(const QString& path,
                const std::vector<std::pair<std::string, std::string>>& members);

/// What gzip makes of a text.
std::string gzipped(const std::string& text);

/// A `.npy` file: its header with the fields given, then the bytes of its values.
std::string npy(const std::string& type, const std::string& shape, const std::string& values,
                bool fortranOrder = false);

/// The bytes of numbers as this machine, which is little-endian, stores them.
template <typename Number>
std::string bytesOf(const std::vector<Number>& numbers)
{
  return {reinterpret_cast<const char*>(numbers.data()), numbers.size() * sizeof(Number)};
}

/// The names of columns.
std::vector<std::string> namesOf(const Talmesh::app::FileContent& content);
/// The values of a column; those of text are its words.
std::vector<double> numbersOf(const Talmesh::app::FileContent& content, const std::string& column);
std::vector<std::string> textsOf(const Talmesh::app::FileContent& content,
                                 const std::string& column);

#endif
