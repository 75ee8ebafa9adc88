#ifndef LastResort_h
#define LastResort_h

#include <QApplication>

#include <functional>
#include <string>

/// How the program ends when it cannot go on: with one line on standard error and status 1.
namespace Talmesh::app
{

/// Says why the program ends, unless that has been said: what fails on the way out adds nothing.
/// @return its exit status
int fail(const std::string& message);

/// Runs the program, or a part of it, in which an exception would otherwise end in an abort. In the
/// GUI thread.
/// @return its exit status, or that of `fail` after an exception
int endingClearly(const std::function<int()>& program);

/// From now on a failed allocation ends the program clearly, too, where no exception tells of it:
/// in libraries that do not check for one, as graphics drivers, and in their threads. Other crashes
/// stay what they are.
void installLastResort();

/// Starts the threads that Qt shares among its functions. When Qt needs one that the system
/// refuses, it waits for ever.
/// @return whether there are such threads; otherwise the program must end without waiting for them
bool startSharedThreads();

/// Leaves the event loop after an exception of an event handler, which no one else could catch.
class ClearlyEndingApplication : public QApplication
{
public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;
  /// Whether there was such an exception, be it before the event loop.
  bool hasFailed() const { return failed; }

private:
  bool failed = false;
};

} // namespace Talmesh::app

#endif
