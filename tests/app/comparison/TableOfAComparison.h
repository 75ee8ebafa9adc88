#ifndef TableOfAComparison_h
#define TableOfAComparison_h

#include "app/comparison/ComparisonModel.h"
#include "app/comparison/ComparisonTable.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTableView>

#include <cmath>
#include <utility>
#include <vector>

using namespace Talmesh::app;

inline ComparedParameter parameter(const char* name, double distance, double p, double adjusted,
                                   bool significant)
{
  ComparedParameter row{name, {}, TestObstacle::none, significant};
  row.result.selected = 8;
  row.result.others = 12;
  row.result.distance = distance;
  row.result.p = p;
  row.result.adjusted = adjusted;
  row.result.method = Talmesh::stats::TestMethod::exactDistribution;
  row.result.direction = Talmesh::stats::Direction::larger;
  row.result.superiority = 0.75;
  row.result.medianDifference = -2.5;
  return row;
}

/// Without a test, in any place of the comparison.
inline ComparedParameter untested(const char* name, TestObstacle obstacle)
{
  const double none = std::nan("");
  ComparedParameter row = parameter(name, none, none, none, false);
  row.obstacle = obstacle;
  return row;
}

inline Comparison comparisonWith(std::vector<ComparedParameter> parameters)
{
  Comparison comparison;
  comparison.state = Comparison::State::compared;
  comparison.parameters = std::move(parameters);
  comparison.units.units = 20;
  return comparison;
}

inline Comparison withoutParameters(Comparison::State state)
{
  Comparison comparison;
  comparison.state = state;
  return comparison;
}

inline Comparison sampleComparison()
{
  // p.adjust(c(0.2, 1e-10, 0.03), "BH")  # R: 0.200 3e-10 0.045
  return comparisonWith({parameter("k1", 0.25, 0.2, 0.2, false),
                         parameter("K10", 1.0, 1e-10, 3e-10, true),
                         parameter("k, \"2\"", 0.5, 0.03, 0.045, true)});
}

class TableOfAComparison : public ::testing::Test
{
protected:
  TableOfAComparison()
  {
    table.resize(700, 200);
    table.setComparison(sampleComparison(), 1);
    table.show();
  }

  QTableView& view() { return *table.findChild<QTableView*>(QStringLiteral("comparisonTable")); }
  QLabel& explanation()
  {
    return *table.findChild<QLabel*>(QStringLiteral("comparisonExplanation"));
  }

  QString cell(int row, int column) { return view().model()->index(row, column).data().toString(); }

  bool isBold(int row)
  {
    return view().model()->index(row, 0).data(Qt::FontRole).value<QFont>().bold();
  }

  QStringList names()
  {
    QStringList shown;
    for (int row = 0; row < view().model()->rowCount(); ++row)
      shown.append(cell(row, ComparisonModel::Name));
    return shown;
  }

  ComparisonTable table;
};

#endif
