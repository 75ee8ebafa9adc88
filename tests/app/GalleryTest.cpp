#include "app/Gallery.h"

#include "support/PdfPages.h"
#include "support/Pictures.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <set>
#include <string>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

/// The axes alone have more; a page without its chart has none.
constexpr int leastPainted = 150;

/// @param empty the views that have nothing to show
void expectEveryView(const QString& folder, const QSize& size,
                     const std::set<std::string>& empty = {})
{
  for (const GalleryView& view : galleryViews())
  {
    const QString path = QDir(folder).filePath(QString::fromStdString(view.name));
    const QImage picture(path + QStringLiteral(".png"));
    EXPECT_EQ(picture.size(), size) << view.name;
    const QImage page = pageOf(path + QStringLiteral(".pdf"));
    EXPECT_EQ(page.size(), size) << view.name;
    for (const QImage& painted : {picture, page})
      EXPECT_EQ(paintedPixels(painted) > leastPainted, empty.count(view.name) == 0) << view.name;
  }
  EXPECT_EQ(QDir(folder).entryList(QDir::Files).size(),
            2 * static_cast<int>(galleryViews().size()));
}

} // namespace

TEST(Gallery, WritesAPngAndAPdfOfEveryView)
{
  const QTemporaryDir folder;
  const QString inner = folder.filePath(QStringLiteral("a/b"));
  EXPECT_EQ(writeGallery(sampleStudy(), inner, QSize(400, 300)), "");
  expectEveryView(inner, QSize(400, 300));
}

TEST(Gallery, ShowsAPlainTableToo)
{
  const QTemporaryDir folder;
  EXPECT_EQ(writeGallery(sampleStudy("a,b\n1,2\n3,5\n4,4\n"), folder.path(), QSize(320, 240)), "");
  // Without parameters there is no page of them.
  expectEveryView(folder.path(), QSize(320, 240), {"multiPlot"});
}

TEST(Gallery, ShowsATableOfOneColumnAndOneRow)
{
  const QTemporaryDir folder;
  EXPECT_EQ(writeGallery(sampleStudy("a\n1\n"), folder.path(), QSize(200, 160)), "");
  // One column makes no lines between axes.
  expectEveryView(folder.path(), QSize(200, 160), {"multiPlot", "parallelCoordinates"});
}

TEST(Gallery, NamesEveryViewOnce)
{
  std::set<std::string> names;
  for (const GalleryView& view : galleryViews())
    EXPECT_TRUE(names.insert(view.name).second) << view.name;
  EXPECT_GE(names.size(), 7u);
}

TEST(Gallery, SaysWhenTheFolderCannotBeMade)
{
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("file")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  const QString inside = folder.filePath(QStringLiteral("file/gallery"));
  EXPECT_EQ(writeGallery(sampleStudy(), inside, QSize(200, 200)),
            inside.toStdString() + ": the folder cannot be made");
}
