#ifndef PreparedProcess_h
#define PreparedProcess_h

#include <QProcess>

#include <functional>
#include <utility>

/// A process that does something before it becomes the program that is started.
class PreparedProcess : public QProcess
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
public:
  explicit PreparedProcess(std::function<void()> preparation_)
      : preparation(std::move(preparation_))
  {
  }

protected:
  void setupChildProcess() override
  {
    preparation();
  }

private:
  std::function<void()> preparation;
#else
public:
  explicit PreparedProcess(std::function<void()> preparation)
  {
    setChildProcessModifier(std::move(preparation));
  }
#endif
};

#endif
