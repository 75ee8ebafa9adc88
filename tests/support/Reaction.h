#ifndef Reaction_h
#define Reaction_h

#include <vtkCommand.h>

#include <functional>

/// Calls a function at every event.
class Reaction : public vtkCommand
{
public:
  static Reaction* New() { return new Reaction; }
  void Execute(vtkObject*, unsigned long, void*) override { react(); }
  std::function<void()> react;
};

#endif
