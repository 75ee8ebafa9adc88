#include "app/comparison/ComparisonDock.h"
#include "app/document/SelectionController.h"
#include "support/Reaction.h"

#include <vtkCommand.h>
#include <vtkNew.h>
#include <vtkRenderWindow.h>

#include <QDoubleSpinBox>

#include <utility>

#include "window/GroupsInWindow.h"

namespace
{

/// What the window draws and paints for each change.
class ChangesInWindow : public GroupsInWindow
{
protected:
  ChangesInWindow()
  {
    settle();
    counter->react = [this] { ++frames; };
    window.plotWidget()->renderWindow()->AddObserver(vtkCommand::EndEvent, counter);
    container().addCompletion(&owner, [this] { ++drawings; });
  }
  ~ChangesInWindow() override { window.plotWidget()->renderWindow()->RemoveObserver(counter); }

  static void settle() { QTest::qWait(100); }

  void expectOne(const char* change)
  {
    settle();
    EXPECT_EQ(std::exchange(drawings, 0), 1) << "drawings: " << change;
    EXPECT_EQ(std::exchange(frames, 0), 1) << "frames: " << change;
  }

  vtkNew<Reaction> counter;
  QObject owner;
  int frames = 0;
  int drawings = 0;
};

} // namespace

TEST_F(ChangesInWindow, BuildAndPaintThePageOnce)
{
  for (const char* look : {"runBands", "normaliseRuns", "normaliseRuns", "runBands"})
  {
    tick(look);
    expectOne(look);
  }
  group(2);
  expectOne("groups");
  clickGroup(1);
  expectOne("a group selected");
  window.selectionController()->selectAll();
  expectOne("everything selected");
  press(QKeySequence::Undo);
  expectOne("undone");
  QTest::keyClick(window.plotDock()->findChild<QCheckBox*>(QStringLiteral("legend")),
                  Qt::Key_Space);
  expectOne("legend");
  QTest::keyClick(&window, Qt::Key_6, Qt::ControlModifier);
  expectOne("another style");
  find<QDoubleSpinBox>("pThreshold")->setValue(0.5);
  expectOne("threshold");
  QTest::keyClick(find<QCheckBox>("density"), Qt::Key_Space);
  expectOne("densities");
  press(QKeySequence(Qt::Key_Escape));
  expectOne("nothing selected");
}
