#include "external/LinePlotData.h"
#include "plot/ContainerAccess.h"
#include "support/CapturedOutput.h"
#include "support/PlotFixture.h"

#include <gtest/gtest.h>

#include <QMetaMethod>

#include <vector>

namespace
{

struct Slot
{
  const char* signature;
  const char* parameter;
};

// The order, too, is what clients see.
const std::vector<Slot> expectedSlots{
    {"setPlotData(vtkSmartPointer<vtkTable>)", "data"},
    {"setLinePlotData(LinePlotData*)", "data"},
    {"setLinePlotDataAsAdditionalData(LinePlotData*)", "data"},
    {"setLinePlotItems(std::vector<Talmesh::TypedConcentrationName>*)", ""},
    {"setPlotStyle(plotStyles)", "plotStyle"},
    {"setLogScaleY(bool)", "log"},
    {"setShowLegend(bool)", "legend"},
    {"redraw()", nullptr},
    {"dirty()", nullptr},
    {"annotationUpdate()", nullptr},
};

class ContainerSlots : public PlotFixture
{
};

TEST(ContainerMetaObject, IsThatOfAQObjectNamedPlotContainer)
{
  EXPECT_STREQ(PlotContainer::staticMetaObject.className(), "PlotContainer");
  EXPECT_EQ(PlotContainer::staticMetaObject.superClass(), &QObject::staticMetaObject);
}

TEST(ContainerMetaObject, ListsExactlyTheSlots)
{
  const QMetaObject& meta = PlotContainer::staticMetaObject;
  ASSERT_EQ(meta.methodCount() - meta.methodOffset(), static_cast<int>(expectedSlots.size()));
  for (std::size_t i = 0; i < expectedSlots.size(); ++i)
  {
    const QMetaMethod method = meta.method(meta.methodOffset() + static_cast<int>(i));
    EXPECT_EQ(method.methodSignature(), QByteArray(expectedSlots[i].signature));
    EXPECT_EQ(method.methodType(), QMetaMethod::Slot) << expectedSlots[i].signature;
    EXPECT_EQ(method.access(), QMetaMethod::Public) << expectedSlots[i].signature;
    EXPECT_EQ(method.returnType(), QMetaType::Void) << expectedSlots[i].signature;
    QList<QByteArray> names;
    if (expectedSlots[i].parameter)
      names.append(expectedSlots[i].parameter);
    EXPECT_EQ(method.parameterNames(), names) << expectedSlots[i].signature;
  }
}

TEST(ContainerMetaObject, HasNoPropertiesEnumerationsOrConstructors)
{
  const QMetaObject& meta = PlotContainer::staticMetaObject;
  EXPECT_EQ(meta.propertyCount(), meta.propertyOffset());
  EXPECT_EQ(meta.enumeratorCount(), meta.enumeratorOffset());
  EXPECT_EQ(meta.classInfoCount(), meta.classInfoOffset());
  EXPECT_EQ(meta.constructorCount(), 0);
}

TEST_F(ContainerSlots, CanBeCalledByName)
{
  const vtkSmartPointer<vtkTable> data = plainTable();
  EXPECT_TRUE(
      QMetaObject::invokeMethod(&container, "setPlotData", Q_ARG(vtkSmartPointer<vtkTable>, data)));
  EXPECT_EQ(container.getTable(), data);
  std::vector<Talmesh::TypedConcentrationName> items(2);
  EXPECT_TRUE(
      QMetaObject::invokeMethod(&container, "setLinePlotItems",
                                Q_ARG(std::vector<Talmesh::TypedConcentrationName>*, &items)));
  EXPECT_EQ(chart()->GetNumberOfPlots(), 2);
  EXPECT_TRUE(QMetaObject::invokeMethod(&container, "setShowLegend", Q_ARG(bool, true)));
  EXPECT_TRUE(chart()->GetShowLegend());
  EXPECT_TRUE(
      QMetaObject::invokeMethod(&container, "setPlotStyle", Q_ARG(plotStyles, reservedStyle1)));
  EXPECT_EQ(chart()->GetTitle(), "Not yet implemented");
}

TEST_F(ContainerSlots, SetTheStyleWithoutARedrawOfTheirOwn)
{
  newDrawings();
  settings().blockSignals(true);
  container.setPlotStyle(parallelCoordinates);
  EXPECT_EQ(settings().getPlotStyle(), parallelCoordinates);
  EXPECT_EQ(newDrawings(), 0U);
  EXPECT_TRUE(settings().signalsBlocked());
  settings().blockSignals(false);
  container.setPlotStyle(parallelCoordinates);
  EXPECT_EQ(newDrawings(), 0U) << "nothing changed, nothing is announced";
  container.setPlotStyle(scatterPlotMatrix);
  EXPECT_EQ(newDrawings(), 1U);
}

TEST_F(ContainerSlots, MarkTheSceneDirtyAndDoNothingElse)
{
  scene.scene()->SetDirty(false);
  newDrawings();
  container.dirty();
  EXPECT_TRUE(scene.scene()->GetDirty());
  EXPECT_EQ(newDrawings(), 0U);
}

TEST(ContainerSlotsWithoutScene, MarkNothingDirty)
{
  PlotContainer container(nullptr);
  const CapturedOutput output(std::cout);
  container.dirty();
  stateOf(container).currentChart = nullptr;
  container.dirty();
  EXPECT_EQ(output.text(), "");
  EXPECT_FALSE(container.getMetaData()->signalsBlocked());
}

TEST_F(ContainerSlots, DrawTheSameByAnnouncementAndDirectly)
{
  settings().xLabel = "announced";
  newDrawings();
  emit settings().redrawNeeded();
  EXPECT_EQ(newDrawings(), 1U);
  EXPECT_EQ(bottom()->GetTitle(), "announced");
  EXPECT_FALSE(settings().signalsBlocked());
  settings().xLabel = "direct";
  container.redraw();
  EXPECT_EQ(newDrawings(), 1U);
  EXPECT_EQ(bottom()->GetTitle(), "direct");
  EXPECT_FALSE(settings().signalsBlocked());
}

TEST_F(ContainerSlots, AreDeafToASettingsObjectOfAnotherContainer)
{
  PlotContainer other(nullptr);
  newDrawings();
  const CapturedOutput output(std::cout);
  other.getMetaData()->setStride(17);
  EXPECT_EQ(newDrawings(), 0U);
}

} // namespace
