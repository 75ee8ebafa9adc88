#ifndef ColourKey_h
#define ColourKey_h

#include <vtkContextItem.h>

#include <QColor>

#include <string>
#include <utility>
#include <vector>

namespace Talmesh::app
{

/// Says which colour means what in a chart that has no legend: names beside squares of their
/// colours, from the upper left corner of the page on, in as many lines as they need.
class ColourKey : public vtkContextItem
{
public:
  using Entries = std::vector<std::pair<std::string, QColor>>;

  static ColourKey* New();
  /// Puts one into a chart, or another item, in place of the one there; none for no entries.
  static void placeIn(vtkAbstractContextItem* item, const Entries& entries);

  bool Paint(vtkContext2D* painter) override;
  /// Names in UTF-8.
  const Entries& entries() const { return shown; }

protected:
  ColourKey() = default;
  ~ColourKey() override = default;

private:
  ColourKey(const ColourKey&) = delete;
  void operator=(const ColourKey&) = delete;

  Entries shown;
};

} // namespace Talmesh::app

#endif
