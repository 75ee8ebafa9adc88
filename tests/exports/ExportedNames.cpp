#include "exports/ExportedNames.h"

#include <algorithm>
#include <regex>
#include <sstream>

namespace Talmesh::exports
{
namespace
{

std::string withoutComments(const std::string& text)
{
  static const std::regex comment(R"(//[^\n]*|/\*[^*]*\*+([^/*][^*]*\*+)*/|#[^\n]*)");
  return std::regex_replace(text, comment, "");
}

/// What a declaration, up to its first brace or semicolon, names as a class; empty if none.
std::string classIn(const std::string& declaration)
{
  static const std::regex head(
      R"(^\s*(?:template\s*<[^{]*>\s*)?(?:class|struct)\s+(?:[A-Z_]+\s+)?(\w+)\s*(?:final\s*)?(?::[^:].*)?$)");
  std::smatch match;
  std::string line = declaration;
  std::replace(line.begin(), line.end(), '\n', ' ');
  return std::regex_match(line, match, head) ? match[1].str() : std::string();
}

std::string namespaceIn(const std::string& declaration)
{
  static const std::regex head(R"(namespace\s+([\w:]+)\s*$)");
  std::smatch match;
  return std::regex_search(declaration, match, head) ? match[1].str() : std::string();
}

/// The function before the first parenthesis, or the variable at the end.
std::string functionIn(const std::string& declaration)
{
  static const std::regex last(R"(([~\w]+)\s*$)");
  const std::string head = declaration.substr(0, declaration.find('('));
  std::smatch match;
  return std::regex_search(head, match, last) ? match[1].str() : std::string();
}

/// A text whose positions within <> or () are to be told from the others.
class Depth
{
public:
  void read(char c)
  {
    if (c == '<' || c == '(')
      ++depth;
    else if ((c == '>' || c == ')') && depth > 0)
      --depth;
  }
  bool isOutside() const { return depth == 0; }

private:
  int depth = 0;
};

bool isMember(const std::string& name, const Names& shown)
{
  for (auto end = name.size(); end != std::string::npos;
       end = end ? name.rfind("::", end - 1) : end)
    if (shown.count(name.substr(0, end)) != 0)
      return true;
    else if (end == 0)
      break;
  return false;
}

/// Or of AddressSanitizer.
bool isOfTheLinker(const std::string& name)
{
  static const Names marks{"_init", "_fini", "_edata", "_end", "__bss_start"};
  return marks.count(name) != 0 || name.rfind("__odr_asan", 0) == 0;
}

} // namespace

Names exportedNames(const std::string& header, const std::string& macro)
{
  const std::regex word("\\b" + macro + "\\b");
  Names names;
  std::vector<std::string> scopes;
  std::string declaration;
  for (const char c : withoutComments(header))
  {
    if (c != '{' && c != '}' && c != ';')
    {
      declaration += c;
      continue;
    }
    std::string scope;
    for (const std::string& outer : scopes)
      scope += outer.empty() ? "" : outer + "::";
    const std::string named = classIn(declaration);
    if (std::regex_search(declaration, word))
      names.insert(scope + (named.empty() ? functionIn(declaration) : named));
    if (c == '{')
      scopes.push_back(named.empty() ? namespaceIn(declaration) : named);
    else if (c == '}' && !scopes.empty())
      scopes.pop_back();
    declaration.clear();
  }
  return names;
}

std::string nameOfSymbol(std::string symbol)
{
  static const std::regex about(
      R"(^((construction )?vtable|VTT|typeinfo( name)?|guard variable|(non-virtual |virtual |covariant return )?thunk)( for| to) )");
  static const std::regex abi(R"(\[abi:\w+\])");
  symbol = std::regex_replace(std::regex_replace(symbol, about, ""), abi, "");
  Depth depth;
  std::string name;
  for (const char c : symbol)
  {
    if (depth.isOutside() && c == '(')
      break;
    if (depth.isOutside() && c == ' ')
      name.clear();
    else if (depth.isOutside() && c != '<')
      name += c;
    depth.read(c);
  }
  return name;
}

std::vector<std::string> unexpectedSymbols(const std::string& listing, const Names& shown,
                                           const Names& own)
{
  static const std::regex entry(R"(^[0-9a-f]* *(\w) (.*)$)");
  static const std::string weak = "WwVvu";
  std::vector<std::string> unexpected;
  std::istringstream lines(listing);
  std::string line;
  while (std::getline(lines, line))
  {
    std::smatch match;
    if (!std::regex_match(line, match, entry))
      continue;
    const std::string name = nameOfSymbol(match[2]);
    const bool foreign = weak.find(match[1].str()) != std::string::npos &&
                         own.count(name.substr(0, name.find("::"))) == 0;
    if (!foreign && !isOfTheLinker(name) && !isMember(name, shown))
      unexpected.push_back(line);
  }
  return unexpected;
}

} // namespace Talmesh::exports
