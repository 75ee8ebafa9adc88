#ifndef WorkInWindow_h
#define WorkInWindow_h

#include "app/document/SelectionController.h"
#include "app/session/SessionFile.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QTimer>

#include "window/GroupsInWindow.h"

/// Windows with work on six runs, numbered 10 to 60, that can be lost.
class WorkInWindow : public GroupsInWindow
{
protected:
  static constexpr int patience = 60000;

  QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
  QString state() const { return folder.filePath(QStringLiteral("state/talmesh-plot")); }

  /// The files that windows keep, without their locks.
  QStringList keptFiles() const
  {
    return QDir(state()).entryList({QStringLiteral("*.talmesh")}, QDir::Files);
  }

  static QByteArray contentOf(const QString& name)
  {
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }

  static void openIn(Talmesh::app::MainWindow& shown, const QString& name)
  {
    shown.openFile(name);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !shown.isLoading(); }, patience));
    QTest::qWait(20);
  }

  void press(const QKeySequence& keys)
  {
    // Without a window manager no window becomes active when a dialog goes.
    QApplication::setActiveWindow(&window);
    GroupsInWindow::press(keys);
  }

  static void selectIn(Talmesh::app::MainWindow& shown, const std::set<int>& wanted)
  {
    ParameterSelection selection;
    selection.runs = wanted;
    shown.plotWidget()->plotContainer()->setSelection(&selection, 0);
    QTest::qWait(20);
  }
  void select(const std::set<int>& wanted) { selectIn(window, wanted); }

  static std::set<int> runsIn(Talmesh::app::MainWindow& shown)
  {
    const std::unique_ptr<ParameterSelection> selection(
        shown.plotWidget()->plotContainer()->getSelection());
    return selection ? selection->runs : std::set<int>();
  }

  /// The question of this name that is open; null when none is.
  static QMessageBox* question(Talmesh::app::MainWindow& shown, const char* name)
  {
    auto* box = shown.findChild<QMessageBox*>(QLatin1String(name));
    return box && box->isVisible() ? box : nullptr;
  }
  QMessageBox* leavingQuestion() { return question(window, "askBeforeLeaving"); }

  /// Clicks a button of the box, which goes.
  static void answer(QMessageBox* box, QAbstractButton* button)
  {
    ASSERT_NE(button, nullptr);
    const QPointer<QMessageBox> gone = box;
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return gone.isNull(); }, patience));
  }

  static void answer(QMessageBox* box, QMessageBox::StandardButton button)
  {
    ASSERT_NE(box, nullptr) << "no question";
    answer(box, box->button(button));
  }

  static void answer(QMessageBox* box, const QString& text)
  {
    ASSERT_NE(box, nullptr) << "no question";
    QAbstractButton* found = nullptr;
    for (QAbstractButton* button : box->buttons())
      if (button->text() == text)
        found = button;
    answer(box, found);
  }

  /// Waits for the one file dialog, and chooses a file in it.
  static void chooseIn(Talmesh::app::MainWindow& shown, const QString& name)
  {
    QPointer<QFileDialog> dialog;
    ASSERT_TRUE(QTest::qWaitFor(
        [&]
        {
          dialog = shown.findChild<QFileDialog*>();
          return dialog && dialog->isVisible();
        },
        patience));
    // It lists its folder in a thread, and looks for the suggested name there.
    QTest::qWait(200);
    // The dialog would leave a name alone that the user might be typing.
    dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
    // It asks by itself whether to replace a file.
    QTimer::singleShot(100, dialog,
                       [dialog]
                       {
                         if (auto* box = dialog->findChild<QMessageBox*>())
                           box->button(QMessageBox::Yes)->click();
                       });
    QMetaObject::invokeMethod(dialog, "accept");
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.isNull(); }, patience));
  }
};

#endif
