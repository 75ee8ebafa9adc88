#ifndef ComparisonInWindow_h
#define ComparisonInWindow_h

#include "app/window/MainWindow.h"
#include "external/ParameterSelection.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkChartMatrix.h>
#include <vtkChartXY.h>

#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <set>
#include <string>

#include "SampleStudies.h"

/// The window with its panel of comparisons.
class ComparisonInWindow : public ::testing::Test
{
protected:
  static constexpr int patience = 60000;
  static constexpr int runCount = 12;
  static constexpr int pointsPerRun = 5;

  ComparisonInWindow()
  {
    window.resize(900, 700);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }

  QString write(const char* name, const std::string& text)
  {
    QFile file(folder.filePath(QString::fromUtf8(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.data(), static_cast<qint64>(text.size()));
    return file.fileName();
  }

  void open(Talmesh::app::OpeningWishes options = {},
            const std::string& text = sampleRuns(runCount, pointsPerRun))
  {
    options.file = write("runs.csv", text).toStdString();
    window.open(options);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window.isLoading(); }, patience));
  }

  void select(const std::set<int>& runs)
  {
    ParameterSelection selection;
    selection.runs = runs;
    container().setSelection(&selection, 0);
    QCoreApplication::processEvents();
  }

  void press(const char* name, Qt::Key key)
  {
    auto* control = window.findChild<QWidget*>(QLatin1String(name));
    ASSERT_TRUE(control && control->isEnabled()) << name;
    QTest::keyClick(control, key);
  }

  PlotContainer& container() { return *window.plotWidget()->plotContainer(); }
  PlotMetaData& settings() { return *container().getMetaData(); }
  plotStyles style() { return settings().getPlotStyle(); }
  QAbstractItemModel& table()
  {
    return *window.findChild<QTableView*>(QStringLiteral("comparisonTable"))->model();
  }
  QLabel& explanation()
  {
    return *window.findChild<QLabel*>(QStringLiteral("comparisonExplanation"));
  }
  std::string parameterChartTitle()
  {
    auto* matrix = vtkChartMatrix::SafeDownCast(container().getItem());
    return matrix ? matrix->GetChart(vtkVector2i(0, 0))->GetTitle() : "no page of charts";
  }
  bool saysHowLongItTook()
  {
    const QRegularExpression text(QStringLiteral("^Updated in \\d+ ms$"));
    return text.match(window.statusBar()->currentMessage()).hasMatch();
  }

  QTemporaryDir folder;
  Talmesh::app::MainWindow window;
};

#endif
