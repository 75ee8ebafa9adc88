#include "app/import/RequestWords.h"
#include "app/window/ReadingTemplates.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QSettings>
#include <QStatusBar>

#include "window/ImportInWindow.h"

using namespace Talmesh::app;

namespace
{

class RememberedReadings : public ImportInWindow
{
protected:
  /// Has a table read as values of items from now on.
  void remember(const QString& path)
  {
    openAs(path);
    choose("readingLayout", "A value per row");
    QTest::keyClick(part<QCheckBox>("importRemember"), Qt::Key_Space);
    end(QDialogButtonBox::Open);
    ASSERT_TRUE(isTitled("drugs.csv"));
  }

  std::string otherRows = "drug,time,value\na,0,5\na,1,6\na,2,7\nb,0,8\nb,1,9\nb,2,9\n";
};

} // namespace

TEST_F(RememberedReadings, AreUsedForTablesWithTheSameColumns)
{
  remember(write("drugs.csv", unsureTable));
  window.openFile(write("others.csv", otherRows));
  ASSERT_TRUE(isTitled("others.csv"));
  EXPECT_FALSE(question());
  EXPECT_EQ(window.sizeText(), "1 run, 3 points each, 0 parameters");
  EXPECT_TRUE(window.statusBar()->currentMessage().startsWith(
      "Read as is remembered for tables with these columns."))
      << window.statusBar()->currentMessage().toStdString();
}

TEST_F(RememberedReadings, AreNotUsedForTablesWithOthers)
{
  remember(write("drugs.csv", unsureTable));
  window.openFile(write("others.csv", "species,time,value\nx,0,1\nx,1,2\ny,0,3\ny,1,4\n"));
  ASSERT_TRUE(isTitled("others.csv") || question());
  EXPECT_FALSE(window.statusBar()->currentMessage().startsWith("Read as is remembered"));
  window.openFile(write("semicolons.csv", "drug;time;value\nx;0;1\nx;1;2\ny;0;3\ny;1;4\n"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return question() != nullptr; }, patience));
}

TEST_F(RememberedReadings, AreOfferedAgainAndForgotten)
{
  const QString path = write("drugs.csv", unsureTable);
  remember(path);
  openAs(path);
  EXPECT_TRUE(part<QCheckBox>("importRemember")->isChecked());
  EXPECT_EQ(part<QComboBox>("readingLayout")->currentText(), "A value per row");
  QTest::keyClick(part<QCheckBox>("importRemember"), Qt::Key_Space);
  end(QDialogButtonBox::Open);
  EXPECT_TRUE(ReadingTemplates::kept().isEmpty());
  window.openFile(path);
  EXPECT_TRUE(QTest::qWaitFor([this] { return question() != nullptr; }, patience));
}

TEST_F(RememberedReadings, GiveWayToWhatTheUserSaysNow)
{
  const QString path = write("drugs.csv", unsureTable);
  remember(path);
  openAs(path);
  choose("readingLayout", "Runs one below the other");
  end(QDialogButtonBox::Open);
  EXPECT_EQ(window.sizeText(), "2 runs, 2 points each, 1 parameter");
  OpeningWishes wishes;
  wishes.file = path.toStdString();
  wishes.import.layout = "tidy";
  window.open(wishes);
  ASSERT_TRUE(waitUntilLoaded());
  EXPECT_EQ(window.sizeText(), "1 run, 2 points each, 0 parameters");
}

TEST_F(RememberedReadings, AreNotUsedWhereTheyNoLongerFit)
{
  remember(write("drugs.csv", unsureTable));
  // A second value of an item at the same time cannot be read as values of items.
  window.openFile(write("twice.csv", "drug,time,value\nx,0,1\nx,1,2\nx,0,3\nx,1,4\n"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return question() || !window.isLoading(); }, patience));
  EXPECT_FALSE(window.statusBar()->currentMessage().startsWith("Read as is remembered"));
}

TEST_F(RememberedReadings, KeepAllThatCanBeSaid)
{
  ImportRequest said;
  said.layout = "tidy";
  said.time = "t,1";
  said.run = {"a", "b, c"};
  said.measured = {"m"};
  said.parameters = {"k"};
  said.conditions = {"d"};
  said.ignored = {"\u00e4"};
  said.item = "i";
  said.value = "v";
  said.separator = '\t';
  said.decimalMark = ',';
  said.unequal = UnequalRuns::Union;
  said.sheet = "s";
  said.files = "runs";
  said.join = "order";
  ReadingTemplates::keep("key", said);
  QSettings().sync();
  const ReadingTemplates kept = ReadingTemplates::kept();
  ASSERT_TRUE(kept.find("key"));
  EXPECT_EQ(optionsOf(*kept.find("key")), optionsOf(said));
  EXPECT_FALSE(kept.find("other"));
}

TEST_F(RememberedReadings, AreNotKeptWithoutEnd)
{
  ImportRequest said;
  said.layout = "tidy";
  for (int i = 0; i <= ReadingTemplates::most; ++i)
    ReadingTemplates::keep(std::to_string(i), said);
  QSettings settings;
  settings.beginGroup("readings");
  EXPECT_EQ(settings.childKeys().size(), ReadingTemplates::most);
  EXPECT_TRUE(ReadingTemplates::kept().find(std::to_string(ReadingTemplates::most)));
}
