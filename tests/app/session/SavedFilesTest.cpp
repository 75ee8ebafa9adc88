#include "app/comparison/ComparisonTable.h"
#include "app/document/PlotChoice.h"
#include "app/document/ShownStudy.h"
#include "app/export/PictureFile.h"
#include "app/session/RunSelectionFile.h"
#include "app/session/SessionFile.h"
#include "support/DiskFaults.h"
#include "support/Pictures.h"
#include "support/PipeReader.h"
#include "widgets/VtkPlotWidget.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <functional>
#include <future>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

/// Something that the viewer saves under a name.
struct Saved
{
  const char* name;
  std::function<std::string(const QString&)> save;
  /// Whether saving it again gives the same bytes.
  bool repeatable = true;
};

class SavedFiles : public ::testing::Test
{
protected:
  SavedFiles()
      : widget(makeHiddenPlot(QSize(200, 150)))
  {
    showStudy(sampleStudy(), *widget->plotContainer());
    applyChoice(*widget->plotContainer(), choiceOf(*widget->plotContainer()));
  }

  std::vector<Saved> all()
  {
    const auto exported = [this](const QString& path) { return exportPlot(*widget, path); };
    const auto session = [](const QString& path) {
      return saveSessionFile(path, {"{}", QByteArray(300000, 'd')});
    };
    return {{"plot.png", exported},
            {"plot.pdf", exported, false},
            {"plot.csv", exported},
            {"study.talmesh", session},
            {"runs.json", [](const QString& path) { return saveRunSelection(path, {}); }},
            {"table.csv", [this](const QString& path) { return comparison.save(path); }}};
  }

  QString path(const QString& name) const { return folder.filePath(name); }

  QTemporaryDir folder;
  std::unique_ptr<VtkPlotWidget> widget;
  ComparisonTable comparison;
};

} // namespace

TEST_F(SavedFiles, AreWrittenIntoPipes)
{
  for (const Saved& saved : all())
  {
    ASSERT_EQ(saved.save(path(saved.name)), "") << saved.name;
    const QByteArray whole = contentOf(path(saved.name));
    ASSERT_TRUE(QFile::remove(path(saved.name)));
    const QByteArray pipe = QFile::encodeName(path(saved.name));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    std::future<QByteArray> read = readingPipe(pipe);
    EXPECT_EQ(saved.save(path(saved.name)), "") << saved.name;
    struct stat info = {};
    ASSERT_EQ(stat(pipe.constData(), &info), 0);
    ASSERT_TRUE(S_ISFIFO(info.st_mode)) << saved.name;
    const QByteArray got = read.get();
    EXPECT_TRUE(saved.repeatable ? got == whole : got.size() == whole.size()) << saved.name;
  }
}

TEST_F(SavedFiles, AreNotSavedByADiskThatDoesNotKeepThem)
{
  for (const Saved& saved : all())
  {
    ASSERT_EQ(saved.save(path(saved.name)), "") << saved.name;
    const QByteArray whole = contentOf(path(saved.name));
    const DiskFault fault(DiskCall::Sync, EIO);
    EXPECT_NE(saved.save(path(saved.name)), "") << saved.name;
    EXPECT_GT(fault.calls(), 0) << saved.name;
    EXPECT_TRUE(contentOf(path(saved.name)) == whole) << saved.name;
  }
}
