#ifndef TypedConcentrationName_h
#define TypedConcentrationName_h

#include "../export/TalmeshPlotExport.h"

#include <string>
#include <utility>

namespace Talmesh
{

/// The kinds of item that can be plotted. Values outside the enumerators are legal (the underlying
/// type is fixed) and have an empty label.
enum DataType : int
{
  Complex = 0,
  Molecule = 1,
  ComplexWithMolecule = 2,
  Pattern = 3,
  /// Times, run indices and plain values. It has no word of its own, so the label of such an item
  /// begins with ": ".
  TimeOrValue = 4,
  Parameter = 5,
  UndefinedType = 6
};

/// The kind of an item and its name, for instance (Parameter, "k1").
using TypedConcentrationName = std::pair<DataType, std::string>;

/// The word printed for a kind: "Complex", "Molecule", "Complex With Molecule", "Pattern", "",
/// "Parameter", "Undefined Type" for the enumerators in order; empty for any other value.
TALMESHPLOT_EXPORT std::string dataTypeLabel(DataType type);

/// The label of an item, which is also the name of its table column: the kind's word, ": ", and the
/// name. Example: "Parameter: k1".
TALMESHPLOT_EXPORT std::string selectionPairToString(const TypedConcentrationName& item);

} // namespace Talmesh

#endif
