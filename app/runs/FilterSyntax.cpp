#include "app/runs/FilterSyntax.h"

#include "app/import/NumberText.h"
#include "app/import/TranslatedText.h"

#include <boost/spirit/home/x3.hpp>

#include <algorithm>
#include <string>

namespace Talmesh::app
{

namespace
{

namespace x3 = boost::spirit::x3;
using Kind = FilterNode::Kind;

struct TextBegin;

/// Where the next piece begins; blanks before it have been passed.
const auto here = [](auto& context)
{
  x3::_val(context).position =
      static_cast<std::size_t>(x3::_where(context).begin() - x3::get<TextBegin>(context).get());
};

const auto child = [](auto& context)
{ x3::_val(context).children.push_back(std::move(x3::_attr(context))); };

const auto mark = [](auto& context) { x3::_val(context).marks.push_back(x3::_attr(context)); };

template <char sign>
const auto marked = [](auto& context) { x3::_val(context).marks.push_back(sign); };

/// The parser's own number may be another one in its last digit.
const auto number = [](auto& context)
{
  const std::string digits(x3::_attr(context).begin(), x3::_attr(context).end());
  x3::_val(context).number = readNumber(digits, false).value;
};

const auto named = [](auto& context)
{
  x3::_val(context).kind = Kind::Name;
  x3::_val(context).name = x3::_attr(context);
};

/// What stands alone is no sum of one.
template <Kind kind>
const auto joined = [](auto& context)
{
  FilterNode& node = x3::_val(context);
  node.kind = kind;
  if (node.children.size() > 1 || node.marks == "-")
    return;
  FilterNode only = std::move(node.children.front());
  node = std::move(only);
};

const auto called = [](auto& context) { x3::_val(context).kind = Kind::Call; };

/// Every second "not" undoes the one before.
const auto negated = [](auto& context)
{
  FilterNode& node = x3::_val(context);
  FilterNode only = std::move(node.children.front());
  if (node.marks.size() % 2 == 0)
  {
    node = std::move(only);
    return;
  }
  node.kind = Kind::Not;
  node.marks.clear();
  node.children.front() = std::move(only);
};

/// What stands in parentheses is itself.
const auto whole = [](auto& context) { x3::_val(context) = std::move(x3::_attr(context)); };

/// A minus before a factor, or none.
const auto sign = [](auto& context)
{
  const auto& signs = x3::_attr(context);
  const bool minus = std::count(signs.begin(), signs.end(), '-') % 2 == 1;
  x3::_val(context).marks.push_back(minus ? '-' : '+');
};

/// As many digits as there are, however large the number: what is wrong with it is said later.
/// Words such as "infinity" are names.
const auto digits = +x3::char_('0', '9');
const auto plainNumber = x3::lexeme[((digits >> -(x3::char_('.') >> *x3::char_('0', '9'))) |
                                     (x3::char_('.') >> digits)) >>
                                    -(x3::char_("eE") >> -x3::char_("+-") >> digits)];

// Bytes above ASCII are letters: what they are in UTF-8 is not for a filter to say.
const auto letter =
    x3::char_('a', 'z') | x3::char_('A', 'Z') | x3::char_('_') | x3::char_('\x80', '\xff');
const auto wordByte = letter | x3::char_('0', '9') | x3::char_('.');

auto keyword(const char* word)
{
  return x3::lexeme[x3::no_case[x3::lit(word)] >> !wordByte];
}

const auto reserved = x3::no_case[x3::lit("and") | "xor" | "or" | "not" | "over"] >> !wordByte;
const auto word = x3::rule<struct WordTag, std::string>("word") =
    x3::lexeme[!reserved >> letter >> *wordByte];
const auto closingQuote = x3::rule<struct ClosingQuoteTag>("quote") = x3::lit('"');
const auto quoted = x3::rule<struct QuotedTag, std::string>("quoted") =
    x3::lexeme[('"' >> *((x3::char_ - '"') | (x3::lit("\"\"") >> x3::attr('"')))) > closingQuote];
const auto closing = x3::rule<struct ClosingTag>("closing") = x3::lit(')');

struct ComparisonSigns : x3::symbols<char>
{
  ComparisonSigns()
  {
    add("<", '<')("<=", 'l')(">", '>')(">=", 'g')("=", '=')("==", '=')("!=", '!')("<>", '!');
  }
} const comparisonSigns;

const x3::rule<struct OrTag, FilterNode> orRule("value");
const x3::rule<struct XorTag, FilterNode> xorRule("value");
const x3::rule<struct AndTag, FilterNode> andRule("value");
const x3::rule<struct NotTag, FilterNode> notRule("value");
const x3::rule<struct ComparisonTag, FilterNode> comparisonRule("value");
const x3::rule<struct SumTag, FilterNode> sumRule("value");
const x3::rule<struct ProductTag, FilterNode> productRule("value");
const x3::rule<struct PowerTag, FilterNode> powerRule("value");
const x3::rule<struct PrimaryTag, FilterNode> primaryRule("value");
const x3::rule<struct ArgumentTag, FilterNode> argumentRule("value");

const auto signs = *x3::char_("+-");

const auto orRule_def = x3::eps[here] >> xorRule[child] >>
                        *(keyword("or") > xorRule[child]) >> x3::eps[joined<Kind::Or>];
const auto xorRule_def = x3::eps[here] >> andRule[child] >>
                         *(keyword("xor") > andRule[child]) >> x3::eps[joined<Kind::Xor>];
const auto andRule_def = x3::eps[here] >> notRule[child] >>
                         *(keyword("and") > notRule[child]) >> x3::eps[joined<Kind::And>];
const auto notRule_def = x3::eps[here] >> *(keyword("not") >> x3::eps[marked<'!'>]) >>
                         comparisonRule[child] >> x3::eps[negated];
const auto comparisonRule_def =
    x3::eps[here] >> sumRule[child] >> x3::eps[marked<'+'>] >>
    *(comparisonSigns[mark] > sumRule[child]) >> x3::eps[joined<Kind::Comparison>];
const auto
    sumRule_def = x3::eps[here] >> productRule[child] >> x3::eps[marked<'+'>] >>
                  *(x3::char_("+-")[mark] > productRule[child]) >> x3::eps[joined<Kind::Sum>];
const auto
    productRule_def = x3::eps[here] >> powerRule[child] >> x3::eps[marked<'*'>] >>
                      *(x3::char_("*/")[mark] > powerRule[child]) >> x3::eps[joined<Kind::Product>];
const auto
    powerRule_def = x3::eps[here] >> signs[sign] >> primaryRule[child] >>
                    *('^' > signs[sign] > primaryRule[child]) >> x3::eps[joined<Kind::Power>];
const auto primaryRule_def = x3::eps[here] >>
                             (x3::raw[plainNumber][number] | quoted[named] |
                              (word[named] >> -(('(' >> x3::eps[called]) >
                                                -(argumentRule[child] % ',') > closing)) |
                              ('(' > orRule[whole] > closing));
const auto
    argumentRule_def = x3::eps[here] >> orRule[child] >>
                       -(keyword("over") > primaryRule[child]) >> x3::eps[joined<Kind::Over>];

BOOST_SPIRIT_DEFINE(orRule, xorRule, andRule, notRule, comparisonRule, sumRule, productRule,
                    powerRule, primaryRule, argumentRule)

const auto blank = x3::char_(" \t\r\n");

/// The byte at which parentheses are too deep; npos if nowhere.
std::size_t tooDeep(std::string_view text)
{
  int depth = 0;
  bool quotedText = false;
  for (std::size_t i = 0; i < text.size(); ++i)
  {
    quotedText ^= text[i] == '"';
    if (quotedText)
      continue;
    depth += (text[i] == '(') - (text[i] == ')');
    if (depth > deepestFilter)
      return i;
  }
  return std::string_view::npos;
}

std::string expectation(const std::string& rule)
{
  if (rule == "closing")
    return translated("RunFilter", "\")\" is missing here");
  if (rule == "quote")
    return translated("RunFilter", "the closing double quote is missing");
  return translated("RunFilter", "a name or a number is missing here");
}

std::size_t firstNoBlank(std::string_view text, std::size_t from)
{
  return std::min(text.size(), text.find_first_not_of(" \t\r\n", from));
}

} // namespace

FilterFault parseFilter(std::string_view text, FilterNode& filter)
{
  const std::size_t deep = tooDeep(text);
  if (deep != std::string_view::npos)
    return {deep, translated("RunFilter", "parentheses are nested too deep here")};
  const char* at = text.data();
  const char* const end = at + text.size();
  const char* const begin = at;
  filter = FilterNode();
  try
  {
    const bool read =
        x3::phrase_parse(at, end, x3::with<TextBegin>(std::cref(begin))[orRule], blank, filter);
    const std::size_t position = firstNoBlank(text, static_cast<std::size_t>(at - begin));
    if (!read)
      return {position, expectation("value")};
    if (position < text.size())
      return {position, translated("RunFilter", "an operator is missing here")};
  }
  catch (const x3::expectation_failure<const char*>& failure)
  {
    return {firstNoBlank(text, static_cast<std::size_t>(failure.where() - begin)),
            expectation(failure.which())};
  }
  return {};
}

std::string filterName(std::string_view name)
{
  const char* at = name.data();
  const char* const end = at + name.size();
  if (x3::parse(at, end, word) && at == end)
    return std::string(name);
  std::string text = "\"";
  for (const char byte : name)
    text.append(byte == '"' ? 2 : 1, byte);
  return text + '"';
}

} // namespace Talmesh::app
