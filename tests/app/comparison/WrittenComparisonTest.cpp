#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "comparison/TableOfAComparison.h"

namespace
{

constexpr const char* tabbedHeader = "parameter\tselected\tothers\tD\tD_low\tD_high\tp\t"
                                     "p_adjusted\tmethod\tdirection\tsuperiority\t"
                                     "median_difference\tV\n";
constexpr const char* tabbedSecond = "k, \"2\"\t8\t12\t0.5\t\t\t0.029999999999999999\t"
                                     "0.044999999999999998\tKolmogorov-Smirnov (exact)\t"
                                     "larger in selected\t0.75\t-2.5\t\n";

} // namespace

TEST_F(TableOfAComparison, IsCopiedWithTabsAndItsHeader)
{
  QSignalSpy said(&table, &ComparisonTable::said);
  view().setFocus();
  QApplication::setActiveWindow(&table);
  QTest::keyClick(&view(), Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QApplication::clipboard()->text().split(QLatin1Char('\n'));
  ASSERT_EQ(lines.size(), 5);
  EXPECT_EQ(lines[0] + "\n", tabbedHeader);
  EXPECT_TRUE(lines[1].startsWith("K10\t8\t12\t1\t")) << lines[1].toStdString();
  EXPECT_EQ(lines[2] + "\n", tabbedSecond);
  EXPECT_TRUE(lines[3].startsWith("k1\t8\t12\t0.25\t")) << lines[3].toStdString();
  EXPECT_EQ(said.count(), 1);
}

TEST_F(TableOfAComparison, CopiesOnlyTheSelectedRows)
{
  view().selectRow(1);
  EXPECT_EQ(table.tabbedText().toStdString(), std::string(tabbedHeader) + tabbedSecond);
}

TEST_F(TableOfAComparison, KeepsACellOnOneLineWhenCopied)
{
  Comparison comparison = sampleComparison();
  comparison.parameters.resize(1);
  comparison.parameters[0].name = "a\tb\nc";
  table.setComparison(comparison, 1);
  EXPECT_TRUE(table.tabbedText().contains("\na b c\t8\t12\t0.25\t"));
}

TEST_F(TableOfAComparison, IsSavedWithCommasAndQuotes)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("comparison.csv"));
  view().selectRow(1);
  EXPECT_EQ(table.save(path), "");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QList<QByteArray> lines = file.readAll().split('\n');
  ASSERT_EQ(lines.size(), 5) << "the whole table";
  EXPECT_TRUE(lines[0].startsWith("parameter,selected,others,D,"));
  EXPECT_TRUE(lines[1].startsWith("K10,8,12,1,")) << "in the order shown";
  EXPECT_TRUE(lines[2].startsWith("\"k, \"\"2\"\"\",8,12,0.5,"));
}

TEST_F(TableOfAComparison, IsSavedAsItWasWhenTheUserAskedForIt)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("comparison.csv"));
  const QString asked = table.commaText();
  table.setWindowFilePath(QStringLiteral("runs.csv"));
  table.chooseFileAndSave();
  auto* dialog = table.findChild<QFileDialog*>();
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(dialog->selectedFiles().value(0).endsWith("/runs-comparison.csv"));
  table.setComparison(withoutParameters(Comparison::State::nothingSelected), 1);
  QSignalSpy said(&table, &ComparisonTable::said);
  emit dialog->fileSelected(path);
  dialog->close();
  EXPECT_EQ(said.count(), 1);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(file.readAll()), asked);
}

TEST_F(TableOfAComparison, ReportsThatItCannotBeSaved)
{
  const QTemporaryDir folder;
  QSignalSpy said(&table, &ComparisonTable::said);
  QSignalSpy failed(&table, &ComparisonTable::failed);
  table.chooseFileAndSave();
  auto* dialog = table.findChild<QFileDialog*>();
  ASSERT_NE(dialog, nullptr);
  const QString path = folder.filePath(QStringLiteral("nowhere/comparison.csv"));
  emit dialog->fileSelected(path);
  dialog->close();
  EXPECT_EQ(said.count(), 0);
  ASSERT_EQ(failed.count(), 1);
  EXPECT_TRUE(failed[0][0].toString().startsWith(path + ": "));
}

TEST_F(TableOfAComparison, LeavesNothingWhereItCannotBeSaved)
{
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("nowhere/comparison.csv"));
  EXPECT_EQ(table.save(path).find(path.toStdString() + ": "), 0U);
  EXPECT_TRUE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}
