#ifndef SessionQuestions_h
#define SessionQuestions_h

#include "app/session/SessionWork.h"

#include <QString>

#include <functional>

class QMessageBox;
class QWidget;

namespace Talmesh::app
{

struct LeftWork;

/// Questions before work gets lost. Each returns at once, as a nested event loop would let the
/// window die under the call; its box deletes itself when it is answered. A box that is closed
/// says no.

enum class LeavingAnswer
{
  save,
  discard,
  stay
};

/// Whether to save before the work on a study is left.
QMessageBox* askBeforeLeaving(QWidget* window, const QString& study, const UnsavedParts& parts,
                              std::function<void(LeavingAnswer)> answered);

enum class OverwritingAnswer
{
  overwrite,
  elsewhere,
  notNow
};

/// What to do about a session that someone else has changed.
QMessageBox* askBeforeOverwriting(QWidget* window, const QString& path,
                                  std::function<void(OverwritingAnswer)> answered);

enum class LeftWorkAnswer
{
  bringBack,
  discard,
  later
};

/// What to do with work that an earlier window could not save.
QMessageBox* askAboutLeftWork(QWidget* window, const LeftWork& work,
                              std::function<void(LeftWorkAnswer)> answered);

} // namespace Talmesh::app

#endif
