#include "support/Pictures.h"
#include "widgets/VtkPlotWidget.h"

#include <vtkAbstractContextItem.h>
#include <vtkContext2D.h>
#include <vtkContextDevice2D.h>
#include <vtkContextScene.h>
#include <vtkContextView.h>
#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <new>

namespace
{

/// Fails in the midst of its painting, as an item does for which memory runs out.
class FailingItem : public vtkAbstractContextItem
{
public:
  static FailingItem* New();

  bool Paint(vtkContext2D* painter) override
  {
    if (!fails || failsAfter-- > 0)
      return true;
    ++failures;
    painter->PushMatrix();
    painter->GetDevice()->EnableClipping(true);
    throw std::bad_alloc();
  }

  bool fails = true;
  int failsAfter = 0; ///< frames that are still painted
  int failures = 0;
};
vtkStandardNewMacro(FailingItem);

class PaintingFailure : public ::testing::Test
{
protected:
  PaintingFailure()
  {
    widget->resize(400, 300);
    scene()->AddItem(item);
  }

  vtkContextScene* scene() const { return widget->contextView()->GetScene(); }

  std::unique_ptr<VtkPlotWidget> widget = std::make_unique<VtkPlotWidget>();
  vtkNew<FailingItem> item;
};

/// As often painted as those that fail.
QImage soundPicture()
{
  VtkPlotWidget widget;
  widget.resize(400, 300);
  widget.grabFramebuffer();
  widget.updatePlot(false);
  return widget.grabFramebuffer();
}

TEST_F(PaintingFailure, OfTheFirstFrameIsSurvivedByTheEndOfTheWidget)
{
  widget->grabFramebuffer();
  widget.reset();
  QCoreApplication::sendPostedEvents();
}

TEST_F(PaintingFailure, OfALaterFrameIsSurvivedByTheEndOfTheWidget)
{
  item->fails = false;
  widget->grabFramebuffer();
  item->fails = true;
  EXPECT_THROW(widget->updatePlot(false), std::bad_alloc);
  EXPECT_THROW(widget->updatePlot(false), std::bad_alloc);
  widget.reset();
}

TEST_F(PaintingFailure, LeavesTheFramesOfQtInAnEventOfItsOwn)
{
  widget->grabFramebuffer();
  EXPECT_THROW(QCoreApplication::sendPostedEvents(), std::bad_alloc);
  EXPECT_NO_THROW(QCoreApplication::sendPostedEvents());
}

TEST_F(PaintingFailure, IsToldOnce)
{
  widget->grabFramebuffer();
  EXPECT_THROW(widget->updatePlot(false), std::bad_alloc);
  item->fails = false;
  EXPECT_NO_THROW(widget->updatePlot(false));
  EXPECT_NO_THROW(QCoreApplication::sendPostedEvents());
}

TEST_F(PaintingFailure, LeavesNoTraceInLaterFrames)
{
  const QImage sound = soundPicture();
  ASSERT_GT(paintedPixels(sound), 1000);
  widget->grabFramebuffer();
  EXPECT_THROW(widget->updatePlot(false), std::bad_alloc);
  item->fails = false;
  widget->updatePlot(false);
  EXPECT_EQ(widget->grabFramebuffer(), sound);
}

TEST_F(PaintingFailure, EndsAnExportThatTheWidgetSurvives)
{
  const QImage sound = soundPicture();
  const QTemporaryDir folder;
  EXPECT_THROW(widget->printPlot(folder.filePath("first.pdf")), std::bad_alloc);
  item->failsAfter = 1;
  item->failures = 0;
  EXPECT_THROW(widget->printPlot(folder.filePath("second.pdf")), std::bad_alloc);
  EXPECT_EQ(item->failures, 2) << "once into the page, once into the window afterwards";
  item->fails = false;
  widget->updatePlot(false);
  EXPECT_EQ(widget->grabFramebuffer(), sound);
}

TEST_F(PaintingFailure, InAWindowOfTheClientsIsSurvivedByTheEndOfTheWidget)
{
  const vtkNew<vtkGenericOpenGLRenderWindow> window;
  widget->setRenderWindow(window);
  widget->contextView()->SetRenderWindow(window);
  widget->grabFramebuffer();
  EXPECT_THROW(widget->updatePlot(false), std::bad_alloc);
  widget.reset();
}

} // namespace
