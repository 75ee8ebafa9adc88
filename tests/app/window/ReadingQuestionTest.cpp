#include "app/window/ReadingQuestion.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMessageBox>
#include <QTest>

#include "window/StudyWindow.h"

using namespace Talmesh::app;

namespace
{

class TableOfTwoReadings : public StudyWindow
{
protected:
  /// Opens a table that may be one of runs of a drug, or of values of several items.
  QMessageBox* ask()
  {
    QFile file(folder.filePath("drugs.csv"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("drug,time,value\nx,0,1\nx,1,2\ny,0,3\ny,1,4\n");
    file.close();
    window.openFile(file.fileName());
    EXPECT_TRUE(QTest::qWaitFor([this] { return box() != nullptr; }, patience));
    return box();
  }

  QMessageBox* box() { return window.findChild<QMessageBox*>("reading"); }

  void click(const QString& text)
  {
    for (QAbstractButton* button : box()->buttons())
      if (button->text().remove('&') == text)
      {
        QTest::mouseClick(button, Qt::LeftButton);
        return;
      }
    ADD_FAILURE() << "no button " << text.toStdString();
  }
};

} // namespace

TEST_F(TableOfTwoReadings, IsReadAsTheUserSays)
{
  ASSERT_TRUE(ask());
  EXPECT_EQ(box()->text(), "How is the table drugs.csv to be read?");
  click("A value per row");
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return window.windowTitle().startsWith("drugs.csv"); }, patience));
  EXPECT_EQ(window.sizeText(), "1 run, 2 points each, 0 parameters");
  EXPECT_FALSE(box());
}

TEST_F(TableOfTwoReadings, MayBeTakenForRuns)
{
  ASSERT_TRUE(ask());
  click("Runs one below the other");
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return window.windowTitle().startsWith("drugs.csv"); }, patience));
  EXPECT_EQ(window.sizeText(), "2 runs, 2 points each, 1 parameter");
}

TEST_F(TableOfTwoReadings, IsNotOpenedWhereTheUserDoesNotSay)
{
  ASSERT_TRUE(ask());
  QTest::keyClick(box(), Qt::Key_Escape);
  ASSERT_TRUE(QTest::qWaitFor([this] { return box() == nullptr; }, patience));
  EXPECT_FALSE(window.isLoading());
  EXPECT_TRUE(window.windowTitle().startsWith("runs.csv"));
}

TEST_F(TableOfTwoReadings, MayBeSeveralFiles)
{
  QStringList files;
  for (const char* name : {"a1.csv", "a2.csv"})
  {
    files.append(folder.filePath(QLatin1String(name)));
    QFile file(files.back());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("time,X1,X2,X3\n0,1,2,3\n1,4,5,6\n");
  }
  window.openFiles(files);
  ASSERT_TRUE(QTest::qWaitFor([this] { return box() != nullptr; }, patience));
  click("A file per item");
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return window.windowTitle().startsWith("2 files"); }, patience));
  EXPECT_EQ(window.sizeText(), "3 runs, 2 points each, 0 parameters");
}
