#ifndef Result_h
#define Result_h

#include <optional>
#include <string>
#include <utility>

namespace Talmesh::app
{

/// What became of something that may fail: a value, or why there is none, or that it was given up.
template <typename Value>
class Result
{
public:
  /// There is a value.
  Result(Value given) // NOLINT: a function that returns a result returns its value
      : held(std::move(given))
  {
  }

  /// @param why one line of UTF-8, not empty
  static Result failed(std::string why)
  {
    Result result;
    result.reason = std::move(why);
    return result;
  }

  static Result cancelled() { return Result(); }

  /// What another result without a value says: why there is none, or that it was given up.
  template <typename Other>
  static Result without(const Result<Other>& other)
  {
    Result result;
    result.reason = other.error();
    return result;
  }

  bool hasValue() const { return held.has_value(); }
  bool isCancelled() const { return !held && reason.empty(); }
  /// Why there is no value, in one line; empty with a value, and for what was given up.
  const std::string& error() const { return reason; }

  /// Only of a result that has one.
  const Value& value() const { return *held; }
  Value& value() { return *held; }

private:
  Result() = default;

  std::optional<Value> held;
  std::string reason;
};

} // namespace Talmesh::app

#endif
