#include "app/comparison/SideBoxes.h"

#include "app/comparison/ComparisonChoice.h"
#include "app/comparison/SeedBox.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>

using namespace Talmesh::app;

namespace
{

class TwoSides : public ::testing::Test
{
protected:
  TwoSides()
  {
    QObject::connect(&boxes, &SideBoxes::sidesChanged,
                     [this](const std::string& one, const std::string& other)
                     {
                       compared = one;
                       with = other;
                       ++changes;
                     });
    boxes.setKept({{"oscillating", Qt::red}, {"silent", Qt::blue}});
  }

  QComboBox& box(const char* name) { return *boxes.findChild<QComboBox*>(QLatin1String(name)); }
  static QColor swatchOf(const QComboBox& box, int entry)
  {
    return box.itemIcon(entry).pixmap(12, 12).toImage().pixelColor(6, 6);
  }

  SideBoxes boxes;
  std::string compared = "?";
  std::string with = "?";
  int changes = 0;
};

} // namespace

TEST_F(TwoSides, OfferThePresentSelectionAndTheKeptOnes)
{
  EXPECT_EQ(box("comparedSide").count(), 3);
  EXPECT_EQ(box("comparedSide").itemText(0), "Present selection");
  EXPECT_EQ(box("comparedSide").itemText(2), "silent");
  EXPECT_EQ(box("comparedWith").itemText(0), "The others");
  EXPECT_EQ(swatchOf(box("comparedWith"), 2), QColor(Qt::blue));
  EXPECT_EQ(changes, 0);
}

TEST_F(TwoSides, AnnounceWhatTheUserChooses)
{
  QTest::keyClick(&box("comparedSide"), Qt::Key_Down);
  EXPECT_EQ(compared, "oscillating");
  EXPECT_EQ(with, "");
  QTest::keyClick(&box("comparedWith"), Qt::Key_End);
  EXPECT_EQ(with, "silent");
  EXPECT_EQ(changes, 2);
}

TEST_F(TwoSides, ShowAChoiceAndKeepItWhenOthersAreOffered)
{
  boxes.setSides("silent", "oscillating");
  EXPECT_EQ(box("comparedSide").currentText(), "silent");
  EXPECT_EQ(box("comparedWith").currentText(), "oscillating");
  boxes.setKept({{"new", Qt::green}, {"oscillating", Qt::red}, {"silent", Qt::blue}});
  EXPECT_EQ(box("comparedSide").currentText(), "silent");
  boxes.setKept({{"oscillating", Qt::red}});
  EXPECT_EQ(box("comparedSide").currentText(), "Present selection");
  boxes.setSides("who?", "");
  EXPECT_EQ(box("comparedSide").currentIndex(), 0);
  EXPECT_EQ(changes, 0);
}

TEST_F(TwoSides, HaveTheOthersOfAKeptSelectionGray)
{
  const QColor usual = swatchOf(box("comparedWith"), 0);
  boxes.setSides("silent", "");
  EXPECT_EQ(swatchOf(box("comparedWith"), 0),
            QColor(colorOfRest[0], colorOfRest[1], colorOfRest[2]));
  EXPECT_NE(swatchOf(box("comparedWith"), 0), usual);
}

TEST(SeedBox, IsTypedAndDrawnAnew)
{
  SeedBox seed;
  QSignalSpy changes(&seed, &SeedBox::seedChanged);
  seed.setSeed(7);
  EXPECT_EQ(changes.count(), 0);
  auto& box = *seed.findChild<QSpinBox*>(QStringLiteral("seed"));
  EXPECT_EQ(box.value(), 7);
  box.selectAll();
  QTest::keyClicks(&box, "4711");
  EXPECT_EQ(changes.count(), 0) << "while it is typed";
  QTest::keyClick(&box, Qt::Key_Return);
  ASSERT_EQ(changes.count(), 1);
  EXPECT_EQ(box.value(), 4711);
  auto& button = *seed.findChild<QToolButton*>(QStringLiteral("drawSeed"));
  for (int time = 0; time < 20; ++time)
  {
    const int before = box.value();
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_NE(box.value(), before);
    EXPECT_GE(box.value(), 1);
    EXPECT_LE(box.value(), 9999);
  }
  EXPECT_EQ(changes.count(), 21);
}
