#include "app/import/TranslatedText.h"

#include "app/examples/CircuitSensitivity.h"
#include "app/examples/StudyCharts.h"
#include "app/import/RunTableImport.h"
#include "app/import/Study.h"
#include "app/window/PlotDock.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "support/German.h"

#include <gtest/gtest.h>

#include <QComboBox>

#include "SampleStudies.h"

using namespace Talmesh::app;

TEST(TranslatedText, PutsValuesInTheirPlaces)
{
  EXPECT_EQ(withValues("%2 and %1", {"a", "b"}), "b and a");
  EXPECT_EQ(withValues("%1%1", {"a"}), "aa");
}

TEST(TranslatedText, LeavesWhatTheValuesHoldAlone)
{
  EXPECT_EQ(withValues("%1, %2", {"%2", "100%"}), "%2, 100%");
}

TEST(TranslatedText, LeavesPlacesWithoutAValue)
{
  EXPECT_EQ(withValues("%1 %2 %0 % %", {"a"}), "a %2 %0 % %");
}

TEST(TranslatedText, IsGermanInMessages)
{
  EXPECT_EQ(importRunTable("time,A\n0,1\n1\n").error(), "line 3 has 1 field, the first line has 2");
  const German german;
  ASSERT_TRUE(german.installed);
  EXPECT_EQ(importRunTable("time,A\n0,1\n1\n").error(),
            "Zeile 3 hat 1 Feld, die erste Zeile hat 2");
  EXPECT_EQ(studySize(sampleStudy()), "3 L\xc3\xa4ufe, je 4 Punkte, 1 Parameter");
}

TEST(TranslatedText, IsGermanInTheTitleOfADistribution)
{
  PlotContainer container(nullptr);
  priorDensity(circuitPriors().front()).complete(container);
  EXPECT_EQ(container.getMetaData()->title, "Prior density of alpha");
  const German german;
  priorDensity(circuitPriors().front()).complete(container);
  EXPECT_EQ(container.getMetaData()->title, "A-priori-Dichte von alpha");
}

TEST(TranslatedText, IsGermanInTheStyles)
{
  const German german;
  const PlotDock dock;
  EXPECT_EQ(dock.windowTitle(), "Diagramm");
  EXPECT_EQ(dock.findChild<QComboBox*>("style")->itemText(0), "XY-Diagramm");
}
