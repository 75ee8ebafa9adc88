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
    window.openFile(write("drugs.csv", "drug,time,value\nx,0,1\nx,1,2\ny,0,3\ny,1,4\n"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return box() != nullptr; }, patience));
    return box();
  }

  QString write(const char* name, const QByteArray& text)
  {
    QFile file(folder.filePath(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return file.fileName();
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
  const char* table = "time,X1,X2,X3\n0,1,2,3\n1,4,5,6\n";
  window.openFiles({write("a1.csv", table), write("a2.csv", table)});
  ASSERT_TRUE(QTest::qWaitFor([this] { return box() != nullptr; }, patience));
  click("A file per item");
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return window.windowTitle().startsWith("2 files"); }, patience));
  EXPECT_EQ(window.sizeText(), "3 runs, 2 points each, 0 parameters");
}

TEST_F(TableOfTwoReadings, MayHaveDecimalCommas)
{
  window.openFile(write("commas.csv", "time;A\n0;1,234\n1;5,678\n"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return box() != nullptr; }, patience));
  EXPECT_EQ(box()->buttons().size(), 3) << "numbers with commas between thousands are not read";
  click("Decimal commas");
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return window.windowTitle().startsWith("commas.csv"); }, patience));
}

TEST_F(TableOfTwoReadings, MayHaveParametersInTheOrderOfFiles)
{
  const char* course = "time,A\n0,1\n1,2\n";
  window.openFiles(
      {write("x1.csv", course), write("x2.csv", course), write("k.csv", "k\n0.5\n0.25\n")});
  ASSERT_TRUE(QTest::qWaitFor([this] { return box() != nullptr; }, patience));
  click("In the order of rows");
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return window.windowTitle().startsWith("3 files"); }, patience));
  EXPECT_EQ(window.sizeText(), "2 runs, 2 points each, 1 parameter");
}
