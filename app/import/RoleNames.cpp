#include "app/import/RoleNames.h"

#include "app/import/AsciiText.h"
#include "app/import/Utf8Text.h"

#include <algorithm>
#include <array>
#include <string>

namespace Talmesh::app
{

namespace
{

/// The name in small letters, without what people part words with and without a unit in brackets.
std::string plainName(std::string_view name)
{
  name = withoutOuterBlanks(name);
  if (!name.empty() && (name.back() == ']' || name.back() == ')'))
  {
    const std::size_t open = name.find_last_of(name.back() == ']' ? '[' : '(');
    if (open != std::string_view::npos && open > 0)
      name = withoutOuterBlanks(name.substr(0, open));
  }
  std::string plain;
  for (const char c : name)
    if (c != '_' && c != '-' && c != ' ' && c != '.')
      plain += toLower(c);
  return plain;
}

template <std::size_t N>
bool isOneOf(std::string_view text, const std::array<std::string_view, N>& words)
{
  return std::find(words.begin(), words.end(), text) != words.end();
}

bool endsWith(std::string_view text, std::string_view end)
{
  return text.size() > end.size() && text.substr(text.size() - end.size()) == end;
}

bool isDigit(char c)
{
  return c >= '0' && c <= '9';
}

constexpr std::array<std::string_view, 37> itemWords = {
    "item",     "items",      "species",    "speciesid",    "speciesname",   "variable",
    "var",      "variables",  "observable", "observableid", "name",          "quantity",
    "molecule", "protein",    "gene",       "analyte",      "metabolite",    "compound",
    "marker",   "readout",    "signal",     "channel",      "parametername", "dvid",
    "dvname",   "ytype",      "spezies",    "variablename", "stoff",         "grösse",
    "größe",    "messgrösse", "messgröße",  "espece",       "espèce",        "especie",
    "key"};

constexpr std::array<std::string_view, 28> valueWords = {
    "value",         "values", "val",   "conc",   "concentration", "measurement", "measured",
    "simulation",    "amount", "level", "count",  "counts",        "abundance",   "intensity",
    "expression",    "dv",     "y",     "obs",    "observation",   "wert",        "messwert",
    "konzentration", "valeur", "valor", "mesure", "concentracion", "number",      "expr"};

constexpr std::array<std::string_view, 20> errorWords = {
    "sd",  "sem",    "se",          "std",      "stddev", "stderr",          "error",
    "err", "sigma",  "uncertainty", "variance", "cv",     "noiseparameters", "noise",
    "ci",  "fehler", "streuung",    "erreur",   "stdev",  "standarderror"};

constexpr std::array<std::string_view, 8> meanWords = {"mean",       "average", "avg",     "median",
                                                       "mittelwert", "mittel",  "moyenne", "media"};

constexpr std::array<std::string_view, 10> rowNumberWords = {
    "rownames", "x", "1", "unnamed:0", "index", "rowname", "rowid", "rownumber", "row", "obsno"};

constexpr std::array<std::string_view, 14> drawWords = {
    "chain",   "draw",       "iteration", "iter",   "sample", "sampleid", "start",
    "startid", "multistart", "particle",  "walker", "step",   "fit",      "paramset"};

constexpr std::array<std::string_view, 31> resultWords = {"lp",
                                                          "loss",
                                                          "objective",
                                                          "objectivevalue",
                                                          "fval",
                                                          "fmin",
                                                          "chi2",
                                                          "chisq",
                                                          "chisquare",
                                                          "chisquared",
                                                          "cost",
                                                          "score",
                                                          "sse",
                                                          "ssr",
                                                          "rss",
                                                          "rmse",
                                                          "mse",
                                                          "nllh",
                                                          "llh",
                                                          "loglik",
                                                          "loglikelihood",
                                                          "nll",
                                                          "logprob",
                                                          "logposterior",
                                                          "logpost",
                                                          "likelihood",
                                                          "fitness",
                                                          "weight",
                                                          "acceptance",
                                                          "deviance",
                                                          "error"};

constexpr std::array<std::string_view, 37> countingWords = {
    "year",       "years",     "jahr",   "jahre",   "month",  "months",  "monat", "monate",
    "week",       "weeks",     "woche",  "wochen",  "day",    "days",    "tag",   "tage",
    "jour",       "jours",     "hour",   "hours",   "stunde", "stunden", "heure", "heures",
    "minute",     "minutes",   "second", "seconds", "cycle",  "cycles",  "step",  "timestep",
    "generation", "iteration", "iter",   "epoch",   "frame"};

constexpr std::array<std::string_view, 16> memberWords = {
    "id",   "trial", "seed", "particle", "well",  "tree", "chick",      "animal",
    "tier", "mouse", "maus", "cell",     "zelle", "plot", "individual", "experiment"};

constexpr std::array<std::string_view, 39> greekWords = {
    "alpha",     "beta", "gamma", "delta", "epsilon", "kappa", "lambda", "mu",   "nu",   "rho",
    "sigma",     "tau",  "theta", "phi",   "omega",   "eta",   "zeta",   "xi",   "par",  "param",
    "parameter", "rate", "hill",  "kcat",  "vmax",    "km",    "kon",    "koff", "kf",   "kr",
    "kd",        "kp",   "kdeg",  "ksyn",  "kin",     "kout",  "kel",    "dose", "dosis"};

} // namespace

bool isItemName(std::string_view name)
{
  return isOneOf(plainName(name), itemWords);
}

bool isValueName(std::string_view name)
{
  return isOneOf(plainName(name), valueWords);
}

bool isErrorName(std::string_view name)
{
  const std::string plain = plainName(name);
  if (isOneOf(plain, errorWords))
    return true;
  const std::size_t cut = name.find_last_of("_. ");
  return cut != std::string_view::npos && isOneOf(plainName(name.substr(cut + 1)), errorWords) &&
         plainName(name.substr(cut + 1)) != "error";
}

bool isMeanName(std::string_view name)
{
  return isOneOf(plainName(name), meanWords);
}

bool isRowNumberName(std::string_view name)
{
  // A small x and a column 1 hold what is plotted.
  return isOneOf(plainName(name), rowNumberWords) && name != "1" && name != "x";
}

bool namesRowsOnly(std::string_view name)
{
  const std::string plain = plainName(name);
  return isRowNumberName(name) && plain != "x" && plain != "1" && plain != "index";
}

bool isDrawName(std::string_view name)
{
  return isOneOf(plainName(name), drawWords);
}

bool isResultName(std::string_view name)
{
  // Stan ends what it tells of its draws so: lp__, stepsize__.
  return endsWith(name, "__") || isOneOf(plainName(name), resultWords);
}

bool isParameterName(std::string_view name)
{
  std::string plain = plainName(name);
  if (plain.size() > 1 && plain.front() == 'k' && name.size() > 1 &&
      (isDigit(name[1]) || name[1] == '_' || name[1] == '.'))
    return true;
  while (!plain.empty() && isDigit(plain.back()))
    plain.pop_back();
  return plain == "k" || plain == "p" || isOneOf(plain, greekWords);
}

bool isCountingName(std::string_view name)
{
  return isOneOf(plainName(name), countingWords) || countsInRunsOnly(name);
}

bool countsInRunsOnly(std::string_view name)
{
  const std::string plain = plainName(name);
  return plain == "age" || plain == "alter";
}

bool isMemberName(std::string_view name)
{
  std::string plain = plainName(name);
  for (const std::string_view end : {"id", "nr", "no", "number", "#"})
    if (endsWith(plain, end) && isOneOf(plain.substr(0, plain.size() - end.size()), memberWords))
      return true;
  return isOneOf(plain, memberWords);
}

bool isKeyName(std::string_view name)
{
  const std::string plain = plainName(name);
  return endsWith(plain, "id") || plain == "id" || isItemName(name);
}

} // namespace Talmesh::app
