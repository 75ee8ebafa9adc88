#include "app/window/StudiesMenu.h"

#include "app/document/Document.h"
#include "app/document/OwnChart.h"
#include "app/examples/StudyCatalogue.h"

namespace Talmesh::app
{

StudiesMenu::StudiesMenu(Document& shown, QWidget* parent)
    : QMenu(tr("S&tudies"), parent)
    , document(shown)
{
  setObjectName(QStringLiteral("studiesMenu"));
  setToolTipsVisible(true);
  addData();
  addSeparator();
  addComputed();
  addSeparator();
  connect(&document, &Document::studyChanged, this, &StudiesMenu::follow);
  follow();
}

void StudiesMenu::addData()
{
  runs = addAction(tr("&Runs"), this, &StudiesMenu::runsWanted);
  runs->setObjectName(QStringLiteral("returnToRuns"));
  runs->setShortcut(QKeySequence(tr("Ctrl+R")));
  runs->setToolTip(tr("Show the runs opened last once more"));
  QAction* example = addAction(tr("&Example circuit"), this, &StudiesMenu::exampleWanted);
  example->setObjectName(QStringLiteral("exampleCircuit"));
  example->setToolTip(tr("Simulate the runs of the example circuit"));
}

void StudiesMenu::addComputed()
{
  QMenu* subject = nullptr;
  for (const CatalogueEntry& entry : studyCatalogue())
  {
    if (!subject || subject->title() != QString::fromStdString(entry.subject))
    {
      subject = addMenu(QString::fromStdString(entry.subject));
      subject->setToolTipsVisible(true);
    }
    QAction* action = subject->addAction(QString::fromStdString(entry.title));
    action->setObjectName(QString::fromStdString(entry.id));
    action->setToolTip(QString::fromStdString(entry.toolTip));
    action->setCheckable(true);
    computed.push_back(action);
    connect(action, &QAction::triggered, this,
            [this, action, job = entry.open]
            {
              // The menu marks what is shown, which this study is not before it is computed.
              follow();
              emit studyWanted(action->text().remove(QLatin1Char('&')), job);
            });
  }
}

void StudiesMenu::follow()
{
  const auto& chart = document.study().chart;
  for (QAction* action : computed)
    action->setChecked(chart && action->objectName().toStdString() == chart->id);
  runs->setEnabled(document.canReturnToRuns());
}

} // namespace Talmesh::app
