#include "widgets/PlotSelector.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QRawFont>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

namespace
{

using Items = std::vector<Talmesh::TypedConcentrationName>;

class Selector : public ::testing::Test
{
protected:
  Selector()
  {
    QObject::connect(&selector, &PlotSelector::notifySelectionChanged,
                     [this](Items* items)
                     {
                       reported = *items;
                       ++reports;
                     });
  }

  void offer(Items options) { selector.setSelectionOptions(options); }
  QTreeWidgetItem* child(int category, int index)
  {
    return selector.topLevelItem(category)->child(index);
  }
  void click(QTreeWidgetItem* item, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    QTest::mouseClick(selector.viewport(), Qt::LeftButton, modifiers,
                      selector.visualItemRect(item).center());
  }
  void show()
  {
    selector.expandAll();
    selector.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&selector));
  }

  PlotSelector selector;
  Items reported;
  int reports = 0;
};

TEST_F(Selector, StartsWithOnlyItsHeader)
{
  EXPECT_EQ(selector.columnCount(), 1);
  EXPECT_EQ(selector.headerItem()->text(0), "Select Items to View");
  EXPECT_EQ(selector.selectionMode(), QAbstractItemView::ExtendedSelection);
  EXPECT_EQ(selector.topLevelItemCount(), 0);
}

TEST_F(Selector, SortsCategoriesAndTheirItems)
{
  offer({{Talmesh::Pattern, "C"}, {Talmesh::Complex, "B"}, {Talmesh::Pattern, "A"}});
  ASSERT_EQ(selector.topLevelItemCount(), 2);
  EXPECT_EQ(selector.topLevelItem(0)->text(0), "Complex");
  EXPECT_EQ(child(0, 0)->text(0), "B");
  EXPECT_EQ(selector.topLevelItem(1)->text(0), "Pattern");
  EXPECT_EQ(child(1, 0)->text(0), "A");
  EXPECT_EQ(child(1, 1)->text(0), "C");
}

