#include "app/formats/NpyHeader.h"

#include "app/formats/PythonLiteral.h"
#include "app/import/TranslatedText.h"
#include "app/import/Utf8Text.h"

#include <QIODevice>

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace Talmesh::app
{

namespace
{

constexpr std::size_t longestHeader = 1 << 20;
constexpr std::size_t mostFields = 20000;
constexpr std::size_t longestValue = 1 << 20;
constexpr std::size_t mostAxes = 32;

using Header = Result<NpyHeader>;

std::string damaged()
{
  return translated("NpyHeader", "the header of the NumPy array is damaged; save it again");
}

std::string unknownType(const std::string& type)
{
  return withValues(translated("NpyHeader", "values of the NumPy type %1 are not read; save them "
                                            "with .astype(float)"),
                    {quotedForMessage(type)});
}

/// @return why the type cannot be read; empty on success
std::string readType(const std::string& text, NpyType& type)
{
  std::string_view rest = text;
  if (!rest.empty() &&
      (rest.front() == '<' || rest.front() == '>' || rest.front() == '|' || rest.front() == '='))
  {
    type.bigEndian = rest.front() == '>';
    rest.remove_prefix(1);
  }
  if (!rest.empty() && rest.front() == 'O')
    return translated("NpyHeader", "the array holds Python objects, which may run programs and are "
                                   "not read; save it as numbers or text");
  if (rest.size() < 2)
    return unknownType(text);
  const char letter = rest.front();
  const auto [end, error] = std::from_chars(rest.data() + 1, rest.data() + rest.size(), type.bytes);
  if (error != std::errc() || end != rest.data() + rest.size() || type.bytes > longestValue)
    return unknownType(text);
  const bool whole = type.bytes == 1 || type.bytes == 2 || type.bytes == 4 || type.bytes == 8;
  if (letter == 'f' && (type.bytes == 4 || type.bytes == 8))
    type.kind = NpyType::Kind::Float;
  else if (letter == 'i' && whole)
    type.kind = NpyType::Kind::Signed;
  else if ((letter == 'u' && whole) || (letter == 'b' && type.bytes == 1))
    type.kind = NpyType::Kind::Unsigned;
  else if (letter == 'S' || letter == 'a')
    type.kind = NpyType::Kind::Bytes;
  else if (letter == 'V')
    type.kind = NpyType::Kind::Padding;
  else if (letter == 'U')
  {
    type.kind = NpyType::Kind::Letters;
    type.bytes *= 4;
  }
  else
    return unknownType(text);
  return {};
}

/// A field is a tuple of its name, or of title and name, its type, and perhaps its shape.
std::string readField(const PythonLiteral& literal, NpyField& field)
{
  const std::vector<PythonLiteral>& parts = literal.parts;
  if (literal.kind != PythonLiteral::Kind::List || parts.size() < 2)
    return damaged();
  const PythonLiteral* name = &parts[0];
  if (name->kind == PythonLiteral::Kind::List && name->parts.size() == 2)
    name = &name->parts[1];
  if (name->kind != PythonLiteral::Kind::Text)
    return damaged();
  field.name = toUtf8(name->text);
  if (parts[1].kind != PythonLiteral::Kind::Text)
    return withValues(translated("NpyHeader", "the field %1 has fields of its own, which are not "
                                              "read; save each as an array"),
                      {quotedForMessage(field.name)});
  if (parts.size() > 2)
    for (const PythonLiteral& extent : parts[2].parts)
      field.count = std::min(field.count, longestValue) * std::min(extent.number, longestValue);
  if (field.count > mostFields)
    return damaged();
  return readType(parts[1].text, field.type);
}

std::string readFields(const PythonLiteral& type, NpyHeader& header)
{
  if (type.kind == PythonLiteral::Kind::Text)
    return readType(type.text, header.fields.emplace_back().type);
  if (type.kind != PythonLiteral::Kind::List || type.parts.empty() ||
      type.parts.size() > mostFields)
    return damaged();
  header.structured = true;
  std::size_t columns = 0;
  for (const PythonLiteral& part : type.parts)
  {
    const std::string error = readField(part, header.fields.emplace_back());
    if (!error.empty())
      return error;
    columns += header.fields.back().count;
  }
  return columns > mostFields ? damaged() : std::string();
}

Header headerOf(const std::string& text)
{
  const std::optional<PythonLiteral> literal = readPythonLiteral(text);
  const PythonLiteral* type = literal ? literal->find("descr") : nullptr;
  const PythonLiteral* order = literal ? literal->find("fortran_order") : nullptr;
  const PythonLiteral* shape = literal ? literal->find("shape") : nullptr;
  if (!type || !order || order->kind != PythonLiteral::Kind::Flag || !shape ||
      shape->kind != PythonLiteral::Kind::List || shape->parts.size() > mostAxes)
    return Header::failed(damaged());
  NpyHeader header;
  header.fortranOrder = order->flag;
  for (const PythonLiteral& extent : shape->parts)
  {
    if (extent.kind != PythonLiteral::Kind::Number)
      return Header::failed(damaged());
    header.shape.push_back(extent.number);
  }
  const std::string error = readFields(*type, header);
  if (!error.empty())
    return Header::failed(error);
  return header.elementBytes() == 0 ? Header::failed(damaged()) : Header(header);
}

std::uint64_t wholeNumber(const char* bytes, const NpyType& type)
{
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < type.bytes; ++i)
  {
    const std::size_t at = type.bigEndian ? i : type.bytes - 1 - i;
    number = number << 8U | static_cast<unsigned char>(bytes[at]);
  }
  return number;
}

} // namespace

