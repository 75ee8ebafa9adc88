#include "app/Gallery.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <set>

#include "SampleStudies.h"

using namespace Talmesh::app;

namespace
{

void expectEveryView(const QString& folder, const QSize& size)
{
  for (const GalleryView& view : galleryViews())
  {
    const QString path = QDir(folder).filePath(QString::fromStdString(view.name));
    const QImage picture(path + QStringLiteral(".png"));
    EXPECT_EQ(picture.size(), size) << view.name;
    QFile pdf(path + QStringLiteral(".pdf"));
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly)) << view.name;
    EXPECT_TRUE(pdf.readAll().startsWith("%PDF")) << view.name;
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
  expectEveryView(folder.path(), QSize(320, 240));
}

TEST(Gallery, ShowsATableOfOneColumnAndOneRow)
{
  const QTemporaryDir folder;
  EXPECT_EQ(writeGallery(sampleStudy("a\n1\n"), folder.path(), QSize(200, 160)), "");
  expectEveryView(folder.path(), QSize(200, 160));
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
