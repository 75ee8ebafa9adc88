#include "app/window/PlotDock.h"

#include "app/window/NameBox.h"
#include "support/DrawnStyles.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <iterator>
#include <vector>

using namespace Talmesh::app;

namespace
{

class PlotDockOfFourColumns : public ::testing::Test
{
protected:
  PlotDockOfFourColumns()
      : changes(&dock, &PlotDock::choiceChanged)
  {
    dock.setColumns({"Molecule: A", "Molecule: B", ": Time [s]", "Parameter: k"});
    PlotChoice choice;
    choice.x = 2;
    choice.y = {0};
    choice.z = 1;
    dock.setChoice(choice);
    dock.show();
  }

  QCheckBox* box(const char* name) { return dock.findChild<QCheckBox*>(QLatin1String(name)); }
  QComboBox* combo(const char* name) { return dock.findChild<QComboBox*>(QLatin1String(name)); }
  QListWidget* yList() { return dock.findChild<QListWidget*>(QStringLiteral("y")); }

  /// Ticks or unticks a y column with the keyboard.
  void pressSpaceOn(int row)
  {
    yList()->setCurrentRow(row);
    QTest::keyClick(yList(), Qt::Key_Space);
  }

  PlotDock dock;
  QSignalSpy changes;
};

} // namespace

TEST_F(PlotDockOfFourColumns, ShowsAChoiceWithoutAnnouncingIt)
{
  PlotChoice choice;
  choice.style = xyzPlot;
  choice.x = 3;
  choice.y = {0, 2};
  choice.z = 1;
  choice.lines = true;
  choice.legend = true;
  choice.logX = true;
  choice.logY = true;
  dock.setChoice(choice);
  EXPECT_EQ(changes.count(), 0);
  const PlotChoice read = dock.choice();
  EXPECT_EQ(read.style, xyzPlot);
  EXPECT_EQ(read.x, 3);
  EXPECT_EQ(read.y, (std::vector<int>{0, 2}));
  EXPECT_EQ(read.z, 1);
  EXPECT_TRUE(read.lines && read.legend && read.logX && read.logY);
}

TEST_F(PlotDockOfFourColumns, ShowsNamesWithoutTheirKind)
{
  EXPECT_EQ(combo("x")->itemText(3), "k");
  EXPECT_EQ(yList()->item(2)->text(), "Time [s]");
  EXPECT_EQ(yList()->item(2)->toolTip(), ": Time [s]");
}

TEST_F(PlotDockOfFourColumns, ShowsBeginningAndEndOfLongNames)
{
  const QString name = "Concentration of the phosphorylated receptor complex " + QString(200, 'x') +
                       " at the membrane [nmol/l]";
  dock.setColumns({"Molecule: A", "Molecule: " + name});
  PlotChoice choice;
  choice.x = 1;
  dock.setChoice(choice);
  QCoreApplication::processEvents();
  auto* box = dynamic_cast<NameBox*>(combo("x"));
  ASSERT_TRUE(box);
  const QString shown = box->shownName();
  EXPECT_TRUE(shown.startsWith("Conc") && shown.endsWith("[nmol/l]")) << shown.toStdString();
  EXPECT_LT(box->fontMetrics().horizontalAdvance(shown), box->width());
  EXPECT_EQ(box->currentText(), name);
  EXPECT_EQ(box->itemData(1, Qt::ToolTipRole), name);
  EXPECT_EQ(yList()->horizontalScrollBar()->maximum(), 0) << "nothing is out of sight";
  EXPECT_EQ(yList()->visualItemRect(yList()->item(1)).width(), yList()->viewport()->width());
  EXPECT_EQ(yList()->item(1)->toolTip(), "Molecule: " + name);
}

TEST_F(PlotDockOfFourColumns, ShowsShortNamesWhole)
{
  EXPECT_EQ(dynamic_cast<NameBox*>(combo("x"))->shownName(), "Time [s]");
}

TEST_F(PlotDockOfFourColumns, AnnouncesEverySwitch)
{
  for (const char* name : {"lines", "legend", "logX", "logY"})
  {
    changes.clear();
    QTest::keyClick(box(name), Qt::Key_Space);
    EXPECT_EQ(changes.count(), 1) << name;
    EXPECT_TRUE(box(name)->isChecked());
  }
}

