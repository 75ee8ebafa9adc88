#include "app/document/ShownCategories.h"

#include "plot/PlotContainer.h"

#include <QVariant>

#include <memory>

using KeptCategories = std::shared_ptr<const std::vector<Talmesh::app::Category>>;
Q_DECLARE_METATYPE(KeptCategories)

namespace Talmesh::app
{

namespace
{

constexpr const char* propertyName = "talmeshCategories";

} // namespace

void keepCategories(PlotContainer& container, const std::vector<Category>& categories)
{
  container.setProperty(propertyName, QVariant::fromValue(KeptCategories(
                                          std::make_shared<std::vector<Category>>(categories))));
}

const std::vector<Category>& categoriesOf(const PlotContainer& container)
{
  static const std::vector<Category> none;
  // The property holds them as long as the container has it.
  const auto kept = container.property(propertyName).value<KeptCategories>();
  return kept ? *kept : none;
}

} // namespace Talmesh::app
