#include "app/session/StudyFile.h"

#include <vtkTable.h>
#include <vtkVariant.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

using namespace Talmesh::app;

namespace
{

/// The table of a file that has `first` when it is opened and gets `later` while it is read.
vtkSmartPointer<vtkTable> openGrowing(const QByteArray& first, const QByteArray& later)
{
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("growing.csv")));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
  file.write(first);
  bool grown = false;
  const auto opened = openStudyFile(file.fileName(),
                                    [&](double)
                                    {
                                      if (!grown)
                                        file.write(later);
                                      grown = true;
                                      return true;
                                    });
  EXPECT_EQ(opened.error(), "");
  EXPECT_TRUE(grown);
  return opened.value().study.table;
}

} // namespace

TEST(GrowingFile, KeepsAllDigitsOfItsLastNumber)
{
  const auto table = openGrowing("a,b\n1,2\n3,45", "67\n8,9\n");
  ASSERT_NE(table, nullptr);
  ASSERT_EQ(table->GetNumberOfRows(), 2);
  EXPECT_EQ(table->GetValue(1, 1).ToDouble(), 4567.0);
}

TEST(GrowingFile, LeavesALineOutThatIsNotYetWhole)
{
  const auto table = openGrowing("a,b\n1,2\n3,45", "67");
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->GetNumberOfRows(), 1);
}

TEST(GrowingFile, KeepsALastLineWithoutAnEnd)
{
  const auto table = openGrowing("a,b\n1,2\n3,45", "");
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->GetNumberOfRows(), 2);
}
