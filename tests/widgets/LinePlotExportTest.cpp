#include <vtkTable.h>

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

#include "DialogAnswers.h"
#include "LinePlotFixture.h"

namespace
{

/// Types a file name and presses "Save".
DialogAnswers::Answer saveAs(const QString& fileName)
{
  return [fileName](QDialog& dialog)
  {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(fileName);
    dialog.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Save)->click();
  };
}

class LinePlotExport : public LinePlotFixture
{
protected:
  LinePlotExport() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
  ~LinePlotExport() override { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false); }

  QString path(const char* name) const { return folder.filePath(name); }
  QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }

  static QByteArray contentOf(const QString& fileName)
  {
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
  }

  QTemporaryDir folder;
};

TEST_F(LinePlotExport, AsksForAFileWithTheStatedDialog)
{
  bool asked = false;
  DialogAnswers answers({[&](QDialog& dialog)
                         {
                           auto* files = qobject_cast<QFileDialog*>(&dialog);
                           asked = files != nullptr;
                           if (files)
                           {
                             EXPECT_EQ(files->windowTitle(), "Save Plot data as");
                             EXPECT_EQ(files->nameFilters(), QStringList("CSV(*.csv)"));
                             EXPECT_EQ(files->acceptMode(), QFileDialog::AcceptSave);
                             EXPECT_EQ(files->fileMode(), QFileDialog::AnyFile);
                             EXPECT_EQ(files->parentWidget(), nullptr);
                           }
                           dialog.reject();
                         }});
  widget.exportPlot();
  EXPECT_TRUE(asked);
}

TEST_F(LinePlotExport, WritesNothingWhenCancelled)
{
  widget.setData(&data);
  DialogAnswers answers({[this](QDialog& dialog)
                         {
                           dialog.findChild<QLineEdit*>("fileNameEdit")->setText(path("a.csv"));
                           dialog.reject();
                         }});
  widget.exportPlot();
  EXPECT_EQ(answers.given(), 1U);
  EXPECT_EQ(files(), QStringList());
}

TEST_F(LinePlotExport, WritesTheWholeTableUnderTheNameGiven)
{
  widget.setData(&data);
  show();
  clickFirstOf(0);
  DialogAnswers answers({saveAs(path("no suffix"))});
  widget.exportPlot();
  EXPECT_EQ(answers.given(), 1U) << "no message follows";
  EXPECT_EQ(files(), QStringList("no suffix"));
  const QByteArray text = contentOf(path("no suffix"));
  EXPECT_EQ(text.count('\n'), 4);
  for (const char* column : {"Time [s]", "Molecule: A", "Parameter: k"})
    EXPECT_TRUE(text.contains(column)) << column;
}

TEST_F(LinePlotExport, WritesTheEmptyTableWithoutData)
{
  DialogAnswers answers({saveAs(path("empty.csv"))});
  widget.exportPlot();
  EXPECT_EQ(answers.given(), 1U);
  EXPECT_EQ(files(), QStringList("empty.csv"));
  EXPECT_EQ(contentOf(path("empty.csv")).trimmed(), QByteArray());
}

TEST_F(LinePlotExport, TellsThatTheFileCouldNotBeWritten)
{
  widget.setData(&data);
  const QString fileName = path("missing/table.csv");
  QString message;
  QWidget* owner = nullptr;
  DialogAnswers answers({saveAs(fileName), [&](QDialog& dialog)
                         {
                           if (auto* box = qobject_cast<QMessageBox*>(&dialog))
                           {
                             message = box->text();
                             EXPECT_EQ(box->textFormat(), Qt::PlainText);
                           }
                           owner = dialog.parentWidget();
                           dialog.accept();
                         }});
  widget.exportPlot();
  EXPECT_EQ(answers.given(), 2U);
  EXPECT_TRUE(message.contains(fileName)) << message.toStdString();
  EXPECT_EQ(owner, &widget);
  EXPECT_FALSE(QFile::exists(fileName));
}

TEST_F(LinePlotExport, StartsWhenTheButtonGoesDown)
{
  show();
  DialogAnswers answers({cancelDialog});
  QTest::mousePress(find<QPushButton>("exportButton"), Qt::LeftButton);
  EXPECT_EQ(answers.given(), 1U);
  QTest::mouseRelease(find<QPushButton>("exportButton"), Qt::LeftButton);
  EXPECT_EQ(answers.given(), 1U);
}

} // namespace
