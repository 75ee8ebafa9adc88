#ifndef DialogAnswers_h
#define DialogAnswers_h

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

/// Answers the modal dialogs that open while it lives, one after another; those beyond are
/// rejected.
class DialogAnswers
{
public:
  using Answer = std::function<void(QDialog&)>;

  explicit DialogAnswers(std::vector<Answer> inOrder)
      : answers(std::move(inOrder))
  {
    QObject::connect(&timer, &QTimer::timeout, [this] { answerNext(); });
    timer.start(10);
  }

  std::size_t given() const { return next; }

private:
  void answerNext()
  {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog)
      return;
    if (next < answers.size())
      answers[next](*dialog);
    else
      dialog->reject();
    ++next;
  }

  std::vector<Answer> answers;
  std::size_t next = 0;
  QTimer timer;
};

inline void cancelDialog(QDialog& dialog)
{
  dialog.reject();
}

#endif
