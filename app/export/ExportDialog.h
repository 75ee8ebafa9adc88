#ifndef ExportDialog_h
#define ExportDialog_h

#include "app/export/PictureFile.h"

#include <QDialog>

#include <optional>

class QComboBox;
class QDialogButtonBox;
class QDoubleSpinBox;
class QLabel;
class QRadioButton;
class QSpinBox;

namespace Talmesh::app
{

/// Asks how large an exported picture shall be, as on the screen or of a size on paper, and which
/// lines and points of a page shall be vectors. What was chosen last is offered again, also by the
/// next run of the program.
class ExportDialog : public QDialog
{
  Q_OBJECT

public:
  /// @param most pixels that a side may have; none for a page, of which only pictures have a
  /// resolution
  /// @param screen the size of the plot on the screen
  ExportDialog(std::optional<int> most, const QSize& screen, QWidget* parent = nullptr);

  /// The size on paper; none for the size on the screen.
  std::optional<PaperSize> paper() const;
  /// Of the picture, or of those on a page.
  int dotsPerInch() const;
  /// The lines and points of a page that are vectors.
  Vectors vectors() const;
  /// In points; none for what is usual on paper of the width that is chosen.
  std::optional<int> textSize() const;

  void accept() override;

private:
  void layOut();
  void connectFields();
  void restore(const QSize& screen);
  void showPixels();
  void showTextSize();

  std::optional<int> mostOnASide;
  QRadioButton* asOnScreen;
  QRadioButton* onPaper;
  QDoubleSpinBox* width;
  QDoubleSpinBox* height;
  QSpinBox* text;
  QSpinBox* resolution;
  QSpinBox* pictureResolution;
  QComboBox* shapes;
  QLabel* pixelSize;
  QDialogButtonBox* buttons;
};

} // namespace Talmesh::app

#endif
