#include "app/session/SessionFile.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>

#include "window/SessionInWindow.h"

using namespace Talmesh::app;

namespace
{

using SavingInWindow = SessionInWindow;

} // namespace

TEST_F(SavingInWindow, IsNotOfferedBeforeAnythingIsOpen)
{
  QAction* save = fileEntry(QStringLiteral("Save session"));
  ASSERT_NE(save, nullptr);
  EXPECT_FALSE(save->isEnabled());
  EXPECT_FALSE(window->saveSessionTo(path("a.talmesh")));
  EXPECT_FALSE(QFile::exists(path("a.talmesh")));
  openSample();
  EXPECT_TRUE(save->isEnabled());
}

TEST_F(SavingInWindow, IsNotOfferedOverAChartOfItsOwn)
{
  openSample();
  window->findChild<QAction*>(QStringLiteral("indomethacin-fit"))->trigger();
  ASSERT_TRUE(loaded());
  EXPECT_FALSE(fileEntry(QStringLiteral("Save session"))->isEnabled());
  EXPECT_FALSE(window->saveSessionTo(path("a.talmesh")));
  EXPECT_FALSE(QFile::exists(path("a.talmesh")));
  window->returnToRuns();
  EXPECT_TRUE(fileEntry(QStringLiteral("Save session"))->isEnabled());
  EXPECT_TRUE(window->saveSessionTo(path("a.talmesh")));
}

TEST_F(SavingInWindow, WritesNoOtherStudyThanTheOneThatItsDialogWasOpenedFor)
{
  openSample();
  fileEntry(QStringLiteral("Save session"))->trigger();
  const QPointer<QFileDialog> dialog = fileDialog();
  ASSERT_TRUE(dialog);
  openSample();
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.isNull(); }, patience));
  EXPECT_EQ(window->windowTitle(), "runs.csv - Talmesh Plot");
}

TEST_F(SavingInWindow, SuggestsTheNameOfTheStudy)
{
  openSample();
  const auto suggested = [this](QAction* entry)
  {
    EXPECT_NE(entry, nullptr);
    entry->trigger();
    QFileDialog* dialog = fileDialog();
    const QString name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    delete dialog;
    return name;
  };
  EXPECT_EQ(suggested(fileEntry(QStringLiteral("Save session"))), "runs.talmesh");
  EXPECT_EQ(suggested(fileEntry(QStringLiteral("Export"))), "runs.png");
  QAction* runs = nullptr;
  for (QAction* entry : window->findChildren<QAction*>())
    if (entry->shortcut() == QKeySequence(QStringLiteral("Ctrl+Shift+S")))
      runs = entry;
  EXPECT_EQ(suggested(runs), "runs.json");
}

TEST_F(SavingInWindow, GoesThroughTheDialog)
{
  openSample();
  QApplication::setActiveWindow(window.get());
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  QFileDialog* dialog = fileDialog();
  ASSERT_NE(dialog, nullptr);
  dialog->selectFile(path("chosen"));
  QMetaObject::invokeMethod(dialog, "accept");
  EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(path("chosen.talmesh")); }, patience));
  EXPECT_EQ(loadSessionFile(path("chosen.talmesh")).error(), "");
  EXPECT_TRUE(RecentFiles().paths().contains(path("chosen.talmesh")));
}

TEST_F(SavingInWindow, SaysWhyItFails)
{
  openSample();
  EXPECT_FALSE(window->saveSessionTo(path("no/such/folder/a.talmesh")));
  auto* box = window->findChild<QMessageBox*>();
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(box->text().startsWith(path("no/such/folder/a.talmesh") + ": cannot be written: "));
}
