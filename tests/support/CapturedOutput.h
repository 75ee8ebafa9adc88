#ifndef CapturedOutput_h
#define CapturedOutput_h

#include <iostream>
#include <sstream>
#include <streambuf>
#include <string>

/// Collects what is written to one of the standard streams while it lives, so that a test can
/// compare a diagnostic whole, line end included.
class CapturedOutput
{
public:
  /// @param stream std::cout or std::cerr; it must outlive this object.
  explicit CapturedOutput(std::ostream& stream);
  ~CapturedOutput();
  CapturedOutput(const CapturedOutput&) = delete;
  CapturedOutput& operator=(const CapturedOutput&) = delete;

  /// Everything written so far.
  std::string text() const;

private:
  std::ostream& stream;
  std::ostringstream buffer;
  std::streambuf* previous;
};

#endif
