#include "support/CapturedOutput.h"

CapturedOutput::CapturedOutput(std::ostream& captured)
    : stream(captured)
    , previous(captured.rdbuf(buffer.rdbuf()))
{
}

CapturedOutput::~CapturedOutput()
{
  stream.rdbuf(previous);
}

std::string CapturedOutput::text() const
{
  return buffer.str();
}
