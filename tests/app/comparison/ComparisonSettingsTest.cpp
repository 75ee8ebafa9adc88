#include "app/comparison/ComparisonSettings.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <vector>

using namespace Talmesh::app;

namespace
{

class ComparisonControls : public ::testing::Test
{
protected:
  ComparisonControls()
      : changes(&settings, &ComparisonSettings::choiceChanged)
  {
    settings.setChoice({}, selectionCdfPlot, true);
    settings.show();
  }

  QWidget* control(const char* name) { return settings.findChild<QWidget*>(QLatin1String(name)); }

  void press(const char* name, Qt::Key key) { QTest::keyClick(control(name), key); }

  bool isEnabled(const char* name) { return control(name)->isEnabled(); }

  ComparisonSettings settings;
  QSignalSpy changes;
};

constexpr const char* controlNames[] = {"distributionPage", "pairPage",     "pThreshold",
                                        "ksThreshold",      "density",      "commonDensityScale",
                                        "logParameterAxes", "quartileBands"};

} // namespace

TEST_F(ComparisonControls, ShowAChoiceWithoutAnnouncingIt)
{
  ComparisonChoice choice;
  choice.pThreshold = 0.0125;
  choice.ksThreshold = 0.3;
  choice.density = true;
  choice.commonDensityScale = true;
  choice.logParameterAxes = true;
  choice.bands = true;
  settings.setChoice(choice, selectionCdfPlot, true);
  EXPECT_EQ(changes.count(), 0);
  const ComparisonChoice read = settings.choice();
  EXPECT_DOUBLE_EQ(read.pThreshold, 0.0125);
  EXPECT_DOUBLE_EQ(read.ksThreshold, 0.3);
  EXPECT_TRUE(read.density && read.commonDensityScale && read.logParameterAxes && read.bands);
}

TEST_F(ComparisonControls, AnnounceEveryChangeOnce)
{
  press("density", Qt::Key_Space);
  EXPECT_EQ(changes.count(), 1);
  EXPECT_TRUE(settings.choice().density);
  press("logParameterAxes", Qt::Key_Space);
  press("quartileBands", Qt::Key_Space);
  EXPECT_EQ(changes.count(), 3);
  press("pThreshold", Qt::Key_Up);
  EXPECT_EQ(changes.count(), 4);
  EXPECT_GT(settings.choice().pThreshold, 0.05);
  press("ksThreshold", Qt::Key_Up);
  EXPECT_EQ(changes.count(), 5);
  EXPECT_DOUBLE_EQ(settings.choice().ksThreshold, 0.05);
}

TEST_F(ComparisonControls, KeepTheThresholdsBetweenZeroAndOne)
{
  for (const char* name : {"pThreshold", "ksThreshold"})
  {
    auto* box = settings.findChild<QDoubleSpinBox*>(QLatin1String(name));
    box->setValue(7.0);
    EXPECT_EQ(box->value(), 1.0);
    box->setValue(-1.0);
    EXPECT_EQ(box->value(), 0.0);
  }
}

TEST_F(ComparisonControls, TakeThresholdsInScientificNotation)
{
  auto* box = settings.findChild<QDoubleSpinBox*>(QStringLiteral("pThreshold"));
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("5e-12"));
  EXPECT_EQ(settings.choice().pThreshold, 5e-12);
  QTest::keyClick(box, Qt::Key_Return);
  EXPECT_EQ(settings.choice().pThreshold, 5e-12);
  EXPECT_EQ(box->text(), "5e-12");
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("0.00001"));
  EXPECT_EQ(settings.choice().pThreshold, 1e-5);
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("2"));
  EXPECT_EQ(settings.choice().pThreshold, 1e-5) << "more than 1";
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("x"));
  EXPECT_FALSE(box->text().contains('x'));
}

TEST_F(ComparisonControls, TakeThresholdsAsTheUsersLanguageWritesThem)
{
  auto* box = settings.findChild<QDoubleSpinBox*>(QStringLiteral("pThreshold"));
  box->setLocale(QLocale(QLocale::German));
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("0,025"));
  EXPECT_EQ(settings.choice().pThreshold, 0.025);
  box->selectAll();
  QTest::keyClicks(box, QStringLiteral("0.125"));
  EXPECT_EQ(settings.choice().pThreshold, 0.125) << "as programs write it";
  QTest::keyClick(box, Qt::Key_Up);
  EXPECT_EQ(box->text(), "0,135");
}

