#ifndef SessionController_h
#define SessionController_h

#include "app/session/SessionWork.h"
#include "app/session/StudyFile.h"
#include "app/session/WorkKeeper.h"

#include <QObject>

#include <functional>
#include <string>

class QWidget;

namespace Talmesh::app
{

class Document;

/// Takes care that no work on a study is lost: knows what is saved where, asks before it is left or
/// replaced, and keeps it in the state folder meanwhile.
class SessionController : public QObject
{
  Q_OBJECT

public:
  using Step = std::function<void()>;

  /// @param window the parent of all questions and of the controller
  /// @param document whose work it is; outlives the controller's work
  SessionController(QWidget& window, Document& document);

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

  /// Keeps unsaved work in a folder from now on, and asks what to do with what windows that are
  /// gone have left there.
  void keepIn(const QString& folder, int milliseconds = WorkKeeper::minute);
  /// Keeps what is unsaved now, and returns when it is on the disk.
  void keepNow();

signals:
  /// @param error one line; empty on success
  void written(const QString& path, const std::string& error);
  void bringBackWanted(const Talmesh::app::LeftWork& work);
  /// One line.
  void failed(const QString& message);

private:
  void take(const SessionOrigin& origin);
  void offerLeftWork();
  UnsavedParts unsavedParts();
  void forget();
  void saveOver(const QString& path, const Step& then);

  QWidget& window;
  Document& document;
  SessionRecord record;
  WorkKeeper* keeper = nullptr;
};

} // namespace Talmesh::app

#endif
