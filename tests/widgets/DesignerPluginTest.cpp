#include "plot/PlotContainer.h"
#include "widgets/LinePlotWidget.h"
#include "widgets/PlotSelector.h"
#include "widgets/VtkPlotWidget.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QIcon>
#include <QPluginLoader>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>

namespace
{

class DesignerPlugin : public ::testing::Test
{
protected:
  DesignerPlugin()
      : loader(QStringLiteral(TALMESH_DESIGNER_PLUGIN))
  {
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance());
    EXPECT_NE(collection, nullptr) << loader.errorString().toStdString();
    if (collection)
      entries = collection->customWidgets();
  }

  QDesignerCustomWidgetInterface* entry(const QString& name) const
  {
    for (QDesignerCustomWidgetInterface* candidate : entries)
      if (candidate->name() == name)
        return candidate;
    return nullptr;
  }

  template <typename Widget>
  void expectMade(const char* name)
  {
    ASSERT_NE(entry(name), nullptr);
    QWidget parent;
    const std::unique_ptr<QWidget> made(entry(name)->createWidget(&parent));
    EXPECT_NE(qobject_cast<Widget*>(made.get()), nullptr);
    EXPECT_EQ(made->parentWidget(), &parent);
  }

  QPluginLoader loader;
  QList<QDesignerCustomWidgetInterface*> entries;
};

/// The class and the name of the first widget of a form.
QPair<QString, QString> widgetOf(const QString& form)
{
  QXmlStreamReader xml(form);
  QPair<QString, QString> widget;
  while (!xml.atEnd())
    if (xml.readNext() == QXmlStreamReader::StartElement &&
        xml.name() == QStringLiteral("widget") && widget.first.isEmpty())
      widget = {xml.attributes().value("class").toString(),
                xml.attributes().value("name").toString()};
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  return widget;
}

} // namespace

TEST_F(DesignerPlugin, OffersTheThreeWidgets)
{
  QStringList names;
  for (const QDesignerCustomWidgetInterface* candidate : entries)
    names.append(candidate->name());
  EXPECT_EQ(names, QStringList({"VtkPlotWidget", "PlotSelector", "LinePlotWidget"}));
}

TEST_F(DesignerPlugin, MakesTheThreeWidgets)
{
  expectMade<VtkPlotWidget>("VtkPlotWidget");
  expectMade<PlotSelector>("PlotSelector");
  expectMade<LinePlotWidget>("LinePlotWidget");
}

TEST_F(DesignerPlugin, NamesTheClassInTheForm)
{
  using Widget = QPair<QString, QString>;
  ASSERT_EQ(entries.size(), 3);
  EXPECT_EQ(widgetOf(entries[0]->domXml()), Widget("VtkPlotWidget", "vtkPlotWidget"));
  EXPECT_EQ(widgetOf(entries[1]->domXml()), Widget("PlotSelector", "plotSelector"));
  EXPECT_EQ(widgetOf(entries[2]->domXml()), Widget("LinePlotWidget", "linePlotWidget"));
}

TEST_F(DesignerPlugin, NamesHeadersThatDeclareTheClasses)
{
  ASSERT_EQ(entries.size(), 3);
  for (const QDesignerCustomWidgetInterface* candidate : entries)
  {
    QFile header(QStringLiteral(TALMESH_SOURCE_DIR "/") + candidate->includeFile());
    ASSERT_TRUE(header.open(QIODevice::ReadOnly)) << candidate->includeFile().toStdString();
    EXPECT_TRUE(header.readAll().contains("class " + candidate->name().toUtf8() + " : public"));
  }
}
