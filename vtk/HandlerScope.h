#ifndef HandlerScope_h
#define HandlerScope_h

namespace Talmesh
{

/// Stands for a chart's handler of mouse or keys, or its painting, while it runs: what it calls may
/// replace the chart, which must live on until the handler returns. Scopes nest. For the GUI thread
/// only, in which all charts live.
class HandlerScope
{
public:
  HandlerScope() { ++depth; }
  ~HandlerScope() { --depth; }
  HandlerScope(const HandlerScope&) = delete;
  HandlerScope& operator=(const HandlerScope&) = delete;

  /// Whether any handler is running.
  static bool isOpen() { return depth > 0; }

private:
  inline static int depth = 0;
};

} // namespace Talmesh

#endif
