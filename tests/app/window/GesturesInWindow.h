#ifndef GesturesInWindow_h
#define GesturesInWindow_h

#include "app/document/RunGestures.h"
#include "app/window/GestureActions.h"

#include <QAction>
#include <QSettings>

#include <vector>

#include "window/SelectionInWindow.h"

/// Runs in the window, pointed at with the tools of its menu. X of the three runs over time 0 to 3:
/// run 0 rises from 2 to 2.78, run 1 from 2.84 to 3 and back to 2.95, run 2 falls from 2.91
/// to 2.24.
class GesturesInWindow : public SelectionInWindow
{
public:
  struct Place
  {
    double x;
    double y;
  };

protected:
  using Tool = Talmesh::SelectionTool;
  using Rule = Talmesh::app::GestureRule;

  ~GesturesInWindow() override { QSettings().clear(); }

  void choose(Tool tool) { window.gestureActions()->action(tool)->trigger(); }
  void choose(Rule rule) { window.gestureActions()->action(rule)->trigger(); }
  using SelectionInWindow::choose;

  /// Presses the right button at the first place, moves through all and releases it at the last.
  void draw(const std::vector<Place>& places, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    std::vector<QPoint> pixels;
    for (const Place& place : places)
      pixels.push_back(pixelOf(place.x, place.y));
    drawPixels(pixels, modifiers);
  }

  void drawPixels(const std::vector<QPoint>& pixels,
                  Qt::KeyboardModifiers modifiers = Qt::NoModifier)
  {
    QTest::mousePress(&plot(), Qt::RightButton, modifiers, pixels.front());
    for (const QPoint& pixel : pixels)
    {
      QMouseEvent move(QEvent::MouseMove, pixel, plot().mapToGlobal(pixel), Qt::NoButton,
                       Qt::RightButton, modifiers);
      QCoreApplication::sendEvent(&plot(), &move);
    }
    QTest::mouseRelease(&plot(), Qt::RightButton, modifiers, pixels.back());
    QCoreApplication::processEvents();
  }

  void select(const char* words)
  {
    const auto fault =
        window.selectionController()->selectWhere(words, Talmesh::app::RunCombination::Replace);
    EXPECT_EQ(fault.text, "");
    QCoreApplication::processEvents();
  }

  /// The last step in words.
  QString lastStep()
  {
    const QUndoStack& steps = window.selectionController()->undoStack();
    return steps.text(steps.index() - 1);
  }

  int steps() { return window.selectionController()->undoStack().index(); }
};

#endif
