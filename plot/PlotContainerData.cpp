#include "external/LinePlotData.h"
#include "external/LinePlotTable.h"
#include "external/PlotMetaData.h"
#include "plot/BinaryDump.h"
#include "plot/ColumnReduction.h"
#include "plot/ColumnScaling.h"
#include "plot/DelimitedFiles.h"
#include "plot/DrawnRows.h"
#include "plot/LinePlotInput.h"
#include "plot/LineTableInput.h"
#include "plot/PlotColumns.h"
#include "plot/PlotContainer.h"
#include "plot/PlotState.h"
#include "plot/PlotTable.h"
#include "plot/SelectionFlags.h"
#include "plot/SettingsSignals.h"
#include "plot/StyleTable.h"
#include "plot/TableColumns.h"
#include "plot/TypedColumns.h"

#include <QString>

vtkTable* PlotContainer::getTable() const
{
  return d->table;
}

const std::vector<Talmesh::TypedConcentrationName>& PlotContainer::getColumnItems() const
{
  return d->columnItems;
}

void PlotContainer::setPlotData(vtkSmartPointer<vtkTable> data)
{
  if (!data)
    return;
  d->derivedTables.clear();
  Talmesh::plot::replaceTable(*d, data);
  findParameterColumns();
  if (Talmesh::plot::currentStyle(*d).ranksNewData)
    generateRankedParameters(d->table, 0);
}

void PlotContainer::setLinePlotData(LinePlotData* data)
{
  if (data)
    Talmesh::plot::setLinePlotData(*d, *data);
}

void PlotContainer::setLinePlotDataAsAdditionalData(LinePlotData* data)
{
  if (data)
    Talmesh::plot::addLinePlotData(*d, *data);
}

void PlotContainer::setLinePlotTableAsAdditionalData(LinePlotTable* table)
{
  if (table)
    Talmesh::plot::addLinePlotTable(*d, *table);
}

void PlotContainer::setLinePlotItems(std::vector<Talmesh::TypedConcentrationName>* items)
{
  if (items)
    Talmesh::plot::drawLinePlotItems(*d, *items);
}

void PlotContainer::setLinePlotTable(boost::shared_ptr<LinePlotTable> table, bool quartiles)
{
  if (!table)
    return;
  const Talmesh::plot::SettingsSilence silence(*d);
  // The table in use still points into the one held so far.
  table.swap(d->linePlotTable);
  // Before the update, which ranks with the stride it finds and sets that of the table last: ranks
  // of every row would take twice the table's memory, only to be made again by the redraw.
  d->metaData->setStride(static_cast<int>(d->linePlotTable->pointsPerTrajectory));
  updateFromLinePlotTable(false);
  Talmesh::plot::chooseLineTableColumns(*d);
  if (quartiles)
    generateQuartiles();
  drawOrReport();
}

void PlotContainer::updateFromLinePlotTable(bool quartiles)
{
  if (!d->linePlotTable)
    return;
  Talmesh::plot::fillFromLinePlotTable(*d, d->linePlotTable);
  if (Talmesh::plot::currentStyle(*d).ranksNewData)
    generateRankedParameters(d->table, 0);
  if (quartiles)
    generateQuartiles();
  d->metaData->setStride(static_cast<int>(d->linePlotTable->pointsPerTrajectory));
  dirty();
}

void PlotContainer::findParameterColumns()
{
  Talmesh::plot::findParameterColumns(*d);
}

void PlotContainer::clearColumnItems()
{
  d->columnItems.clear();
}

void PlotContainer::setPlotCols(int x, int y, int index, bool quartiles)
{
  if (!Talmesh::plot::setPlotColumns(*d, x, y, index))
    return;
  if (quartiles)
    generateQuartiles();
  drawOrReport();
}

void PlotContainer::setPlotCols(const std::string& x, const std::string& y, int index,
                                bool quartiles)
{
  setPlotCols(Talmesh::plot::columnIndex(d->table, x), Talmesh::plot::columnIndex(d->table, y),
              index, quartiles);
}

void PlotContainer::addColumn(const std::vector<double>& values, const std::string& name)
{
  Talmesh::plot::addColumn(*d, values, name);
}

void PlotContainer::example()
{
  Talmesh::plot::replaceTable(*d, Talmesh::plot::exampleTable());
  setPlotCols(0, 1, 0, false);
  setPlotTitle("Example Plot");
}

void PlotContainer::setSimpleXYPlot(std::vector<double>& x, std::vector<double>& y,
                                    std::vector<double>& error)
{
  const auto draw = [&]
  {
    const Talmesh::plot::SettingsSilence silence(*d);
    if (!Talmesh::plot::setSimpleTable(*d, x, y, error))
      return false;
    setLineWidth(1.0);
    setPointSize(2.0);
    setMarkerStyle(3);
    drawOrReport();
    return true;
  };
  // Series that do not fit leave them silent.
  if (!draw())
    Talmesh::plot::blockSettings(*d);
}

QStringList PlotContainer::getLabels() const
{
  QStringList labels;
  for (int column = 0; column < d->table->GetNumberOfColumns(); ++column)
    labels << QString::fromStdString(Talmesh::plot::columnName(d->table, column));
  return labels;
}

void PlotContainer::loadData(std::string fileName)
{
  Talmesh::plot::replaceTable(*d, Talmesh::plot::readDelimited(fileName));
}

char* PlotContainer::saveData(std::string fileName, bool keepAll)
{
  if (!keepAll)
    shrinkToColumnSelection();
  return Talmesh::plot::writeDelimited(d->table, fileName);
}

void PlotContainer::scaleColumn(double* factors, int column)
{
  Talmesh::plot::scaleColumn(*d, factors, column);
}

void PlotContainer::scaleRelativeToMaxWithinTrajectory(int column)
{
  Talmesh::plot::scaleToRunMaximum(*d, column);
}

void PlotContainer::scaleColumnByColumn(int column, int byColumn, bool divide)
{
  Talmesh::plot::scaleColumnByColumn(*d, column, byColumn, divide);
}

void PlotContainer::shrinkToColumnSelection()
{
  Talmesh::plot::reduceToUsedColumns(*d);
  if (vtkSmartPointer<vtkIntArray> flags = Talmesh::plot::selectionFlags(*d))
    Talmesh::plot::appendFlagColumn(*d, flags);
}

QByteArray* PlotContainer::binaryDump()
{
  return new QByteArray(Talmesh::plot::writeDump(*d));
}

void PlotContainer::readDump(QByteArray* data)
{
  if (data)
    Talmesh::plot::restoreDump(*d, *data);
}

bool PlotContainer::writeTable(vtkTable* table, const TextTaker& take)
{
  return !table || Talmesh::plot::writeDelimitedInPieces(table, take);
}