std::size_t NpyHeader::elementBytes() const
{
  std::size_t bytes = 0;
  for (const NpyField& field : fields)
    bytes += field.count * field.type.bytes;
  return bytes;
}

Result<NpyHeader> readNpyHeader(QIODevice& device)
{
  const QByteArray start = device.read(8);
  if (start.size() != 8 || !start.startsWith("\x93NUMPY") || start[6] < 1 || start[6] > 3)
    return Header::failed(damaged());
  const int lengthBytes = start[6] == 1 ? 2 : 4;
  const QByteArray length = device.read(lengthBytes);
  if (length.size() != lengthBytes)
    return Header::failed(damaged());
  NpyType type;
  type.bytes = static_cast<std::size_t>(lengthBytes);
  const std::uint64_t bytes = wholeNumber(length.constData(), type);
  if (bytes > longestHeader)
    return Header::failed(damaged());
  const QByteArray text = device.read(static_cast<qint64>(bytes));
  if (static_cast<std::uint64_t>(text.size()) != bytes)
    return Header::failed(damaged());
  return headerOf(text.toStdString());
}

double npyNumber(const char* bytes, const NpyType& type)
{
  const std::uint64_t bits = wholeNumber(bytes, type);
  if (type.kind == NpyType::Kind::Unsigned)
    return static_cast<double>(bits);
  if (type.kind == NpyType::Kind::Signed)
  {
    const unsigned unused = 64U - 8U * static_cast<unsigned>(type.bytes);
    return static_cast<double>(static_cast<std::int64_t>(bits << unused) >> unused);
  }
  if (type.bytes == 4)
  {
    const auto half = static_cast<std::uint32_t>(bits);
    float number = 0.0F;
    std::copy_n(reinterpret_cast<const char*>(&half), sizeof number,
                reinterpret_cast<char*>(&number));
    return number;
  }
  double number = 0.0;
  std::copy_n(reinterpret_cast<const char*>(&bits), sizeof number,
              reinterpret_cast<char*>(&number));
  return number;
}

std::string npyText(const char* bytes, const NpyType& type)
{
  if (type.kind == NpyType::Kind::Bytes)
    return toUtf8(std::string(bytes, std::find(bytes, bytes + type.bytes, '\0')));
  NpyType letter{NpyType::Kind::Unsigned, 4, type.bigEndian};
  std::u32string letters;
  for (std::size_t at = 0; at + 4 <= type.bytes; at += 4)
  {
    const std::uint64_t code = wholeNumber(bytes + at, letter);
    if (code == 0)
      break;
    letters += static_cast<char32_t>(code <= 0x10FFFF ? code : 0xFFFD);
  }
  return QString::fromStdU32String(letters).toStdString();
}

} // namespace Talmesh::app
