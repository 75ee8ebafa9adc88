// Replaces the C library's dlclose in sanitizer builds. The graphics driver keeps memory in globals
// of libraries that are unloaded at exit; without them the leak checker sees leaks and cannot say
// whose.
extern "C" int dlclose(void*)
{
  return 0;
}
