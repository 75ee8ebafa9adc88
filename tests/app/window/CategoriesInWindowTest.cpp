#include "app/comparison/ComparisonModel.h"

#include <vtkChartMatrix.h>
#include <vtkPlotBar.h>

#include <QComboBox>
#include <QTableView>

#include "window/GroupsInWindow.h"

namespace
{

using namespace Talmesh::app;

/// Six runs of three drugs; those of aspirin have larger values.
std::string runsOfDrugs()
{
  const char* drugs[] = {"none", "aspirin", "none", "mixed", "aspirin", "none"};
  std::ostringstream text;
  text << "run,time,drug,k,X\n";
  for (int run = 0; run < 6; ++run)
    for (int point = 0; point < 4; ++point)
      text << run << ',' << point << ',' << drugs[run] << ',' << 0.5 * run << ','
           << (run % 3 == 1 ? 10 : 1) * (point + 1) + 0.01 * run << '\n';
  return text.str();
}

class CategoriesInWindow : public GroupsInWindow
{
protected:
  CategoriesInWindow() { open("drugs.csv", runsOfDrugs()); }

  void chooseTexts()
  {
    auto* modes = find<QComboBox>("clusterMode");
    modes->setFocus();
    QTest::keyClick(modes, Qt::Key_End);
    EXPECT_EQ(modes->currentText(), "Text in drug");
  }

  QStringList listed()
  {
    QStringList names;
    auto* list = find<QListWidget>("clusterList");
    for (int row = 0; row < list->count(); ++row)
      names.append(list->item(row)->text());
    return names;
  }

  void groupByTexts()
  {
    chooseTexts();
    QTest::mouseClick(find<QPushButton>("clusterStart"), Qt::LeftButton);
    QCoreApplication::processEvents();
  }
};

const QStringList drugNames{"none", "aspirin", "mixed"};

TEST_F(CategoriesInWindow, AreOfferedAsGroups)
{
  EXPECT_TRUE(find<QSpinBox>("clusterCount")->isEnabled());
  groupByTexts();
  EXPECT_FALSE(find<QSpinBox>("clusterCount")->isEnabled()) << "texts are as many as they are";
  EXPECT_EQ(listed(), drugNames);
  EXPECT_TRUE(find<QCheckBox>("groupColours")->isChecked());
  EXPECT_EQ(plots<vtkPlot>().size(), 4U);
  clickGroup(1);
  EXPECT_EQ(runs(), (std::set<int>{1, 4}));
}

TEST_F(CategoriesInWindow, StayGroupsInASession)
{
  groupByTexts();
  const QString path = folder.filePath("drugs.talmesh");
  ASSERT_TRUE(window.saveSessionTo(path));
  open("runs.csv", twoShapes());
  EXPECT_EQ(find<QListWidget>("clusterList")->count(), 0);
  EXPECT_LT(find<QComboBox>("clusterMode")->findText("Text in drug"), 0);
  window.openFile(path);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, 60000));
  EXPECT_EQ(listed(), drugNames);
  EXPECT_EQ(find<QComboBox>("clusterMode")->currentText(), "Text in drug");
}

TEST_F(CategoriesInWindow, GiveWayToGroupsOfAlikeCourses)
{
  groupByTexts();
  QTest::keyClick(find<QComboBox>("clusterMode"), Qt::Key_Home);
  EXPECT_TRUE(find<QSpinBox>("clusterCount")->isEnabled());
  group(2);
  ASSERT_FALSE(listed().empty());
  EXPECT_TRUE(listed().front().startsWith("Group 1: "));
}

TEST_F(CategoriesInWindow, AreComparedByTheirShares)
{
  chooseStyle(selectionCdfPlot);
  groupByTexts();
  chooseStyle(selectionCdfPlot);
  clickGroup(1);
  auto* model = window.findChild<QTableView*>(QStringLiteral("comparisonTable"))->model();
  QStringList row;
  for (int i = 0; i < model->rowCount(); ++i)
    if (model->index(i, ComparisonModel::Name).data() == "drug")
      for (int column = 0; column < ComparisonModel::columns; ++column)
        row.append(model->index(i, column).data().toString());
  ASSERT_EQ(row.size(), int(ComparisonModel::columns));
  EXPECT_EQ(row[ComparisonModel::DirectionOfDifference], "aspirin more often");
  EXPECT_EQ(row[ComparisonModel::Statistic], "V 1.000");
  // R 4.2.2: fisher.test(matrix(c(0, 2, 0, 3, 0, 1), ncol = 2))$p.value = 1 / choose(6, 2)
  EXPECT_EQ(row[ComparisonModel::PValue], "0.067");
  auto* page = vtkChartMatrix::SafeDownCast(container().getItem());
  ASSERT_TRUE(page);
  EXPECT_TRUE(vtkPlotBar::SafeDownCast(page->GetChart({0, 0})->GetPlot(0)));
}

} // namespace