TEST_F(PlotDockOfFourColumns, AnnouncesAnotherColumn)
{
  QTest::keyClick(combo("x"), Qt::Key_Down);
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(dock.choice().x, 3);
}

TEST_F(PlotDockOfFourColumns, AddsATickedColumn)
{
  pressSpaceOn(3);
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(dock.choice().y, (std::vector<int>{0, 3}));
}

TEST_F(PlotDockOfFourColumns, KeepsTheOrderInWhichColumnsAreChosen)
{
  PlotChoice choice = dock.choice();
  choice.y = {3, 1, 3};
  dock.setChoice(choice);
  EXPECT_EQ(dock.choice().y, (std::vector<int>{3, 1}));
  pressSpaceOn(0);
  EXPECT_EQ(dock.choice().y, (std::vector<int>{3, 1, 0}));
  pressSpaceOn(3);
  EXPECT_EQ(dock.choice().y, (std::vector<int>{1, 0}));
  pressSpaceOn(3);
  EXPECT_EQ(dock.choice().y, (std::vector<int>{1, 0, 3}));
}

TEST_F(PlotDockOfFourColumns, TellsItsColumns)
{
  EXPECT_EQ(dock.columns(),
            (QStringList{"Molecule: A", "Molecule: B", ": Time [s]", "Parameter: k"}));
}

TEST_F(PlotDockOfFourColumns, ChoosesNoColumnWithoutATick)
{
  pressSpaceOn(0);
  EXPECT_EQ(yList()->item(0)->checkState(), Qt::Unchecked);
  EXPECT_TRUE(dock.choice().y.empty());
  EXPECT_EQ(changes.count(), 1);
  pressSpaceOn(1);
  EXPECT_EQ(dock.choice().y, std::vector<int>{1});
}

TEST_F(PlotDockOfFourColumns, EnablesWhatTheStyleKnows)
{
  EXPECT_TRUE(box("lines")->isEnabled());
  EXPECT_FALSE(combo("z")->isEnabled());
  PlotChoice choice = dock.choice();
  choice.style = xyzPlot;
  dock.setChoice(choice);
  EXPECT_FALSE(box("lines")->isEnabled());
  EXPECT_TRUE(combo("z")->isEnabled());
}

TEST_F(PlotDockOfFourColumns, EnablesTheLogarithmicXAxisWhereItActs)
{
  for (const plotStyles style : drawnStyles)
  {
    PlotChoice choice = dock.choice();
    choice.style = style;
    dock.setChoice(choice);
    const bool acts = style == xyPlot || style == multiPlot || style == selectionCdfPlot ||
                      style == scatterWithErrorBars;
    EXPECT_EQ(box("logX")->isEnabled(), acts) << style;
  }
}

TEST_F(PlotDockOfFourColumns, ShowsLegendAndLogarithmicYAxisWhereTheyAct)
{
  PlotChoice choice = dock.choice();
  choice.legend = true;
  choice.logY = true;
  dock.setChoice(choice);
  std::vector<plotStyles> styles(std::begin(drawnStyles), std::end(drawnStyles));
  styles.push_back(xyPlot);
  for (const plotStyles style : styles)
  {
    SCOPED_TRACE(style);
    combo("style")->setCurrentIndex(combo("style")->findData(static_cast<int>(style)));
    const bool logarithmic = style == xyPlot || style == multiPlot || style == selectionCdfPlot;
    EXPECT_EQ(box("logY")->isEnabled(), logarithmic);
    EXPECT_EQ(box("logY")->isChecked(), logarithmic);
    const bool hasLegend = logarithmic || style == scatterWithErrorBars;
    EXPECT_EQ(box("legend")->isEnabled(), hasLegend);
    EXPECT_EQ(box("legend")->isChecked(), hasLegend);
    EXPECT_TRUE(dock.choice().legend) << "as wished";
    EXPECT_TRUE(dock.choice().logY);
  }
}

TEST_F(PlotDockOfFourColumns, OffersTheStylesThatDrawSomething)
{
  EXPECT_EQ(combo("style")->count(), 8);
  EXPECT_EQ(combo("style")->findText(QStringLiteral("Reserved style 1")), -1);
}

TEST_F(PlotDockOfFourColumns, KeepsAReservedStyleThatWasAskedFor)
{
  PlotChoice choice = dock.choice();
  choice.style = reservedStyle2;
  dock.setChoice(choice);
  EXPECT_EQ(dock.choice().style, reservedStyle2);
}
