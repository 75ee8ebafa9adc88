#include "widgets/LinePlotWidget.h"

#include "external/LinePlotData.h"
#include "external/PlotMetaData.h"
#include "plot/PlotContainer.h"
#include "widgets/TableExport.h"
#include "widgets/WidgetSupport.h"

#include <vtkTable.h>

#include <QCoreApplication>
#include <QLabel>
#include <QMessageBox>

#include "ui_LinePlotWidget.h"

namespace
{

constexpr int chartStretch = 3; ///< the chart gets three times the selector's width

QString formText(const char* text)
{
  return QCoreApplication::translate("LinePlotWidgetClass", text);
}

} // namespace

LinePlotWidget::LinePlotWidget(QWidget* parent)
    : QWidget(parent)
    , form(std::make_unique<Ui_LinePlotWidgetClass>())
{
  form->setupUi(this);
  connect(form->showLegend, SIGNAL(pressed()), this, SLOT(toggleLegend()));
  connect(form->logSButton, SIGNAL(pressed()), this, SLOT(toggleLogScale()));
  connect(form->exportButton, SIGNAL(pressed()), this, SLOT(exportPlot()));
  connect(form->selector,
          SIGNAL(notifySelectionChanged(std::vector<Talmesh::TypedConcentrationName>*)),
          form->plotter->plotContainer(),
          SLOT(setLinePlotItems(std::vector<Talmesh::TypedConcentrationName>*)));
  // After the container's slot, so that the items chosen are on the screen at once.
  connect(form->selector,
          SIGNAL(notifySelectionChanged(std::vector<Talmesh::TypedConcentrationName>*)),
          form->plotter, SLOT(updatePlot()));
  connect(form->selector, &PlotSelector::notifySelectionChanged, this, &LinePlotWidget::showScale);

  const QSizePolicy policy = form->stackedWidget->sizePolicy();
  form->splitter->setStretchFactor(0, chartStretch);
  // The splitter stretches a child in both directions.
  form->stackedWidget->setSizePolicy(policy);

  emptyTable();
  toggleLogScale();
  toggleLegend();
}

LinePlotWidget::~LinePlotWidget() = default;

void LinePlotWidget::setData(LinePlotData* series)
{
  if (!series)
    return;
  std::vector<Talmesh::TypedConcentrationName> items;
  for (const auto& entry : series->series)
    items.push_back(entry.first);
  form->plotter->plotContainer()->clearColumnItems();
  form->plotter->plotContainer()->setLinePlotData(series);
  form->selector->setSelectionOptions(items);
  form->stackedWidget->setCurrentWidget(form->plotter);
}

void LinePlotWidget::removeData()
{
  form->stackedWidget->setCurrentWidget(form->page_no_data);
  emptyTable();
  std::vector<Talmesh::TypedConcentrationName> none;
  form->selector->setSelectionOptions(none);
}

PlotSelector* LinePlotWidget::selector() const
{
  return form->selector;
}

void LinePlotWidget::emptyTable()
{
  PlotContainer* container = form->plotter->plotContainer();
  container->setPlotData(vtkSmartPointer<vtkTable>::New());
  // The chart lets go of what it plotted before.
  std::vector<Talmesh::TypedConcentrationName> none;
  container->setLinePlotItems(&none);
}

void LinePlotWidget::toggleLegend()
{
  legendShown = !legendShown;
  form->plotter->plotContainer()->setShowLegend(legendShown);
  form->plotter->updatePlot(true);
  form->showLegend->setText(
      legendShown ? formText(QT_TRANSLATE_NOOP("LinePlotWidgetClass", "Hide the Legend"))
                  : formText(QT_TRANSLATE_NOOP("LinePlotWidgetClass", "Show the Legend")));
}

void LinePlotWidget::toggleLogScale()
{
  logScale = !logScale;
  form->plotter->plotContainer()->setLogScaleY(logScale);
  form->plotter->updatePlot(true);
  showScale();
}

void LinePlotWidget::showScale()
{
  const bool shown = form->plotter->plotContainer()->showsLogScaleY();
  form->logSButton->setText(
      shown ? formText(QT_TRANSLATE_NOOP("LinePlotWidgetClass", "Use Linear Scale"))
            : formText(QT_TRANSLATE_NOOP("LinePlotWidgetClass", "Use Log Scale")));
  setScaleNotice(logScale && !shown);
}

void LinePlotWidget::setScaleNotice(bool shown)
{
  if (shown && !scaleNotice)
  {
    scaleNotice = new QLabel(formText(QT_TRANSLATE_NOOP(
        "LinePlotWidgetClass", "Linear scale: a logarithmic one needs positive values")));
    scaleNotice->setObjectName(QStringLiteral("scaleNotice"));
    scaleNotice->setAlignment(Qt::AlignRight);
    scaleNotice->setWordWrap(true);
    form->gridLayout->addWidget(scaleNotice, 2, 0);
  }
  if (scaleNotice)
    scaleNotice->setVisible(shown);
}

void LinePlotWidget::exportPlot()
{
  const QString fileName = QFileDialog::getSaveFileName(
      nullptr, formText(QT_TRANSLATE_NOOP("LinePlotWidgetClass", "Save Plot data as")), QString(),
      formText(QT_TRANSLATE_NOOP("LinePlotWidgetClass", "CSV(*.csv)")), nullptr,
      getFileDialogOption());
  if (fileName.isEmpty())
    return;
  if (exportTable(*form->plotter->plotContainer(), fileName))
    return;
  QMessageBox message(
      QMessageBox::Warning, formText(QT_TRANSLATE_NOOP("LinePlotWidgetClass", "Export Plot")),
      formText(QT_TRANSLATE_NOOP("LinePlotWidgetClass", "The table could not be written to %1."))
          .arg(fileName),
      QMessageBox::Ok, this);
  // A file name may look like markup.
  message.setTextFormat(Qt::PlainText);
  message.exec();
}
