#ifndef ShownCategories_h
#define ShownCategories_h

#include "app/import/Study.h"

#include <vector>

class PlotContainer;

namespace Talmesh::app
{

/// Keeps with a container what the numbers of its columns stand for, so that all who look at its
/// runs know it.
void keepCategories(PlotContainer& container, const std::vector<Category>& categories);

/// What `keepCategories` has kept; empty without it.
const std::vector<Category>& categoriesOf(const PlotContainer& container);

} // namespace Talmesh::app

#endif
