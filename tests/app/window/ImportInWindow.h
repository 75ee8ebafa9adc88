#ifndef ImportInWindow_h
#define ImportInWindow_h

#include "app/window/ImportDialog.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTest>

#include "window/StudyWindow.h"

/// Runs of a drug, or values of several items.
inline const char* const unsureTable = "drug,time,value\nx,0,1\nx,1,2\ny,0,3\ny,1,4\n";

/// The window in which tables are opened as the user chooses.
class ImportInWindow : public StudyWindow
{
protected:
  ImportInWindow()
  {
    QCoreApplication::setOrganizationName(QStringLiteral("TalmeshTest"));
    QCoreApplication::setApplicationName(QStringLiteral("import"));
    QSettings().clear();
  }
  ~ImportInWindow() override { QSettings().clear(); }

  QString write(const char* name, const std::string& text)
  {
    QFile file(folder.filePath(QLatin1String(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.data(), static_cast<qint64>(text.size()));
    return file.fileName();
  }

  Talmesh::app::ImportDialog* dialog() { return window.findChild<Talmesh::app::ImportDialog*>(); }

  /// Asks for a file by the menu, as to be read by choice.
  void openAs(const QString& path)
  {
    find<QAction>("openAs")->trigger();
    auto* files = window.findChild<QFileDialog*>();
    ASSERT_NE(files, nullptr);
    files->selectFile(path);
    QTest::keyClick(files, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([this] { return dialog() != nullptr; }, patience));
    ASSERT_TRUE(isRead());
  }

  template <typename Widget>
  Widget* part(const char* name)
  {
    auto* widget = dialog()->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }

  QString count() { return part<QLabel>("importCount")->text(); }
  bool isRead()
  {
    return QTest::qWaitFor([this] { return !count().startsWith("Reading"); }, patience);
  }
  QString command() { return part<QLineEdit>("importCommand")->text(); }

  void choose(const char* box, const QString& text)
  {
    auto* combo = part<QComboBox>(box);
    const int wished = combo->findText(text);
    ASSERT_GE(wished, 0) << text.toStdString();
    combo->setFocus();
    while (combo->currentIndex() != wished)
      QTest::keyClick(combo, combo->currentIndex() < wished ? Qt::Key_Down : Qt::Key_Up);
    ASSERT_TRUE(isRead());
  }

  QAbstractButton* button(QDialogButtonBox::StandardButton which)
  {
    return part<QDialogButtonBox>("importButtons")->button(which);
  }

  void end(QDialogButtonBox::StandardButton which)
  {
    ASSERT_TRUE(button(which)->isEnabled());
    QTest::mouseClick(button(which), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([this] { return dialog() == nullptr; }, patience));
    ASSERT_TRUE(waitUntilLoaded());
  }

  bool isTitled(const QString& start)
  {
    return QTest::qWaitFor([&] { return window.windowTitle().startsWith(start); }, patience);
  }

  void answer(const QString& text)
  {
    ASSERT_TRUE(QTest::qWaitFor([this] { return question() != nullptr; }, patience));
    for (QAbstractButton* button : question()->buttons())
      if (button->text().remove('&') == text)
      {
        QTest::mouseClick(button, Qt::LeftButton);
        return;
      }
    ADD_FAILURE() << "no button " << text.toStdString();
  }

  QMessageBox* question() { return window.findChild<QMessageBox*>("reading"); }
};

#endif
