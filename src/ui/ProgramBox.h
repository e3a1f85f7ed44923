#pragma once
// The message, question and name boxes in the program's own look: the screen font at a size a
// child reads, large bright buttons, a width that fits the text, centred over the window. The
// texts are shown exactly as given, and screen readers read them.
#include "core/Platform.h"

#include <QDialog>

#include <string>

class QLabel;
class QLineEdit;
class QPushButton;

namespace nb::ui {

// A box about to be shown, as an answerer sees it.
struct BoxRequest
{
    enum class Kind { Message, YesNo, Input };
    Kind kind = Kind::Message;
    std::string text;
    std::string title; // as shown: an empty title becomes "NUMBROOK"
    std::string defaultText;
    MsgIcon icon = MsgIcon::None;
    std::string details; // a message's technical reason, behind a details button
};

// The reply: button (kYes, kNo or kCancel) for a Yes/No box, text for an input box (empty =
// Cancel).
struct BoxAnswer
{
    int button = kYes;
    std::string text;
};

class ProgramBox : public QDialog
{
    Q_OBJECT
public:
    // `scale` is the front screen's scale, so the box grows with the screen it covers; `over` is
    // the window the box is centred on (may be null).
    ProgramBox(const BoxRequest &request, double scale, QWidget *over);

    // The reply once the box has closed.
    BoxAnswer answer() const { return answer_; }

    QLabel *textLabel() const { return text_; }
    QLineEdit *inputLine() const { return input_; }
    // The button answering `reply` (kYes, kNo; for OK boxes and input boxes kYes is OK and
    // kCancel is Cancel), or the details button for 0; null when the box has none.
    QPushButton *button(int reply) const;
    // The technical reason, hidden until the details button is pressed.
    QLabel *detailsLabel() const { return details_; }

    // Shown over `over` and answered by the user.
    static BoxAnswer run(const BoxRequest &request, double scale, QWidget *over);

protected:
    // Escape and the window's close button: a question gets no answer (kCancel), a name box
    // gives empty text, a notice is simply closed.
    void reject() override;
    void showEvent(QShowEvent *e) override;
    bool eventFilter(QObject *watched, QEvent *e) override;

private:
    QPushButton *addButton(const QString &caption, std::uint32_t colour, int reply);
    void finish(int reply);
    void fitText(int maxWidth);

    BoxRequest request_;
    QWidget *over_;
    BoxAnswer answer_;
    QLabel *text_ = nullptr;
    QLabel *details_ = nullptr;
    QLineEdit *input_ = nullptr;
    QPushButton *yes_ = nullptr, *no_ = nullptr, *more_ = nullptr;
};

} // namespace nb::ui
