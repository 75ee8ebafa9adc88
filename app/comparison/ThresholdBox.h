#ifndef ThresholdBox_h
#define ThresholdBox_h

#include <QDoubleSpinBox>

namespace Talmesh::app
{

/// A field for a number from 0 to 1 that keeps and shows all its digits. It takes what the user's
/// language writes and what programs write: 0,05 and 1e-5.
class ThresholdBox : public QDoubleSpinBox
{
public:
  enum class Steps
  {
    /// All of the same size, `singleStep()`.
    equal,
    /// In the second digit that counts, however small the number is.
    relative
  };

  explicit ThresholdBox(Steps steps, QWidget* parent = nullptr);

  QString textFromValue(double value) const override;
  double valueFromText(const QString& text) const override;
  QValidator::State validate(QString& text, int& position) const override;
  void stepBy(int count) override;

private:
  double stepped(int count) const;

  Steps kind;
};

} // namespace Talmesh::app

#endif
