#include "app/window/ImportDialog.h"
#include "app/window/MainWindow.h"
#include "support/German.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QDockWidget>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <map>
#include <memory>

using namespace Talmesh::app;

namespace
{

/// The texts that one key reaches.
using TextsOfKeys = std::map<QString, QStringList>;

void add(TextsOfKeys& keys, const QString& text)
{
  const QKeySequence key = QKeySequence::mnemonic(text);
  if (!key.isEmpty())
    keys[key.toString(QKeySequence::PortableText)].append(text);
}

void expectOneTextEach(const TextsOfKeys& keys, const std::string& place)
{
  for (const auto& [key, texts] : keys)
    EXPECT_EQ(texts.size(), 1) << place << ": " << key.toStdString() << ": "
                               << texts.join(QStringLiteral(", ")).toStdString();
}

TextsOfKeys keysOf(const QList<QAction*>& entries)
{
  TextsOfKeys keys;
  for (const QAction* entry : entries)
    add(keys, entry->text());
  return keys;
}

/// What acts on Alt and a letter while the widget shows.
TextsOfKeys keysOf(const QWidget& window)
{
  TextsOfKeys keys;
  for (const QWidget* widget : window.findChildren<QWidget*>())
  {
    if (!widget->isVisible())
      continue;
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
      add(keys, button->text());
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label && label->buddy())
      add(keys, label->text());
    if (const auto* bar = qobject_cast<const QTabBar*>(widget))
      for (int i = 0; i < bar->count(); ++i)
        add(keys, bar->tabText(i));
    if (const auto* menus = qobject_cast<const QMenuBar*>(widget))
      for (const QAction* menu : menus->actions())
        add(keys, menu->text());
  }
  return keys;
}

/// In English, or in German.
class Mnemonics : public ::testing::TestWithParam<bool>
{
protected:
  Mnemonics()
  {
    if (GetParam())
      german = std::make_unique<German>();
    window = std::make_unique<MainWindow>();
    window->resize(1200, 900);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }

  std::unique_ptr<German> german;
  std::unique_ptr<MainWindow> window;
};

std::string languageOf(const ::testing::TestParamInfo<bool>& info)
{
  return info.param ? "German" : "English";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Languages, Mnemonics, ::testing::Bool(), languageOf);

TEST_P(Mnemonics, DifferWithinEachMenu)
{
  const QList<QMenu*> menus = window->findChildren<QMenu*>();
  EXPECT_GT(menus.size(), 5);
  int found = 0;
  for (const QMenu* menu : menus)
  {
    const TextsOfKeys keys = keysOf(menu->actions());
    found += static_cast<int>(keys.size());
    expectOneTextEach(keys, menu->title().toStdString());
  }
  EXPECT_GT(found, 20);
}

TEST_P(Mnemonics, DifferWithinContextMenus)
{
  int found = 0;
  for (const QWidget* widget : window->findChildren<QWidget*>())
  {
    if (widget->contextMenuPolicy() != Qt::ActionsContextMenu)
      continue;
    const TextsOfKeys keys = keysOf(widget->actions());
    found += static_cast<int>(keys.size());
    expectOneTextEach(keys, widget->objectName().toStdString());
  }
  EXPECT_EQ(found, 2) << "copies or saves a comparison";
}

TEST_P(Mnemonics, DifferInTheDialogThatOpensTables)
{
  ImportDialog dialog({QStringLiteral("none.csv")}, {});
  dialog.show();
  const TextsOfKeys keys = keysOf(dialog);
  EXPECT_GT(keys.size(), 7U);
  expectOneTextEach(keys, "dialog");
}

TEST_P(Mnemonics, DifferInTheWindow)
{
  // Panels that lie on each other can be drawn apart.
  for (QDockWidget* dock : window->findChildren<QDockWidget*>())
  {
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    dock->show();
  }
  for (int page = 0; page < window->pages()->count(); ++page)
  {
    window->pages()->setCurrentIndex(page);
    const TextsOfKeys keys = keysOf(*window);
    EXPECT_GT(keys.size(), 20U);
    expectOneTextEach(keys, window->pages()->tabText(page).toStdString());
  }
}
