#include "external/TypedConcentrationName.h"

namespace Talmesh
{

std::string dataTypeLabel(DataType type)
{
  switch (type)
  {
  case Complex:
    return "Complex";
  case Molecule:
    return "Molecule";
  case ComplexWithMolecule:
    return "Complex With Molecule";
  case Pattern:
    return "Pattern";
  case Parameter:
    return "Parameter";
  case UndefinedType:
    return "Undefined Type";
  case TimeOrValue:
    break;
  }
  return {};
}

std::string selectionPairToString(const TypedConcentrationName& item)
{
  return dataTypeLabel(item.first) + ": " + item.second;
}

} // namespace Talmesh
