#include "app/formats/ArrayMeaning.h"

#include "app/import/AsciiText.h"
#include "app/import/ColumnRoles.h"

#include <algorithm>

namespace Talmesh::app
{

namespace
{

/// The last part of a path, in small letters, of letters alone: "parameternames".
std::string plainName(const std::string& name)
{
  std::string plain;
  for (const char c : name.substr(name.rfind('/') + 1))
  {
    const char small = toLower(c);
    if ((small >= 'a' && small <= 'z') || static_cast<unsigned char>(c) >= 0x80)
      plain += small;
  }
  return plain;
}

std::string lastPart(const std::string& name)
{
  return name.substr(name.rfind('/') + 1);
}

bool isOneOf(const std::string& name, std::initializer_list<std::string_view> names)
{
  return std::find(names.begin(), names.end(), std::string_view(name)) != names.end();
}

bool namesItems(const std::string& name)
{
  return isOneOf(plainName(name),
                 {"item",     "items",        "itemnames",  "name",        "names",
                  "species",  "speciesnames", "variable",   "variables",   "variablenames",
                  "molecule", "molecules",    "observable", "observables", "column",
                  "columns",  "columnnames",  "labels",     "states",      "statenames",
                  "channel",  "channels"});
}

bool namesRuns(const std::string& name)
{
  return isRunName(lastPart(name)) ||
         isOneOf(plainName(name), {"runs", "runnames", "runids", "sample", "samples", "draw",
                                   "draws", "simulations", "trajectories", "replicates", "sims"});
}

bool namesTimes(const std::string& name)
{
  return isTimeName(lastPart(name)) || isOneOf(plainName(name), {"times", "timepoints", "zeiten"});
}

bool holdsParameters(const std::string& name)
{
  return isOneOf(plainName(name),
                 {"parameter", "parameters", "params", "param", "parametervalues", "theta"});
}

bool namesParameters(const std::string& name)
{
  return isOneOf(plainName(name), {"parameternames", "paramnames", "parameterids",
                                   "parameterlabels", "paramlabels", "thetanames"});
}

/// How much speaks for an axis to have a meaning, by its name.
double scoreOfName(const std::string& name, ArrayAxis axis)
{
  const bool fits = axis == ArrayAxis::Run    ? namesRuns(name)
                    : axis == ArrayAxis::Time ? namesTimes(name)
                                              : namesItems(name);
  if (fits)
    return 8.0;
  return namesRuns(name) || namesTimes(name) || namesItems(name) ? -20.0 : 0.0;
}

class MeaningFinder
{
public:
  MeaningFinder(const StoredArray& array_, const std::vector<StoredArray>& arrays_,
                const ArrayCompanions& companions_)
      : array(array_)
      , arrays(arrays_)
      , companions(companions_)
  {
  }

  ArrayMeaning find()
  {
    using Axis = ArrayAxis;
    // The earlier one of equal scores counts: runs before times before items.
    if (array.shape.size() == 3)
    {
      std::vector<Axis> order{Axis::Run, Axis::Time, Axis::Item};
      do
        consider(order);
      while (std::next_permutation(order.begin(), order.end()));
    }
    else
    {
      for (const std::vector<Axis>& order : {std::vector<Axis>{Axis::Run, Axis::Time},
                                             {Axis::Time, Axis::Run},
                                             {Axis::Time, Axis::Item},
                                             {Axis::Item, Axis::Time},
                                             {Axis::Run, Axis::Item},
                                             {Axis::Item, Axis::Run}})
        consider(order);
    }
    best.told = bestScore > 0.0;
    return bestScore < 0.0 ? ArrayMeaning() : best;
  }

private:
  void consider(const std::vector<ArrayAxis>& order)
  {
    double score = 0.0;
    for (std::size_t i = 0; i < order.size(); ++i)
    {
      if (!array.axes.empty())
        score += scoreOfName(array.axes[i], order[i]);
      score += scoreOfLength(array.shape[i], order[i]);
    }
    if (!array.labels.empty())
      score += order.back() == ArrayAxis::Item ? 4.0 : -4.0;
    if (score > bestScore || best.axes.empty())
    {
      best.axes = order;
      bestScore = score;
    }
  }

  double scoreOfLength(std::size_t length, ArrayAxis axis) const
  {
    if (axis == ArrayAxis::Time && companions.time != noArray)
      return length == arrays[companions.time].shape.back() ? 4.0 : -40.0;
    if (axis == ArrayAxis::Item && companions.items != noArray)
      return length == arrays[companions.items].shape.front() ? 4.0 : -40.0;
    if (axis == ArrayAxis::Run && runs() != 0)
      return length == runs() ? 2.0 : -10.0;
    return 0.0;
  }

  /// How many runs the companions tell of; 0 when they tell nothing.
  std::size_t runs() const
  {
    for (const std::size_t companion : {companions.runs, companions.parameters})
      if (companion != noArray)
        return arrays[companion].shape.front();
    return companions.time != noArray && arrays[companions.time].shape.size() == 2
               ? arrays[companions.time].shape.front()
               : 0;
  }

  const StoredArray& array;
  const std::vector<StoredArray>& arrays;
  const ArrayCompanions& companions;
  ArrayMeaning best;
  double bestScore = 0.0;
};

} // namespace

bool ArrayCompanions::contains(std::size_t array) const
{
  return array == time || array == items || array == runs || array == parameters ||
         array == parameterNames;
}

ArrayCompanions findCompanions(const std::vector<StoredArray>& arrays)
{
  ArrayCompanions found;
  const auto take = [](std::size_t& place, std::size_t array, bool fits)
  {
    if (fits && place == noArray)
      place = array;
  };
  for (std::size_t i = 0; i < arrays.size(); ++i)
  {
    const StoredArray& array = arrays[i];
    const bool line = array.shape.size() == 1;
    const bool plane = array.shape.size() == 2;
    const bool numbers = array.kind == StoredArray::Kind::Numbers;
    const bool texts = array.kind == StoredArray::Kind::Texts;
    take(found.time, i, numbers && (line || plane) && namesTimes(array.name));
    take(found.items, i, texts && line && namesItems(array.name));
    take(found.runs, i, (texts || numbers) && line && namesRuns(array.name));
    take(found.parameters, i, numbers && plane && holdsParameters(array.name));
    take(found.parameterNames, i, texts && line && namesParameters(array.name));
  }
  return found;
}

ArrayMeaning meaningOf(const StoredArray& array, const std::vector<StoredArray>& arrays,
                       const ArrayCompanions& companions)
{
  return MeaningFinder(array, arrays, companions).find();
}

std::size_t extentOf(const StoredArray& array, const ArrayMeaning& meaning, ArrayAxis axis)
{
  for (std::size_t i = 0; i < meaning.axes.size(); ++i)
    if (meaning.axes[i] == axis)
      return array.shape[i];
  return 1;
}

} // namespace Talmesh::app
