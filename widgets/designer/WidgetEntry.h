#ifndef WidgetEntry_h
#define WidgetEntry_h

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <functional>

namespace Talmesh::designer
{

/// One widget as Qt Designer offers it.
struct WidgetDescription
{
  QString className;
  /// As in a program that uses the installed library.
  QString header;
  QString toolTip;
  /// In Designer's pixels, at first.
  QSize size;
  std::function<QWidget*(QWidget* parent)> create;
};

/// Hands one widget to Qt Designer.
class WidgetEntry : public QObject, public QDesignerCustomWidgetInterface
{
  Q_OBJECT
  Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
  WidgetEntry(WidgetDescription description, QObject* parent);

  QString name() const override { return widget.className; }
  QString group() const override { return QStringLiteral("Talmesh Plot"); }
  QString toolTip() const override { return widget.toolTip; }
  QString whatsThis() const override { return widget.toolTip; }
  QString includeFile() const override { return widget.header; }
  QIcon icon() const override { return {}; }
  bool isContainer() const override { return false; }
  QString domXml() const override;
  /// The widget is the parent's.
  QWidget* createWidget(QWidget* parent) override;

private:
  WidgetDescription widget;
};

} // namespace Talmesh::designer

#endif
