#ifndef LaterCall_h
#define LaterCall_h

#include <functional>

class QObject;

namespace Talmesh::app
{

/// Calls something from the event loop, once for all who have asked for it until then.
class LaterCall
{
public:
  /// @param owner has the call as a member; nothing is called after its end
  LaterCall(QObject& owner, std::function<void()> called);

  void ask();

private:
  QObject& owner;
  std::function<void()> call;
  bool asked = false;
};

} // namespace Talmesh::app

#endif
