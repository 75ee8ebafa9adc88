#include "plot/PlotContainer.h"
#include "widgets/LinePlotWidget.h"
#include "widgets/PlotSelector.h"
#include "widgets/VtkPlotWidget.h"

#include <QVTKOpenGLNativeWidget.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QIcon>
#include <QPluginLoader>
#include <QSurfaceFormat>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>

namespace
{

/// The plugin is loaded once, and goes before the application as it does in Designer.
class DesignerPlugin : public ::testing::Test
{
protected:
  static void SetUpTestSuite()
  {
    loader = new QPluginLoader(QStringLiteral(TALMESH_DESIGNER_PLUGIN));
    ASSERT_TRUE(loader->load()) << loader->errorString().toStdString();
  }

  static void TearDownTestSuite()
  {
    EXPECT_TRUE(loader->unload()) << loader->errorString().toStdString();
    EXPECT_FALSE(loader->isLoaded());
    delete loader;
    loader = nullptr;
  }

  DesignerPlugin()
  {
    auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader->instance());
    EXPECT_NE(collection, nullptr) << loader->errorString().toStdString();
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
    for (const auto* chart : parent.findChildren<QVTKOpenGLNativeWidget*>())
      EXPECT_EQ(chart->format(), QVTKOpenGLNativeWidget::defaultFormat()) << name;
  }

  static QPluginLoader* loader;
  QList<QDesignerCustomWidgetInterface*> entries;
};

QPluginLoader* DesignerPlugin::loader = nullptr;

/// While it lives, windows get another surface than VTK needs, as in Designer.
class ForeignFormat
{
public:
  ForeignFormat()
  {
    QSurfaceFormat foreign;
    foreign.setVersion(2, 0);
    foreign.setProfile(QSurfaceFormat::NoProfile);
    QSurfaceFormat::setDefaultFormat(foreign);
  }
  ~ForeignFormat() { QSurfaceFormat::setDefaultFormat(before); }
  ForeignFormat(const ForeignFormat&) = delete;
  ForeignFormat& operator=(const ForeignFormat&) = delete;

private:
  QSurfaceFormat before = QSurfaceFormat::defaultFormat();
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
  const ForeignFormat inDesigner;
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
    QFile header(QStringLiteral(TALMESH_INCLUDE_DIR "/") + candidate->includeFile());
    ASSERT_TRUE(header.open(QIODevice::ReadOnly)) << candidate->includeFile().toStdString();
    EXPECT_TRUE(header.readAll().contains("class TALMESHPLOT_EXPORT " + candidate->name().toUtf8() +
                                          " : public"));
  }
}
