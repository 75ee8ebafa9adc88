#ifndef SessionController_h
#define SessionController_h

#include "app/session/Session.h"
#include "app/session/SessionWork.h"
#include "app/session/StudyFile.h"
#include "app/session/WorkKeeper.h"

#include <QObject>

#include <functional>
#include <optional>
#include <string>

class QWidget;

namespace Talmesh::app
{

/// Takes care that no work on a study is lost: knows what is saved where, asks before it is left or
/// replaced, and keeps it in the state folder meanwhile.
class SessionController : public QObject
{
  Q_OBJECT

public:
  /// The work on the runs or the table opened last; nothing before any is opened.
  using Source = std::function<std::optional<SessionSource>()>;
  using Step = std::function<void()>;

  /// @param window the parent of all questions and of the controller
  SessionController(QWidget& window, Source source);

  /// Another study has been opened and is shown, which is the state that later ones are compared
  /// with.
  /// @param path its file, if any
  /// @param left the work of an earlier window, if that is what was opened
  void opened(const OpenedStudy& study, const QString& path, const LeftWork& left);
  /// What is selected now is in a file of its own.
  void selectionSaved();

  bool isUnsaved();
  /// Asks whether to save what is unsaved; the step follows when nothing is, or when the user has
  /// saved or discarded it.
  void leave(const Step& then);
  /// The window closes: nothing of the work is wanted any more.
  void end();

  /// Saves to the file of the session, or asks for one.
  void save(const Step& then = {});
  /// Asks for a file and saves to it.
  void saveAs(const Step& then = {});
  /// Saves without a question.
  /// @return whether it was written
  bool saveTo(const QString& path);

  /// Keeps unsaved work in a folder from now on.
  void keepIn(const QString& folder, int milliseconds = WorkKeeper::minute);
  void keepNow();
  /// Asks what to do with the latest work that windows which are gone have left in the folder.
  void offerLeftWork();

signals:
  /// @param error one line; empty on success
  void written(const QString& path, const std::string& error);
  void bringBackWanted(const Talmesh::app::LeftWork& work);
  /// One line.
  void failed(const QString& message);

private:
  void take(const SessionOrigin& origin);
  UnsavedParts unsavedParts();
  void forget();
  void saveOver(const QString& path, const Step& then);

  QWidget& window;
  Source source;
  SessionRecord record;
  WorkKeeper* keeper = nullptr;
};

} // namespace Talmesh::app

#endif
