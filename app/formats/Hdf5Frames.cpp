#include "app/formats/Hdf5Frames.h"

#include "app/formats/ArrayScatter.h"
#include "app/formats/Hdf5Source.h"
#include "app/import/ColumnWords.h"
#include "app/import/SystemMemory.h"
#include "app/import/TableText.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

using Content = Result<FileContent>;

std::string kindOf(hid_t group)
{
  const std::vector<std::string> kind = hdf5Texts(group, "pandas_type");
  return kind.empty() ? std::string() : kind.front();
}

/// The columns of one type are a block: their names, and a row of values for each row.
class FrameReader
{
public:
  FrameReader(hid_t group, std::uint64_t fileBytes, const ImportProgress& progress_)
      : source(group, fileBytes)
      , arrays(source.arrays())
      , progress(progress_)
  {
  }

  Content readBlocks()
  {
    std::string error = readIndex();
    for (int block = 0; error.empty() && !cancelled; ++block)
    {
      const std::string name = "block" + std::to_string(block);
      const std::size_t items = find(name + "_items");
      if (items == arrays.size())
        break;
      error = readBlock(items, find(name + "_values"));
    }
    return finished(error);
  }

  Content readTable()
  {
    const std::size_t table = find("table");
    if (table == arrays.size() || arrays[table].kind != StoredArray::Kind::Records ||
        arrays[table].shape.size() != 1)
      return Content::failed(damagedHdf5());
    const std::string error = source.readRecords(table, content.columns, progress);
    cancelled = error.empty() && content.columns.empty();
    for (const NamedColumn& column : content.columns)
      if (column.name.rfind("values_block_", 0) == 0)
      {
        content.notes.push_back(
            translated("Hdf5Frames", "The names of columns are Python objects, which are not read; "
                                     "to_hdf() with data_columns=True writes them as text."));
        break;
      }
    return finished(error);
  }

private:
  std::size_t find(const std::string& name) const
  {
    const auto found = std::find_if(arrays.begin(), arrays.end(),
                                    [&](const StoredArray& array) { return array.name == name; });
    return static_cast<std::size_t>(found - arrays.begin());
  }

  Content finished(const std::string& error)
  {
    if (cancelled)
      return Content::cancelled();
    if (!error.empty())
      return Content::failed(error);
    return content.columns.empty() ? Content::failed(damagedHdf5()) : Content(std::move(content));
  }

  std::string readIndex()
  {
    const std::size_t index = find("axis1");
    if (index == arrays.size() || arrays[index].shape.size() != 1)
      return {};
    rows = arrays[index].shape.front();
    NamedColumn column{"index", {}, {}, {}};
    std::string error;
    if (arrays[index].kind == StoredArray::Kind::Numbers)
      error =
          source.readNumbers(index,
                             [&](const double* values, std::size_t count)
                             {
                               column.values.insert(column.values.end(), values, values + count);
                               return true;
                             });
    else
    {
      std::vector<std::string> texts;
      error = source.readTexts(index, texts);
      ColumnWords words;
      for (const std::string& text : texts)
        words.add(text);
      column = words.take(std::move(column));
    }
    content.columns.push_back(std::move(column));
    return error;
  }

  std::string readBlock(std::size_t items, std::size_t values)
  {
    std::vector<std::string> names;
    std::string error = source.readTexts(items, names);
    if (!error.empty())
      return error;
    const bool numbers = values < arrays.size() && arrays[values].shape.size() == 2 &&
                         arrays[values].kind == StoredArray::Kind::Numbers;
    if (!numbers)
    {
      for (const std::string& name : names)
        content.notes.push_back(withValues(
            translated("Hdf5Frames", "The column %1 holds Python objects and is left out."),
            {quotedForMessage(name)}));
      return {};
    }
    const std::vector<std::size_t>& shape = arrays[values].shape;
    if (shape.back() != names.size() || (rows > 0 && shape.front() != rows) ||
        names.size() + content.columns.size() > mostColumns)
      return damagedHdf5();
    rows = shape.front();
    error = source.objectionTo(values);
    if (!error.empty())
      return error;
    if (!hasMemory(rows * names.size() * sizeof(double)))
      return translated("Hdf5Frames", "the table does not fit into memory");
    std::vector<NamedColumn> block;
    std::vector<double*> places;
    for (const std::string& name : names)
      block.push_back({name, std::vector<double>(rows), {}, {}});
    for (NamedColumn& column : block)
      places.push_back(column.values.data());
    ArrayScatter scatter(arrays[values], {{ArrayAxis::Time, ArrayAxis::Item}, true}, places);
    std::size_t done = 0;
    error = source.readNumbers(values,
                               [&](const double* part, std::size_t count)
                               {
                                 scatter.add(part, count);
                                 done += count;
                                 cancelled = progress &&
                                             !progress(static_cast<double>(done) /
                                                       static_cast<double>(numberOfValues(shape)));
                                 return !cancelled;
                               });
    std::move(block.begin(), block.end(), std::back_inserter(content.columns));
    return error;
  }

  Hdf5Source source;
  const std::vector<StoredArray>& arrays;
  const ImportProgress& progress;
  FileContent content;
  std::size_t rows = 0;
  bool cancelled = false;
};

} // namespace

bool isPandasFrame(hid_t group)
{
  const std::string kind = kindOf(group);
  return kind == "frame" || kind == "frame_table" || kind == "appendable_frame";
}

Result<FileContent> readPandasFrame(hid_t group, std::uint64_t fileBytes,
                                    const ImportProgress& progress)
{
  FrameReader reader(group, fileBytes, progress);
  return kindOf(group) == "frame" ? reader.readBlocks() : reader.readTable();
}

} // namespace Talmesh::app
