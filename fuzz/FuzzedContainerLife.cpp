#include "plot/PlotState.h"

#include <vtkDataSetAttributes.h>

#include <QByteArray>
#include <QCoreApplication>

#include "FuzzedContainer.h"

namespace
{

/// Larger ones would take the time of many calls.
constexpr int mostBytesOfDump = 20000;

} // namespace

FuzzedContainer::Actions FuzzedContainer::lifeActions()
{
  PlotContainer& plot = *container;
  const auto draw = [&] { plot.redraw(); };
  const auto show = [&] { paint(); };
  return {draw,
          draw,
          draw,
          show,
          show,
          show,
          [] { QCoreApplication::processEvents(); },
          [&] { reload(); },
          [&] { copy(); },
          [&] { addScene(); },
          [&] { scenes.erase(scenes.begin(), scenes.end() - 1); },
          [&] { plot.drawMulitPlot(scenes.back()); },
          [&] { plot.drawSelectionCdfPlot(scenes.back()); },
          [&] { plot.drawFitParameterDistributionPlot(scenes.back()); },
          [&] { plot.drawScatterPlotWithErrorBars(scenes.back()); }};
}

void FuzzedContainer::reload()
{
  const std::unique_ptr<QByteArray> dump(container->binaryDump());
  if (dump->size() > mostBytesOfDump)
    return;
  for (int changes = choose.pick(4); changes > 0 && !dump->isEmpty(); --changes)
    (*dump)[(choose.pick(256) * 256 + choose.pick(256)) % dump->size()] =
        static_cast<char>(choose.pick(256));
  container->readDump(dump.get());
}

void FuzzedContainer::copy()
{
  auto other = std::make_unique<PlotContainer>(*container);
  // Some sessions go on with the copy, some see it end.
  if (choose.flip())
  {
    container = std::move(other);
    container->setScene(scenes.back());
  }
}

/// What happens to a table whose columns a client changes behind the container's back.
FuzzedContainer::Actions FuzzedContainer::tableActions()
{
  const auto change = [&] { changeTable(); };
  return {change, change, change};
}

void FuzzedContainer::changeTable()
{
  const bool derived = choose.flip() && !container->getDerivedTables().empty();
  const vtkSmartPointer<vtkTable> table =
      derived ? container->getDerivedTables()[static_cast<std::size_t>(
                    choose.pick(static_cast<int>(container->getDerivedTables().size())))]
              : vtkSmartPointer<vtkTable>(container->getTable());
  const int columns = table ? static_cast<int>(table->GetNumberOfColumns()) : 0;
  if (columns == 0)
    return;
  const int column = choose.pick(columns);
  act({[&] { table->GetRowData()->RemoveArray(column); },
       [&] { table->GetRowData()->RemoveArray(column); },
       [&] { table->GetColumn(column)->SetName(choose.name().c_str()); },
       [&] { table->GetColumn(column)->SetName(nullptr); },
       [&] { table->AddColumn(choose.array(static_cast<int>(table->GetNumberOfRows()))); },
       [&] { table->GetRowData()->AddArray(choose.array(choose.pick(30))); },
       [&] { table->SetNumberOfRows(choose.pick(30)); }, [&] { table->Initialize(); }});
  if (choose.flip())
    table->Modified();
}
