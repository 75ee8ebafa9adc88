#include "export/ExportedPage.h"

#include <array>
#include <vector>

namespace
{

/// The 3-D chart as the viewer dresses it.
class ChartDressing : public ExportedPage
{
protected:
  void draw(int x, int y, int z)
  {
    Talmesh::app::PlotChoice choice = Talmesh::app::choiceOf(container());
    choice.style = xyzPlot;
    choice.x = x;
    choice.y = {y};
    choice.z = z;
    EXPECT_EQ(Talmesh::app::applyChoice(container(), choice), "");
  }

  QString painted() { return outputOf("pdftotext", {write(), "-"}).simplified(); }
};

} // namespace

TEST_F(ChartDressing, NamesAllThreeAxesWhateverTheColumns)
{
  // Columns: 0 X, 1 Y, 2 time, 4 k.
  const QStringList names = {"X", "Y", "time", "", "k"};
  const std::vector<std::array<int, 3>> choices = {{2, 0, 1}, {4, 0, 1}, {2, 4, 0}, {0, 1, 4}};
  for (const auto& [x, y, z] : choices)
  {
    draw(x, y, z);
    const QString texts = painted();
    for (const int column : {x, y, z})
      EXPECT_TRUE(texts.contains(names[column]))
          << names[column].toStdString() << " among " << texts.toStdString();
  }
}
