#include "app/window/ImportDialog.h"

#include "app/window/ReadingTemplates.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QHeaderView>
#include <QListWidget>
#include <QMenu>
#include <QTableView>
#include <QTest>

#include "formats/WrittenFiles.h"
#include "window/ImportInWindow.h"

using namespace Talmesh::app;

namespace
{

class ImportDialogs : public ImportInWindow
{
};

} // namespace

TEST_F(ImportDialogs, OpenWhatTheUserChooses)
{
  openAs(write("drugs.csv", unsureTable));
  EXPECT_FALSE(button(QDialogButtonBox::Open)->isEnabled());
  choose("readingLayout", "A value per row");
  EXPECT_EQ(count(), "1 run of 2 points, 0 parameters, 2 items");
  EXPECT_TRUE(command().endsWith("drugs.csv --layout tidy")) << command().toStdString();
  choose("readingLayout", "Runs one below the other");
  EXPECT_TRUE(count().startsWith("2 runs of 2 points")) << count().toStdString();
  end(QDialogButtonBox::Open);
  ASSERT_TRUE(isTitled("drugs.csv"));
  EXPECT_EQ(window.sizeText(), "2 runs, 2 points each, 1 parameter");
}

TEST_F(ImportDialogs, LeaveAllAsItWasWhenCancelled)
{
  const QString size = window.sizeText();
  openAs(write("drugs.csv", unsureTable));
  choose("readingLayout", "A value per row");
  part<QCheckBox>("importRemember")->setChecked(true);
  end(QDialogButtonBox::Cancel);
  EXPECT_EQ(window.sizeText(), size);
  EXPECT_TRUE(window.windowTitle().startsWith("runs.csv"));
  EXPECT_TRUE(ReadingTemplates::kept().isEmpty());
}

TEST_F(ImportDialogs, ComeFromTheQuickQuestion)
{
  window.openFile(write("drugs.csv", unsureTable));
  answer("Choose how to read it...");
  ASSERT_TRUE(QTest::qWaitFor([this] { return dialog() != nullptr; }, patience));
  ASSERT_TRUE(isRead());
  choose("readingLayout", "A value per row");
  end(QDialogButtonBox::Open);
  ASSERT_TRUE(isTitled("drugs.csv"));
  EXPECT_EQ(window.sizeText(), "1 run, 2 points each, 0 parameters");
}

TEST_F(ImportDialogs, GiveColumnsRolesByKeys)
{
  openAs(write("k.csv", "run,time,A,k\n0,0,1,5\n0,1,2,5\n1,0,3,6\n1,1,4,6\n"));
  EXPECT_EQ(count(), "2 runs of 2 points, 1 parameter, 1 item");
  auto* table = part<QTableView>("importTable");
  table->setFocus();
  for (int i = 0; i < 3; ++i)
    QTest::keyClick(table, Qt::Key_Right);
  choose("columnRole", "measured");
  EXPECT_EQ(count(), "2 runs of 2 points, 0 parameters, 2 items");
  EXPECT_TRUE(command().endsWith(" --measured k")) << command().toStdString();
  EXPECT_EQ(table->currentIndex().column(), 3) << "stays where it was";
  choose("columnRole", "ignored");
  EXPECT_EQ(count(), "2 runs of 2 points, 0 parameters, 1 item");
}

TEST_F(ImportDialogs, GiveColumnsRolesByTheirHeaders)
{
  openAs(write("k.csv", "run,time,A,k\n0,0,1,5\n0,1,2,5\n1,0,3,6\n1,1,4,6\n"));
  QHeaderView* header = part<QTableView>("importTable")->horizontalHeader();
  QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                    {header->sectionViewportPosition(3) + 10, header->height() / 2});
  auto* menu = dialog()->findChild<QMenu*>("columnRoles");
  ASSERT_NE(menu, nullptr);
  for (QAction* action : menu->actions())
    if (action->text() == "condition")
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
  ASSERT_TRUE(isRead());
  EXPECT_EQ(count(), "2 runs of 2 points, 0 parameters, 1 item, 1 condition");
  EXPECT_TRUE(command().endsWith(" --condition k")) << command().toStdString();
}

