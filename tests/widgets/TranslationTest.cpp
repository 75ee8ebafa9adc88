#include "widgets/Translation.h"

#include "support/German.h"
#include "widgets/LinePlotWidget.h"
#include "widgets/PlotSelector.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidgetItem>
#include <QXmlStreamReader>

namespace
{

QString headerOf(const PlotSelector& selector)
{
  return selector.headerItem()->text(0);
}

/// The texts of the translation file as (source, translation), and how many are not done.
struct Catalogue
{
  std::vector<std::pair<QString, QString>> texts;
  int unfinished = 0;
};

Catalogue germanCatalogue()
{
  Catalogue catalogue;
  QFile file(QStringLiteral(TALMESH_SOURCE_DIR "/translations/talmeshplot_de.ts"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader xml(&file);
  QString source;
  while (!xml.atEnd())
  {
    if (xml.readNext() != QXmlStreamReader::StartElement)
      continue;
    if (xml.name() == QStringLiteral("source"))
      source = xml.readElementText();
    else if (xml.name() == QStringLiteral("translation"))
    {
      catalogue.unfinished += xml.attributes().hasAttribute("type") ? 1 : 0;
      catalogue.texts.emplace_back(source, xml.readElementText());
    }
  }
  EXPECT_FALSE(xml.hasError());
  return catalogue;
}

/// The places %1 to %9 in a text, ascending, and the line breaks and file patterns.
QStringList marksOf(const QString& text)
{
  QStringList marks;
  for (const char* mark : {"%1", "%2", "%3", "%4", "%5", "%6", "%7", "%8", "%9", "%n", "\n", ";;",
                           "(*.csv", "*.json)", "*.talmesh)", "*.png)", "*.pdf)", "<p "})
    for (int i = 0; i < text.count(QLatin1String(mark)); ++i)
      marks.append(QLatin1String(mark));
  return marks;
}

} // namespace

TEST(Translation, SpeaksGerman)
{
  const German german;
  ASSERT_TRUE(german.installed);
  const PlotSelector selector;
  EXPECT_EQ(headerOf(selector),
            QString::fromUtf8("Angezeigte Gr\xc3\xb6\xc3\x9f\x65n w\xc3\xa4hlen"));
  LinePlotWidget widget;
  EXPECT_EQ(widget.findChild<QPushButton*>("exportButton")->text(), "Daten exportieren");
  EXPECT_EQ(widget.findChild<QPushButton*>("showLegend")->text(), "Legende einblenden");
  QPushButton* scale = widget.findChild<QPushButton*>("logSButton");
  EXPECT_EQ(scale->text(), "Logarithmische Skala");
  QTest::mouseClick(scale, Qt::LeftButton);
  EXPECT_EQ(scale->text(), "Lineare Skala");
  EXPECT_TRUE(
      widget.findChild<QLabel*>("label")->text().contains("Keine Simulationsdaten vorhanden"));
}

TEST(Translation, LeavesTheKindsOfItemsAlone)
{
  // They are part of the names of table columns.
  const German german;
  PlotSelector selector;
  std::vector<Talmesh::TypedConcentrationName> options = {{Talmesh::Molecule, "A"}};
  selector.setSelectionOptions(options);
  EXPECT_EQ(selector.topLevelItem(0)->text(0), "Molecule");
}

TEST(Translation, SpeaksTheGermanOfEveryCountry)
{
  for (const auto country : {QLocale::Germany, QLocale::Austria, QLocale::Switzerland})
  {
    EXPECT_TRUE(Talmesh::installTranslation(*QCoreApplication::instance(),
                                            QLocale(QLocale::German, country)));
    EXPECT_NE(headerOf(PlotSelector()), "Select Items to View");
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
  }
}

TEST(Translation, StaysEnglishOtherwise)
{
  QCoreApplication& application = *QCoreApplication::instance();
  EXPECT_TRUE(Talmesh::installTranslation(application, QLocale::c()));
  EXPECT_TRUE(Talmesh::installTranslation(application, QLocale(QLocale::English)));
  EXPECT_FALSE(Talmesh::installTranslation(application, QLocale(QLocale::Icelandic)));
  EXPECT_EQ(headerOf(PlotSelector()), "Select Items to View");
  EXPECT_TRUE(application.findChildren<QTranslator*>().isEmpty());
}

TEST(Translation, IsComplete)
{
  const Catalogue catalogue = germanCatalogue();
  EXPECT_GT(catalogue.texts.size(), 100u);
  EXPECT_EQ(catalogue.unfinished, 0);
  for (const auto& [source, translation] : catalogue.texts)
    EXPECT_FALSE(translation.trimmed().isEmpty()) << source.toStdString();
}

TEST(Translation, KeepsPlacesAndPatterns)
{
  for (const auto& [source, translation] : germanCatalogue().texts)
    EXPECT_EQ(marksOf(source), marksOf(translation)) << source.toStdString();
}
