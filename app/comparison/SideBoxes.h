#ifndef SideBoxes_h
#define SideBoxes_h

#include <QColor>
#include <QString>
#include <QWidget>

#include <string>
#include <vector>

class QComboBox;

namespace Talmesh::app
{

/// A selection that can be compared, and the colour in which charts draw it.
struct NamedSide
{
  std::string name;
  QColor colour;

  friend bool operator==(const NamedSide& left, const NamedSide& right)
  {
    return left.name == right.name && left.colour == right.colour;
  }
};

/// Which runs are compared with which: the present selection or a kept one, with the others or with
/// a kept selection.
class SideBoxes : public QWidget
{
  Q_OBJECT

public:
  explicit SideBoxes(QWidget* parent = nullptr);

  /// Offers the kept selections. Emits nothing.
  void setKept(const std::vector<NamedSide>& kept);
  /// Shows two of them; empty, or a name that is not there, for the present selection and for the
  /// others. Emits nothing.
  void setSides(const std::string& compared, const std::string& with);

signals:
  void sidesChanged(const std::string& compared, const std::string& with);

private:
  QComboBox* makeBox(const char* name, const QString& toolTip);
  void colourFirst();

  void offer();

  std::vector<NamedSide> offered;
  QComboBox* compared;
  QComboBox* with;
};

} // namespace Talmesh::app

#endif
