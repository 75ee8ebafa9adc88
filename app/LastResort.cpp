#include "app/LastResort.h"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>

namespace Talmesh::app
{

int fail(const std::string& message)
{
  std::cerr << "talmesh-plot: " << message << std::endl;
  return EXIT_FAILURE;
}

int endingClearly(const std::function<int()>& program)
{
  try
  {
    return program();
  }
  catch (const std::bad_alloc&)
  {
    return fail("there is not enough memory");
  }
  catch (const std::exception& failure)
  {
    return fail(std::string("cannot go on: ") + failure.what());
  }
}

bool ClearlyEndingApplication::notify(QObject* receiver, QEvent* event)
{
  bool handled = false;
  const int status = endingClearly(
      [&]
      {
        handled = QApplication::notify(receiver, event);
        return EXIT_SUCCESS;
      });
  if (status != EXIT_SUCCESS)
  {
    failed = true;
    exit(status);
  }
  return handled;
}

} // namespace Talmesh::app
