#ifndef Reaction_h
#define Reaction_h

#include <vtkCommand.h>

#include <functional>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

/// Calls a function at every event.
///
/// When it throws, VTK keeps its reference to it, which counts as no leak.
class Reaction : public vtkCommand
{
public:
  static Reaction* New() { return new Reaction; }
  void Execute(vtkObject*, unsigned long, void*) override
  {
#ifdef __SANITIZE_ADDRESS__
    try
    {
      react();
    }
    catch (...)
    {
      __lsan_ignore_object(this);
      throw;
    }
#else
    react();
#endif
  }
  std::function<void()> react;
};

#endif
