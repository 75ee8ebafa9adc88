#include "app/formats/PythonLiteral.h"

#include <charconv>

namespace Talmesh::app
{

namespace
{

constexpr int deepest = 12;

class LiteralReader
{
public:
  explicit LiteralReader(std::string_view text)
      : left(text)
  {
  }

  std::optional<PythonLiteral> readAll()
  {
    PythonLiteral literal;
    const bool sound = read(literal, 0) && atEnd();
    return sound ? std::optional<PythonLiteral>(std::move(literal)) : std::nullopt;
  }

private:
  void skipBlanks()
  {
    const std::size_t begin = left.find_first_not_of(" \t\r\n");
    left.remove_prefix(begin == std::string_view::npos ? left.size() : begin);
  }

  bool atEnd()
  {
    skipBlanks();
    return left.empty();
  }

  bool take(std::string_view word)
  {
    skipBlanks();
    if (left.substr(0, word.size()) != word)
      return false;
    left.remove_prefix(word.size());
    return true;
  }

  bool read(PythonLiteral& literal, int depth)
  {
    skipBlanks();
    if (left.empty() || depth > deepest)
      return false;
    literal.flag = take("True");
    if (literal.flag || take("False"))
      return true;
    if (take("{"))
      return readParts(literal, PythonLiteral::Kind::Dictionary, '}', depth);
    if (take("["))
      return readParts(literal, PythonLiteral::Kind::List, ']', depth);
    if (take("("))
      return readParts(literal, PythonLiteral::Kind::List, ')', depth);
    return left.front() >= '0' && left.front() <= '9' ? readNumber(literal) : readText(literal);
  }

  bool readNumber(PythonLiteral& literal)
  {
    literal.kind = PythonLiteral::Kind::Number;
    const auto [end, error] =
        std::from_chars(left.data(), left.data() + left.size(), literal.number);
    left.remove_prefix(static_cast<std::size_t>(end - left.data()));
    // Python 2 marks long numbers.
    take("L");
    return error == std::errc();
  }

  bool readText(PythonLiteral& literal)
  {
    literal.kind = PythonLiteral::Kind::Text;
    if (left.front() == 'u' || left.front() == 'b')
      left.remove_prefix(1);
    const char quote = left.empty() ? '\0' : left.front();
    if (quote != '\'' && quote != '"')
      return false;
    for (std::size_t at = 1; at < left.size(); ++at)
    {
      if (left[at] == quote)
      {
        left.remove_prefix(at + 1);
        return true;
      }
      if (left[at] == '\\' && at + 1 < left.size())
        ++at;
      literal.text += left[at];
    }
    return false;
  }

  bool readParts(PythonLiteral& literal, PythonLiteral::Kind kind, char end, int depth)
  {
    literal.kind = kind;
    const std::string_view closing(&end, 1);
    while (!take(closing))
    {
      if (!readPart(literal, depth))
        return false;
      if (kind == PythonLiteral::Kind::Dictionary && (!take(":") || !readPart(literal, depth)))
        return false;
      if (!take(","))
        return take(closing);
    }
    return true;
  }

  bool readPart(PythonLiteral& literal, int depth)
  {
    return read(literal.parts.emplace_back(), depth + 1);
  }

  std::string_view left;
};

} // namespace

const PythonLiteral* PythonLiteral::find(std::string_view key) const
{
  if (kind != Kind::Dictionary)
    return nullptr;
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2)
    if (parts[i].kind == Kind::Text && parts[i].text == key)
      return &parts[i + 1];
  return nullptr;
}

std::optional<PythonLiteral> readPythonLiteral(std::string_view source)
{
  return LiteralReader(source).readAll();
}

} // namespace Talmesh::app
