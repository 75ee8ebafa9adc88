#include <vtkAxis.h>
#include <vtkChartXY.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QTextBlock>
#include <QTextDocument>

#include "LinePlotFixture.h"

namespace
{

class LinePlotForm : public LinePlotFixture
{
protected:
  /// Row and column of an item that covers one cell.
  static QPair<int, int> cellOf(QGridLayout* grid, int item)
  {
    int row = -1;
    int column = -1;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(item, &row, &column, &rows, &columns);
    EXPECT_EQ(rows * columns, 1);
    return {row, column};
  }
};

TEST_F(LinePlotForm, NamesEveryPart)
{
  const struct
  {
    const char* name;
    const char* className;
    const char* parent;
  } parts[] = {{"splitter", "QSplitter", "LinePlotWidgetClass"},
               {"stackedWidget", "QStackedWidget", "splitter"},
               {"page_no_data", "QWidget", "stackedWidget"},
               {"label", "QLabel", "page_no_data"},
               {"plotter", "VtkPlotWidget", "stackedWidget"},
               {"selector", "PlotSelector", "splitter"},
               {"exportButton", "QPushButton", "LinePlotWidgetClass"},
               {"showLegend", "QPushButton", "LinePlotWidgetClass"},
               {"logSButton", "QPushButton", "LinePlotWidgetClass"}};
  for (const auto& part : parts)
  {
    auto* found = find<QWidget>(part.name);
    ASSERT_NE(found, nullptr) << part.name;
    EXPECT_STREQ(found->metaObject()->className(), part.className) << part.name;
    EXPECT_EQ(found->parentWidget()->objectName(), part.parent) << part.name;
  }
}

TEST_F(LinePlotForm, HasTheSplitterAboveTheButtons)
{
  auto* grid = qobject_cast<QGridLayout*>(widget.layout());
  ASSERT_NE(grid, nullptr);
  EXPECT_EQ(grid->objectName(), "gridLayout");
  ASSERT_EQ(grid->count(), 2);
  EXPECT_EQ(cellOf(grid, grid->indexOf(find<QWidget>("splitter"))), qMakePair(0, 0));
  auto* row = find<QHBoxLayout>("horizontalLayout");
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(cellOf(grid, grid->indexOf(row)), qMakePair(1, 0));
}

TEST_F(LinePlotForm, HasASpacerBeforeThreeButtons)
{
  auto* row = find<QHBoxLayout>("horizontalLayout");
  ASSERT_NE(row, nullptr);
  ASSERT_EQ(row->count(), 4);
  QSpacerItem* spacer = row->itemAt(0)->spacerItem();
  ASSERT_NE(spacer, nullptr);
  EXPECT_EQ(spacer->sizeHint(), QSize(40, 20));
  EXPECT_EQ(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
  EXPECT_EQ(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
  EXPECT_EQ(row->itemAt(1)->widget(), find<QPushButton>("exportButton"));
  EXPECT_EQ(row->itemAt(2)->widget(), find<QPushButton>("showLegend"));
  EXPECT_EQ(row->itemAt(3)->widget(), find<QPushButton>("logSButton"));
}

TEST_F(LinePlotForm, HasTheChartBeforeTheSelector)
{
  auto* splitter = find<QSplitter>("splitter");
  ASSERT_EQ(splitter->count(), 2);
  EXPECT_EQ(splitter->widget(0), pages());
  EXPECT_EQ(splitter->widget(1), &selector());
  ASSERT_EQ(pages()->count(), 2);
  EXPECT_EQ(pages()->widget(0), find<QWidget>("page_no_data"));
  EXPECT_EQ(pages()->widget(1), &plotter());
  EXPECT_FALSE(pages()->sizePolicy().hasHeightForWidth());
}

TEST_F(LinePlotForm, GivesTheChartWhatTheWindowGains)
{
  show();
  const int selectorWidth = selector().width();
  const int chartWidth = pages()->width();
  widget.resize(widget.width() + 200, widget.height());
  QTest::qWait(50);
  EXPECT_EQ(selector().width(), selectorWidth);
  EXPECT_EQ(pages()->width(), chartWidth + 200);
}

TEST_F(LinePlotForm, SaysThatThereAreNoData)
{
  auto* grid = qobject_cast<QGridLayout*>(find<QWidget>("page_no_data")->layout());
  ASSERT_NE(grid, nullptr);
  EXPECT_EQ(grid->objectName(), "gridLayout_2");
  auto* label = find<QLabel>("label");
  EXPECT_EQ(cellOf(grid, grid->indexOf(label)), qMakePair(0, 0));
  EXPECT_EQ(label->textFormat(), Qt::RichText);
  EXPECT_TRUE(label->hasScaledContents());
  QTextDocument text;
  text.setHtml(label->text());
  EXPECT_EQ(text.toPlainText(), "Simulation data not available");
  EXPECT_EQ(text.blockCount(), 1);
  EXPECT_TRUE(text.firstBlock().blockFormat().alignment() & Qt::AlignHCenter);
  const QTextCharFormat letters = text.firstBlock().begin().fragment().charFormat();
  EXPECT_EQ(letters.fontPointSize(), 24.0);
  EXPECT_EQ(letters.font().family(), "Sans Serif");
  EXPECT_TRUE(label->text().contains("font-size:9pt"));
}

TEST_F(LinePlotForm, ActsOnTheLegendButtonWhenItGoesDown)
{
  show();
  vtkChartXY* chart = container().getChartXY();
  QTest::mousePress(find<QPushButton>("showLegend"), Qt::LeftButton);
  EXPECT_TRUE(chart->GetShowLegend());
  EXPECT_EQ(find<QPushButton>("showLegend")->text(), "Hide the Legend");
  QTest::mouseRelease(find<QPushButton>("showLegend"), Qt::LeftButton);
  EXPECT_TRUE(chart->GetShowLegend());
  EXPECT_EQ(find<QPushButton>("showLegend")->text(), "Hide the Legend");
}

} // namespace
