#include "import/HostileFiles.h"

#include <QFile>
#include <QTemporaryDir>

#include <ctime>
#include <fstream>
#include <sys/stat.h>

using namespace Talmesh::app;

namespace
{

#ifdef __SANITIZE_ADDRESS__
constexpr double mostSeconds = 20.0;
constexpr bool memoryIsOurs = false;
#elif defined(NDEBUG)
constexpr double mostSeconds = 1.0;
constexpr bool memoryIsOurs = true;
#else
// Without optimisation and with assertions all takes a few times as long.
constexpr double mostSeconds = 3.0;
constexpr bool memoryIsOurs = true;
#endif

/// What any file may cost: columns that are made before their number is refused, and the limit
/// below which what a file unpacks to is not asked for.
constexpr double freeBytes = 400e6;
/// Text, its numbers, names and runs.
constexpr double bytesPerByte = 40.0;

double processorSeconds()
{
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double memoryOf(const std::string& entry)
{
  std::ifstream status("/proc/self/status");
  std::string word;
  double kilobytes = 0.0;
  while (status >> word && word != entry)
    continue;
  status >> kilobytes;
  return 1024.0 * kilobytes;
}

/// Lets the system measure the peak anew.
bool restartPeak()
{
  std::ofstream file("/proc/self/clear_refs");
  file << "5" << std::flush;
  return file.good() && memoryIsOurs;
}

double bytesOnDisk(const QString& path)
{
  struct stat told
  {
  };
  stat(path.toLocal8Bit().constData(), &told);
  return 512.0 * static_cast<double>(told.st_blocks);
}

} // namespace

void writeBytes(const QString& path, const std::string& content)
{
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_EQ(file.write(content.data(), static_cast<qint64>(content.size())),
            static_cast<qint64>(content.size()));
}

std::function<void(const QString&)> bytes(const std::string& content)
{
  return [content](const QString& path) { writeBytes(path, content); };
}

std::string repeated(const std::string& text, std::size_t times)
{
  std::string all;
  all.reserve(text.size() * times);
  for (std::size_t i = 0; i < times; ++i)
    all += text;
  return all;
}

void expectHarmless(const std::vector<HostileFile>& files)
{
  for (const HostileFile& file : files)
  {
    SCOPED_TRACE(file.what);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("table.csv"));
    file.make(path);
    const bool measured = restartPeak();
    const double before = memoryOf("VmRSS:");
    const double start = processorSeconds();
    {
      const Result<OpenedStudy> opened = openStudyFile(path);
      EXPECT_NE(opened.hasValue(), !opened.error().empty());
      EXPECT_EQ(opened.error().find('\n'), std::string::npos);
      EXPECT_LT(opened.error().size(), 1000U);
      if (!file.refusal.empty())
      {
        EXPECT_NE(opened.error().find(file.refusal), std::string::npos) << opened.error();
      }
    }
    EXPECT_LT(processorSeconds() - start, mostSeconds);
    if (measured)
    {
      EXPECT_LT(memoryOf("VmHWM:") - before, freeBytes + bytesPerByte * bytesOnDisk(path));
    }
  }
}
