#include "app/window/FeatureController.h"

#include "app/document/Document.h"
#include "app/tasks/TaskRunner.h"
#include "app/window/TaskBar.h"

namespace Talmesh::app
{

FeatureController::FeatureController(Document& shown, TaskBar& bar, QObject* parent)
    : QObject(parent)
    , document(shown)
    , runner(new TaskRunner(this))
{
  bar.follow(*runner, QStringLiteral("cancelFeatures"));
  FeatureSearch& search = document.featureSearch();
  connect(&bar, &TaskBar::cancelled, this,
          [this, &search]
          {
            search.giveUp();
            emit stopped(tr("Cancelled"));
          });
  const auto start =
      [this, &search](const FeatureSearch::Work& work,
                      const std::function<void(const FeatureSearch::Values&)>& deliver)
  {
    emit said(tr("Computing what the chart shows of the runs ..."));
    runner->start<FeatureSearch::Values>(
        this, work,
        [this, &search, deliver](const Result<FeatureSearch::Values>& found)
        {
          emit ended();
          if (found.hasValue())
            return deliver(found.value());
          search.giveUp();
          emit failed(QString::fromStdString(found.error()));
        });
  };
  const auto cancel = [this]
  {
    runner->cancel();
    emit ended();
  };
  search.setBackground({start, cancel});
}

FeatureController::~FeatureController()
{
  document.featureSearch().giveUp();
  document.featureSearch().setBackground({});
  // Its thread must not outlive what it reports to.
  delete runner;
}

bool FeatureController::isComputing() const
{
  return runner->isRunning();
}

} // namespace Talmesh::app