TEST_F(Selector, LetsOnlyItemsBeSelected)
{
  offer({{Talmesh::Pattern, "A"}});
  EXPECT_EQ(selector.topLevelItem(0)->flags(), Qt::ItemIsEnabled);
  EXPECT_EQ(child(0, 0)->flags(),
            Qt::ItemIsSelectable | Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
  EXPECT_FALSE(child(0, 0)->data(0, Qt::CheckStateRole).isValid());
}

TEST_F(Selector, ReportsClickedItems)
{
  offer({{Talmesh::Molecule, "A"}, {Talmesh::Molecule, "B"}, {Talmesh::Complex, "AB"}});
  show();
  click(child(1, 1));
  EXPECT_EQ(reported, (Items{{Talmesh::Molecule, "B"}}));
  click(child(0, 0), Qt::ControlModifier);
  ASSERT_EQ(reported.size(), 2U);
  EXPECT_NE(std::find(reported.begin(), reported.end(),
                      Talmesh::TypedConcentrationName(Talmesh::Complex, "AB")),
            reported.end());
  selector.clearSelection();
  EXPECT_TRUE(reported.empty());
}

class KindsReadBack
    : public Selector,
      public ::testing::WithParamInterface<std::pair<Talmesh::DataType, Talmesh::DataType>>
{
};

TEST_P(KindsReadBack, ComeFromTheCategory)
{
  offer({{GetParam().first, "x"}});
  child(0, 0)->setSelected(true);
  EXPECT_EQ(reported, (Items{{GetParam().second, "x"}}));
}

INSTANTIATE_TEST_SUITE_P(
    AllKinds, KindsReadBack,
    ::testing::Values(std::make_pair(Talmesh::Complex, Talmesh::Complex),
                      std::make_pair(Talmesh::Molecule, Talmesh::Molecule),
                      std::make_pair(Talmesh::ComplexWithMolecule, Talmesh::ComplexWithMolecule),
                      std::make_pair(Talmesh::Pattern, Talmesh::Pattern),
                      std::make_pair(Talmesh::TimeOrValue, Talmesh::Parameter),
                      std::make_pair(Talmesh::Parameter, Talmesh::Parameter),
                      std::make_pair(Talmesh::UndefinedType, Talmesh::Parameter)));

TEST_F(Selector, UnderstandsPluralCategories)
{
  offer({{Talmesh::Complex, "x"}});
  const std::pair<const char*, Talmesh::DataType> plurals[] = {
      {"Complexes", Talmesh::Complex},
      {"Molecules", Talmesh::Molecule},
      {"Complexes With Molecules", Talmesh::ComplexWithMolecule},
      {"Patterns", Talmesh::Pattern},
      {"Parameters", Talmesh::Parameter}};
  child(0, 0)->setSelected(true);
  for (const auto& [text, kind] : plurals)
  {
    selector.topLevelItem(0)->setText(0, text);
    selector.processNewSelection();
    EXPECT_EQ(reported, (Items{{kind, "x"}})) << text;
  }
}

TEST_F(Selector, SortsAnEmptyCategoryFirst)
{
  offer({{Talmesh::Complex, "B"}, {Talmesh::TimeOrValue, "Time [s]"}});
  EXPECT_EQ(selector.topLevelItem(0)->text(0), "");
  EXPECT_EQ(child(0, 0)->text(0), "Time [s]");
}

TEST_F(Selector, ReportsAnEmptyListWhenThereIsNothingLeft)
{
  offer({{Talmesh::Complex, "B"}});
  child(0, 0)->setSelected(true);
  const int before = reports;
  offer({});
  EXPECT_EQ(selector.topLevelItemCount(), 0);
  EXPECT_TRUE(reported.empty());
  EXPECT_EQ(reports, before + 1) << "a rebuild reports once";
}

TEST_F(Selector, KeepsTheCurrentItemAcrossARebuild)
{
  offer({{Talmesh::Molecule, "A"}, {Talmesh::Complex, "A"}});
  selector.setCurrentItem(child(1, 0));
  const int before = reports;
  offer({{Talmesh::Molecule, "B"}, {Talmesh::Molecule, "A"}, {Talmesh::Complex, "A"}});
  EXPECT_EQ(reports, before + 1);
  EXPECT_EQ(reported, (Items{{Talmesh::Molecule, "A"}}));
  EXPECT_EQ(selector.currentItem(), child(1, 0));
  offer({{Talmesh::Complex, "A"}});
  EXPECT_TRUE(reported.empty()) << "the same name in another category is another item";
}

TEST_F(Selector, AddsDuplicatesAgain)
{
  offer({{Talmesh::Molecule, "A"}, {Talmesh::Molecule, "A"}});
  EXPECT_EQ(selector.topLevelItem(0)->childCount(), 2);
}

TEST_F(Selector, SkipsSelectedItemsWithoutACategory)
{
  offer({{Talmesh::Molecule, "A"}});
  auto* loose = new QTreeWidgetItem(&selector);
  loose->setText(0, "loose");
  loose->setSelected(true);
  EXPECT_TRUE(reported.empty());
}

TEST_F(Selector, CarriesNamesOfAnyAlphabet)
{
  const std::string name = "\xCE\xB1-\xE2\x82\x82";
  offer({{Talmesh::Molecule, name}});
  EXPECT_EQ(child(0, 0)->text(0).toStdString(), name);
  child(0, 0)->setSelected(true);
  EXPECT_EQ(reported.front().second, name);
}

TEST_F(Selector, SwitchesItsSelectionMode)
{
  selector.setMultipleSelections(true);
  EXPECT_EQ(selector.selectionMode(), QAbstractItemView::MultiSelection);
  selector.setMultipleSelections(false);
  EXPECT_EQ(selector.selectionMode(), QAbstractItemView::SingleSelection);
}

/// A number of two bytes in a font file.
int numberAt(const QByteArray& font, int place)
{
  return (static_cast<unsigned char>(font[place]) << 8) |
         static_cast<unsigned char>(font[place + 1]);
}

/// The place of a table in a font file, 0 if it has none of that name.
int tableOf(const QByteArray& font, const char* name)
{
  constexpr int directory = 12;
  constexpr int entry = 16;
  for (int i = 0; i < numberAt(font, 4); ++i)
  {
    const int place = directory + entry * i;
    if (font.mid(place, 4) == name)
      return (numberAt(font, place + 8) << 16) + numberAt(font, place + 10);
  }
  return 0;
}

/// An installed font with lines that stand apart, under a name of its own.
QFont spacedFont()
{
  QFile file;
  for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::FontsLocation) +
                                   QStringList{QStringLiteral("/usr/share/fonts")})
  {
    QDirIterator files(folder, {QStringLiteral("*.ttf")}, QDir::Files,
                       QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
    while (files.hasNext() && file.fileName().isEmpty())
      file.setFileName(files.next());
  }
  if (!file.open(QIODevice::ReadOnly))
    return {};
  QByteArray font = file.readAll();
  constexpr int lineGap = 8;
  const int gap = tableOf(font, "hhea") + lineGap;
  font[gap] = 4; // 1024 units
  // Told apart from the one that is installed.
  const QString family = QRawFont(font, 10).familyName();
  const auto utf16 = [](const QString& text)
  {
    QByteArray bytes;
    for (const QChar letter : text)
      bytes.append(static_cast<char>(letter.unicode() >> 8))
          .append(static_cast<char>(letter.unicode()));
    return bytes;
  };
  const QString other = QString(family.size(), QLatin1Char('Z'));
  font.replace(utf16(family), utf16(other));
  font.replace(family.toLatin1(), other.toLatin1());
  const int added = QFontDatabase::addApplicationFontFromData(font);
  return QFont(QFontDatabase::applicationFontFamilies(added).value(0), 60);
}

TEST_F(Selector, AsksForFifteenLettersByTwentyHeights)
{
  const QFont spaced = spacedFont();
  ASSERT_GT(QFontMetrics(spaced).leading(), 0);
  for (const QFont& font : {selector.font(), spaced})
  {
    selector.setFont(font);
    const QFontMetrics metrics = selector.fontMetrics();
    EXPECT_EQ(selector.sizeHint(),
              QSize(15 * metrics.horizontalAdvance('m'), 20 * metrics.height()));
  }
}

TEST_F(Selector, AnnouncesListsByPointer)
{
  const QMetaObject& meta = PlotSelector::staticMetaObject;
  EXPECT_GE(
      meta.indexOfSignal("notifySelectionChanged(std::vector<Talmesh::TypedConcentrationName>*)"),
      0);
  EXPECT_GE(meta.indexOfSlot("processNewSelection()"), 0);
}

} // namespace
