#ifndef RunNumberBox_h
#define RunNumberBox_h

#include <QSpinBox>

#include <vector>

namespace Talmesh::app
{

/// A field for one of several runs. Its value is the place of the run, from 0 on; what it shows and
/// takes is the number that the data give the run.
class RunNumberBox : public QSpinBox
{
public:
  using QSpinBox::QSpinBox;

  /// Turns to as many runs as there are numbers, and to the first of them. Emits nothing.
  void setNumbers(std::vector<int> numbers);

  QString textFromValue(int place) const override;
  int valueFromText(const QString& text) const override;
  QValidator::State validate(QString& text, int& position) const override;

private:
  int placeOf(const QString& text) const;

  std::vector<int> runNumbers;
};

} // namespace Talmesh::app

#endif