TEST_F(ImportDialogs, SayWhyATableIsRefusedAndGoToTheLine)
{
  openAs(write("bad.csv", "time,A\n0,1\nlater,2\n2,3\n"));
  auto* notes = part<QListWidget>("importNotes");
  ASSERT_GT(notes->count(), 0);
  EXPECT_TRUE(notes->item(0)->text().contains("line 3")) << notes->item(0)->text().toStdString();
  EXPECT_FALSE(button(QDialogButtonBox::Open)->isEnabled());
  QTest::mouseClick(notes->viewport(), Qt::LeftButton, {},
                    notes->visualItemRect(notes->item(0)).center());
  EXPECT_EQ(part<QTableView>("importTable")->currentIndex().row(), 1);
  end(QDialogButtonBox::Cancel);
  EXPECT_TRUE(window.windowTitle().startsWith("runs.csv"));
}

TEST_F(ImportDialogs, OfferTextsWhatTheyHave)
{
  openAs(write("k.csv", "time;A\n0;1\n1;2\n"));
  EXPECT_TRUE(part<QComboBox>("readingSeparator")->isEnabled());
  EXPECT_FALSE(part<QLineEdit>("readingSheet")->isEnabled());
  EXPECT_FALSE(part<QComboBox>("readingFiles")->isEnabled());
  choose("readingSeparator", "comma ,");
  EXPECT_EQ(part<QTableView>("importTable")->model()->columnCount(), 1);
}

TEST_F(ImportDialogs, OfferFilesOfNumbersNoSeparators)
{
  const std::vector<double> numbers = {0, 1, 1, 2, 2, 3};
  openAs(write("numbers.npy", npy("'<f8'", "(3, 2)", bytesOf(numbers))));
  EXPECT_FALSE(part<QComboBox>("readingSeparator")->isEnabled());
  EXPECT_FALSE(part<QComboBox>("readingDecimal")->isEnabled());
  EXPECT_TRUE(part<QLineEdit>("readingSheet")->isEnabled());
  EXPECT_TRUE(part<QComboBox>("readingLayout")->isEnabled());
  EXPECT_GT(part<QTableView>("importTable")->model()->rowCount(), 0);
  end(QDialogButtonBox::Cancel);
}

TEST_F(ImportDialogs, LetTheUserNameATableOfSeveral)
{
  const QString file = folder.filePath(QStringLiteral("several.npz"));
  const std::string plane = npy("'<f8'", "(2, 2)", bytesOf<double>({0, 1, 2, 3}));
  writeZipTo(file, {{"A.npy", plane}, {"B.npy", plane}});
  openAs(file);
  EXPECT_FALSE(button(QDialogButtonBox::Open)->isEnabled());
  auto* sheet = part<QLineEdit>("readingSheet");
  ASSERT_TRUE(sheet->isEnabled());
  sheet->setFocus();
  QTest::keyClicks(sheet, "B");
  QTest::keyClick(sheet, Qt::Key_Tab);
  auto* rows = part<QTableView>("importTable")->model();
  ASSERT_TRUE(QTest::qWaitFor([rows] { return rows->rowCount() == 2; }, patience));
  ASSERT_TRUE(isRead());
  EXPECT_TRUE(button(QDialogButtonBox::Open)->isEnabled());
  end(QDialogButtonBox::Cancel);
}

TEST_F(ImportDialogs, StayAliveWhileALongTableIsRead)
{
  std::string text = "run,time,A\n";
  for (int run = 0; run < 400; ++run)
    for (int time = 0; time < 500; ++time)
      text += std::to_string(run) + ',' + std::to_string(time) + ",0.5\n";
  openAs(write("long.csv", text));
  EXPECT_TRUE(count().startsWith("400 runs of 500 points")) << count().toStdString();
  auto* layout = part<QComboBox>("readingLayout");
  layout->setFocus();
  // Each key has the table read once more, and gives up what is being read.
  for (int i = 0; i < 6; ++i)
    QTest::keyClick(layout, i % 2 == 0 ? Qt::Key_Down : Qt::Key_Up);
  EXPECT_TRUE(count().startsWith("Reading")) << "answers before the table is read";
  ASSERT_TRUE(isRead());
  EXPECT_TRUE(count().startsWith("400 runs of 500 points")) << count().toStdString();
  end(QDialogButtonBox::Cancel);
}
