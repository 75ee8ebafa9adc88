#ifndef SeedBox_h
#define SeedBox_h

#include <QWidget>

#include <cstdint>

class QSpinBox;

namespace Talmesh::app
{

/// The seed of what a comparison draws at random: shown, typed, or drawn anew.
class SeedBox : public QWidget
{
  Q_OBJECT

public:
  explicit SeedBox(QWidget* parent = nullptr);

  /// Emits nothing.
  void setSeed(std::uint64_t seed);

signals:
  void seedChanged(quint64 seed);

private:
  void drawAnew();

  QSpinBox* box;
};

} // namespace Talmesh::app

#endif
