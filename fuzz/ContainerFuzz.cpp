#include <vtkObject.h>

#include <QCoreApplication>

#include <cstdint>
#include <iostream>

#include "FuzzedContainer.h"

namespace
{

/// Longer sessions would repeat themselves.
constexpr int mostCalls = 60;

QCoreApplication& application()
{
  static int count = 1;
  static char name[] = "fuzz_container";
  static char* arguments[] = {name, nullptr};
  static QCoreApplication only(count, arguments);
  return only;
}

} // namespace

/// VTK 9.1 enlarges memory of new[] by malloc() and forgets it, for example that of rank columns.
extern "C" const char* __asan_default_options()
{
  return "alloc_dealloc_mismatch=0";
}

/// Nor does it free what it enlarged beside the memory of a client.
extern "C" const char* __lsan_default_suppressions()
{
  return "leak:libvtkCommonCore";
}

/// A session: every byte decides something about the calls that a client makes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  std::cerr.rdbuf(nullptr);
  std::cout.rdbuf(nullptr);
  vtkObject::GlobalWarningDisplayOff();
  application();
  FuzzChoices choices(data, size);
  FuzzedContainer container(choices);
  for (int call = 0; call < mostCalls && !choices.atEnd(); ++call)
    container.act();
  container.paint();
  return 0;
}
