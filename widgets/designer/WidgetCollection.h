#ifndef WidgetCollection_h
#define WidgetCollection_h

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace Talmesh::designer
{

/// The plugin: all widgets of the library for Qt Designer.
class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
  Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
  explicit WidgetCollection(QObject* parent = nullptr);

  /// The entries are the collection's.
  QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return entries; }

private:
  QList<QDesignerCustomWidgetInterface*> entries;
};

} // namespace Talmesh::designer

#endif
