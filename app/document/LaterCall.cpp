#include "app/document/LaterCall.h"

#include <QMetaObject>
#include <QObject>

#include <utility>

namespace Talmesh::app
{

LaterCall::LaterCall(QObject& whose, std::function<void()> called)
    : owner(whose)
    , call(std::move(called))
{
}

void LaterCall::ask()
{
  if (asked)
    return;
  asked = true;
  QMetaObject::invokeMethod(
      &owner,
      [this]
      {
        asked = false;
        call();
      },
      Qt::QueuedConnection);
}

} // namespace Talmesh::app
