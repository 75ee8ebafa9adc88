#include "app/window/SearchController.h"

#include "app/document/Document.h"
#include "app/tasks/TaskRunner.h"
#include "app/window/TaskBar.h"

#include <QScopedValueRollback>

namespace Talmesh::app
{

SearchController::SearchController(Document& shown, TaskBar& bar, QObject* parent)
    : QObject(parent)
    , document(shown)
    , runner(new TaskRunner(this))
{
  bar.follow(*runner, QStringLiteral("cancelSearching"));
  SelectionController& selection = document.selection();
  connect(&bar, &TaskBar::cancelled, &selection, &SelectionController::giveUp);
  connect(&selection, &SelectionController::gaveUp, this,
          [this]
          {
            if (!failing)
              emit stopped(tr("Cancelled"));
          });
  // The runs that would be found are those of the values before.
  connect(&document, &Document::valuesChanged, &selection, &SelectionController::giveUp);
  const auto start = [this](const RunSearch::Work& work,
                            const std::function<void(const RunSearch::Runs&)>& deliver)
  {
    emit said(tr("Looking for the runs that meet the condition ..."));
    runner->start<RunSearch::Runs>(this, work,
                                   [this, deliver](const Result<RunSearch::Runs>& found)
                                   {
                                     emit ended();
                                     if (found.hasValue())
                                       return deliver(found.value());
                                     fail(QString::fromStdString(found.error()));
                                   });
  };
  const auto cancel = [this]
  {
    runner->cancel();
    emit ended();
  };
  selection.setBackground({start, cancel});
}

/// Nobody has cancelled what failed.
void SearchController::fail(const QString& message)
{
  const QScopedValueRollback<bool> guard(failing, true);
  document.selection().giveUp();
  emit failed(message);
}

SearchController::~SearchController()
{
  document.selection().giveUp();
  document.selection().setBackground({});
  // Its thread must not outlive what it reports to.
  delete runner;
}

bool SearchController::isSearching() const
{
  return document.selection().isSearching();
}

} // namespace Talmesh::app
