#include "app/document/FeatureSearch.h"

#include "app/document/FeatureColumns.h"
#include "app/memory/PaintingMemory.h"

#include <memory>
#include <new>
#include <numeric>

namespace Talmesh::app
{

Result<std::vector<double>> valuesOfRuns(std::optional<RunFeature> feature, const double* times,
                                         const double* values, const StackedRuns& stacked,
                                         const ImportProgress& progress)
{
  // In place of times that the table does not have.
  std::vector<double> places(times ? 0 : stacked.points);
  std::iota(places.begin(), places.end(), 0.0);
  std::vector<double> found;
  found.reserve(stacked.runs);
  for (std::size_t run = 0; run < stacked.runs; ++run)
  {
    const std::size_t first = run * stacked.points;
    if (!feature)
    {
      found.push_back(values[first]);
      continue;
    }
    if (progress && !progress(static_cast<double>(run) / static_cast<double>(stacked.runs)))
      return Result<std::vector<double>>::cancelled();
    const double* x = times ? times + first : places.data();
    found.push_back(featureOf(*feature, {x, values + first, stacked.points}));
  }
  return found;
}

void FeatureTask::add(int shown, const double* times, const double* values)
{
  if (times && commonTimes.empty())
    commonTimes = copied(times);
  std::vector<double>& item = items[itemOf(shown)];
  if (item.empty())
    item = copied(values);
  wanted.push_back(shown);
}

std::vector<double> FeatureTask::copied(const double* column) const
{
  return {column, column + stacked.runs * stacked.points};
}

Result<std::vector<std::vector<double>>> FeatureTask::compute(const ImportProgress& progress) const
{
  using All = Result<std::vector<std::vector<double>>>;
  const double* const times = commonTimes.empty() ? nullptr : commonTimes.data();
  const auto count = static_cast<double>(wanted.size());
  std::vector<std::vector<double>> values;
  for (const int shown : wanted)
  {
    const auto done = static_cast<double>(values.size());
    Result<std::vector<double>> one =
        valuesOfRuns(featureIn(shown), times, items.at(itemOf(shown)).data(), stacked,
                     [&](double part) { return !progress || progress((done + part) / count); });
    if (!one.hasValue())
      return All::without(one);
    values.push_back(std::move(one.value()));
  }
  return values;
}

bool FeatureSearch::mayWait() const
{
  return !background.start || std::chrono::steady_clock::now() < waitsUntil;
}

void FeatureSearch::want(const Wishes& wishes, const std::function<FeatureTask()>& task)
{
  if (!wishes.empty() && wishes == givenUp)
    return;
  givenUp.clear();
  if (wishes == underWay)
    return;
  drop();
  if (wishes.empty())
    return;
  Work work;
  try
  {
    work = [shared = std::make_shared<const FeatureTask>(task())](const ImportProgress& progress)
    { return shared->compute(progress); };
  }
  catch (const std::bad_alloc&)
  {
    work = [](const ImportProgress&) { return Result<Values>::failed(missingMemory()); };
  }
  underWay = wishes;
  background.start(work,
                   [this](const Values& values)
                   {
                     const Wishes done = std::exchange(underWay, {});
                     take(done, values);
                     if (tellOfValues)
                       tellOfValues();
                   });
}

void FeatureSearch::giveUp()
{
  if (underWay.empty())
    return;
  const Wishes ended = underWay;
  drop();
  givenUp = ended;
}

void FeatureSearch::drop()
{
  if (underWay.empty())
    return;
  underWay.clear();
  background.cancel();
}

} // namespace Talmesh::app