TEST_F(ComparisonControls, StepInTheSecondDigitOfP)
{
  const auto after = [this](double before, Qt::Key key)
  {
    ComparisonChoice choice;
    choice.pThreshold = before;
    settings.setChoice(choice, selectionCdfPlot, true);
    press("pThreshold", key);
    return settings.choice().pThreshold;
  };
  EXPECT_EQ(after(0.05, Qt::Key_Up), 0.051);
  EXPECT_EQ(after(0.05, Qt::Key_Down), 0.049);
  EXPECT_EQ(after(1e-7, Qt::Key_Up), 1.1e-7);
  EXPECT_EQ(after(1e-7, Qt::Key_Down), 9.9e-8);
  EXPECT_EQ(after(0.0, Qt::Key_Up), 1e-4);
  EXPECT_EQ(after(1.0, Qt::Key_Up), 1.0);
}

TEST_F(ComparisonControls, LeaveTheOtherSettingsAsTheyAre)
{
  ComparisonChoice choice;
  choice.pThreshold = 1.23456789e-7;
  // No control shows more than 1.
  choice.ksThreshold = 1.5;
  settings.setChoice(choice, selectionCdfPlot, true);
  press("density", Qt::Key_Space);
  EXPECT_TRUE(settings.choice().density);
  EXPECT_EQ(settings.choice().pThreshold, 1.23456789e-7);
  EXPECT_EQ(settings.choice().ksThreshold, 1.5);
  press("pThreshold", Qt::Key_Up);
  EXPECT_NE(settings.choice().pThreshold, 1.23456789e-7);
  EXPECT_EQ(settings.choice().ksThreshold, 1.5);
}

TEST_F(ComparisonControls, AreEnabledWhereTheyAct)
{
  for (const char* name : controlNames)
    EXPECT_EQ(isEnabled(name), std::string(name) != "commonDensityScale") << name;
  ComparisonChoice densities;
  densities.density = true;
  settings.setChoice(densities, selectionCdfPlot, true);
  EXPECT_TRUE(isEnabled("commonDensityScale"));
  settings.setChoice(densities, multiPlot, true);
  for (const char* name : {"density", "commonDensityScale", "quartileBands"})
    EXPECT_FALSE(isEnabled(name)) << name;
  EXPECT_TRUE(isEnabled("logParameterAxes"));
  settings.setChoice(densities, xyPlot, true);
  EXPECT_FALSE(isEnabled("logParameterAxes"));
  EXPECT_TRUE(isEnabled("pThreshold"));
  settings.setChoice(densities, selectionCdfPlot, false);
  for (const char* name : controlNames)
    EXPECT_FALSE(isEnabled(name)) << name;
}

TEST_F(ComparisonControls, OfferBothPages)
{
  std::vector<plotStyles> chosen;
  QObject::connect(&settings, &ComparisonSettings::styleChosen, &settings,
                   [&chosen](plotStyles style) { chosen.push_back(style); });
  auto* distributions = settings.findChild<QToolButton*>(QStringLiteral("distributionPage"));
  auto* pairs = settings.findChild<QToolButton*>(QStringLiteral("pairPage"));
  EXPECT_TRUE(distributions->isChecked());
  QTest::keyClick(pairs, Qt::Key_Space);
  EXPECT_EQ(chosen, std::vector<plotStyles>{multiPlot});
  // Until the page is shown the button stays up.
  EXPECT_FALSE(pairs->isChecked());
  settings.setChoice({}, multiPlot, true);
  EXPECT_TRUE(pairs->isChecked());
  EXPECT_FALSE(distributions->isChecked());
  QTest::keyClick(pairs, Qt::Key_Space);
  EXPECT_TRUE(pairs->isChecked());
}

TEST_F(ComparisonControls, ExplainThemselves)
{
  for (const char* name : controlNames)
    EXPECT_FALSE(control(name)->toolTip().isEmpty()) << name;
}

TEST_F(ComparisonControls, SayWhatIsKnownOfTheDesign)
{
  EXPECT_FALSE(isEnabled("designedParameters"));
  press("saltelliDesign", Qt::Key_Space);
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(settings.choice().design, (Talmesh::stats::KnownDesign{true, 0}));
  EXPECT_TRUE(isEnabled("designedParameters"));
  press("designedParameters", Qt::Key_Up);
  EXPECT_EQ(settings.choice().design.parameters, 1U);
  ComparisonChoice choice;
  choice.design = {true, 7};
  settings.setChoice(choice, xyPlot, true);
  EXPECT_EQ(changes.count(), 2) << "showing announces nothing";
  press("designedParameters", Qt::Key_Down);
  EXPECT_EQ(settings.choice().design.parameters, 6U);
}
