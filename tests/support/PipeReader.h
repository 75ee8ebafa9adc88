#ifndef PipeReader_h
#define PipeReader_h

#include <QByteArray>

#include <fcntl.h>
#include <future>
#include <poll.h>
#include <unistd.h>

/// What comes through a pipe until its writer leaves, or what had come when nobody wrote for some
/// seconds: a test whose writer never opens the pipe fails instead of waiting.
inline QByteArray readPipeToItsEnd(const QByteArray& file)
{
  constexpr int longestWait = 15000; // milliseconds, more than a writer waits for a reader
  QByteArray all;
  // Opens without a writer, and is no end of file before the first one.
  const int pipe = open(file.constData(), O_RDONLY | O_NONBLOCK);
  pollfd writer = {pipe, POLLIN, 0};
  char bytes[4096];
  ssize_t got = 1;
  while (got > 0 && poll(&writer, 1, longestWait) > 0)
  {
    got = read(pipe, bytes, sizeof bytes);
    if (got > 0)
      all.append(bytes, static_cast<int>(got));
  }
  close(pipe);
  return all;
}

/// The same in a thread of its own.
inline std::future<QByteArray> readingPipe(const QByteArray& file)
{
  return std::async(std::launch::async, readPipeToItsEnd, file);
}

#endif
