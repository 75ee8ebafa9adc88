#ifndef FeatureController_h
#define FeatureController_h

#include <QObject>
#include <QString>

namespace Talmesh::app
{

class Document;
class TaskBar;
class TaskRunner;

/// Has the features of long runs that charts draw computed in the background.
class FeatureController : public QObject
{
  Q_OBJECT

public:
  /// @param document, bar outlive the controller's work; the bar shows how far it is
  FeatureController(Document& document, TaskBar& bar, QObject* parent = nullptr);
  /// Gives up what is computed and waits for it.
  ~FeatureController() override;

  bool isComputing() const;

signals:
  /// What is going on, in one line.
  void said(const QString& message);
  /// What has become of it, in one line.
  void stopped(const QString& message);
  /// Nothing is computed any more.
  void ended();
  /// Why there are no features, in one line.
  void failed(const QString& message);

private:
  Document& document;
  TaskRunner* runner;
};

} // namespace Talmesh::app

#endif
