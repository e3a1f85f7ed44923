#include "ui/ProgramBox.h"

#include "ui/ControlWidgets.h"
#include "ui/Look.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace nb::ui {

namespace {

constexpr std::uint32_t kPaper = rgb(255, 248, 220);
constexpr std::uint32_t kInk = rgb(40, 40, 120);
constexpr std::uint32_t kGo = rgb(150, 230, 150);
constexpr std::uint32_t kStop = rgb(255, 160, 160);
constexpr std::uint32_t kMore = rgb(140, 200, 255);
constexpr double kTextPoints = 18;
constexpr double kDetailPoints = 12;

// The screens may be shown small or large; the box follows within limits a child still reads.
double boxScale(double scale)
{
    return std::clamp(scale, 0.9, 2.5);
}

QStyle::StandardPixmap pixmapOf(MsgIcon icon)
{
    switch (icon) {
    case MsgIcon::Critical:
        return QStyle::SP_MessageBoxCritical;
    case MsgIcon::Question:
        return QStyle::SP_MessageBoxQuestion;
    case MsgIcon::Exclamation:
        return QStyle::SP_MessageBoxWarning;
    case MsgIcon::Information:
    case MsgIcon::None:
        break;
    }
    return QStyle::SP_MessageBoxInformation;
}

int textHeight(const QFontMetrics &fm, int width, const QString &text)
{
    return fm.boundingRect(QRect(0, 0, std::max(1, width), 1 << 20), Qt::TextWordWrap, text)
        .height();
}

} // namespace

ProgramBox::ProgramBox(const BoxRequest &request, double scale, QWidget *over)
    : QDialog(over)
    , request_(request)
    , over_(over)
{
    const double s = boxScale(scale);
    setWindowTitle(qs(request.title));
    setAccessibleName(qs(request.title));
    setAccessibleDescription(qs(request.text));
    setModal(true);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, toQColor(kPaper));
    pal.setColor(QPalette::WindowText, toQColor(kInk));
    setPalette(pal);
    setAutoFillBackground(true);

    const QFont textFont = makeFont("Comic Sans MS", kTextPoints, false, s);
    const int em = QFontMetrics(textFont).height();
    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(em, em, em, em);
    outer->setSpacing(em * 2 / 3);

    auto *top = new QHBoxLayout;
    top->setSpacing(em * 2 / 3);
    if (request.icon != MsgIcon::None) {
        auto *icon = new QLabel(this);
        icon->setPixmap(style()->standardIcon(pixmapOf(request.icon)).pixmap(em * 2, em * 2));
        icon->setAlignment(Qt::AlignTop);
        top->addWidget(icon, 0, Qt::AlignTop);
    }
    text_ = new QLabel(this);
    text_->setTextFormat(Qt::PlainText);
    text_->setText(qs(request.text));
    text_->setAccessibleName(qs(request.text));
    text_->setFont(textFont);
    text_->setWordWrap(true);
    text_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    top->addWidget(text_, 1);
    outer->addLayout(top);

    if (request.kind == BoxRequest::Kind::Input) {
        input_ = new QLineEdit(qs(request.defaultText), this);
        input_->setFont(makeFont("Comic Sans MS", kTextPoints, true, s));
        input_->setAccessibleName(qs(request.text));
        input_->setMinimumHeight(em * 2);
        input_->setMinimumWidth(em * 16);
        input_->installEventFilter(this);
        outer->addWidget(input_);
    }
    if (!request.details.empty()) {
        details_ = new QLabel(qs(request.details), this);
        details_->setTextFormat(Qt::PlainText);
        details_->setAccessibleName(qs(request.details));
        details_->setFont(makeFont("Comic Sans MS", kDetailPoints, false, s));
        details_->setWordWrap(true);
        details_->setTextInteractionFlags(Qt::TextSelectableByMouse);
        details_->setVisible(false);
        outer->addWidget(details_);
    }

    auto *row = new QHBoxLayout;
    row->setSpacing(em);
    row->addStretch(1);
    outer->addLayout(row);
    const auto add = [&](const char *caption, std::uint32_t colour, int reply) {
        QPushButton *b = addButton(caption, colour, reply);
        b->setFont(makeFont("Comic Sans MS", kTextPoints, true, s));
        b->setMinimumSize(
            std::max(em * 5, QFontMetrics(b->font()).horizontalAdvance(caption) + em * 2),
            em * 2 + em / 2);
        row->addWidget(b);
        return b;
    };
    switch (request.kind) {
    case BoxRequest::Kind::YesNo:
        yes_ = add("Yes", kGo, kYes);
        no_ = add("No", kStop, kNo);
        break;
    case BoxRequest::Kind::Input:
        yes_ = add("OK", kGo, kYes);
        no_ = add("Cancel", kStop, kCancel);
        break;
    case BoxRequest::Kind::Message:
        yes_ = add("OK", kGo, kYes);
        break;
    }
    if (details_) {
        more_ = add("Details", kMore, 0);
        connect(more_, &QPushButton::clicked, this, [this] {
            details_->setVisible(!details_->isVisible());
            static_cast<FaceButton *>(more_)->setCaption(details_->isVisible() ? "Hide details"
                                                                               : "Details");
            adjustSize();
        });
    }
    row->addStretch(1);
    yes_->setDefault(true);
    (input_ ? static_cast<QWidget *>(input_) : yes_)->setFocus();

    // As wide as the text needs, never wider than most of the window or screen.
    QRect area = over ? over->window()->geometry() : QRect();
    if (area.width() < em * 20)
        if (const QScreen *screen = QGuiApplication::primaryScreen())
            area = screen->availableGeometry();
    fitText(std::max(em * 12, area.width() * 4 / 5 - 3 * em));
    if (details_)
        details_->setMaximumWidth(std::max(text_->width(), em * 20));
}

QPushButton *ProgramBox::addButton(const QString &caption, std::uint32_t colour, int reply)
{
    auto *b = new FaceButton(this);
    b->setCaption(caption);
    b->setAccessibleName(caption);
    b->setFace(colour, kInk);
    b->setAutoDefault(true);
    b->installEventFilter(this);
    if (reply != 0)
        connect(b, &QPushButton::clicked, this, [this, reply] { finish(reply); });
    return b;
}

QPushButton *ProgramBox::button(int reply) const
{
    if (reply == 0)
        return more_;
    if (reply == kYes)
        return yes_;
    return (reply == kNo && request_.kind == BoxRequest::Kind::YesNo) ||
                   (reply == kCancel && request_.kind == BoxRequest::Kind::Input)
               ? no_
               : nullptr;
}

void ProgramBox::fitText(int maxWidth)
{
    const QFontMetrics fm(text_->font());
    const QString text = text_->text();
    const int height = textHeight(fm, maxWidth, text);
    int width = fm.boundingRect(QRect(0, 0, maxWidth, 1 << 20), Qt::TextWordWrap, text).width();
    if (textHeight(fm, width, text) > height || width > maxWidth)
        width = maxWidth;
    // Over several lines: the narrowest width that needs no more of them, so the lines come out
    // of even length rather than a full line and a scrap.
    if (height > fm.height()) {
        int lo = maxWidth / 3, hi = width;
        while (lo < hi) {
            const int mid = (lo + hi) / 2;
            if (textHeight(fm, mid, text) <= height)
                hi = mid;
            else
                lo = mid + 1;
        }
        width = hi;
    }
    // A short last word (the "?" of "another go ?") never stands on a line of its own.
    const int lastSpace = int(text.lastIndexOf(' '));
    if (lastSpace > 0 && text.size() - lastSpace <= 4) {
        const QString head = text.left(lastSpace);
        const auto orphan = [&](int w) {
            return textHeight(fm, w, head) < textHeight(fm, w, text);
        };
        int w = width;
        while (orphan(w) && w < maxWidth)
            w = std::min(maxWidth, w + fm.averageCharWidth());
        if (orphan(w)) // no wider room: take the word before it along instead
            for (w = width; orphan(w) && w > maxWidth / 3;)
                w -= fm.averageCharWidth();
        if (!orphan(w))
            width = w;
    }
    text_->setFixedWidth(width + 2);
}

void ProgramBox::finish(int reply)
{
    answer_.button = reply;
    answer_.text = input_ && reply == kYes ? input_->text().toStdString() : std::string();
    if (reply == kCancel)
        QDialog::reject();
    else
        accept();
}

void ProgramBox::reject()
{
    finish(request_.kind == BoxRequest::Kind::Message ? kYes : kCancel);
}

void ProgramBox::showEvent(QShowEvent *e)
{
    QDialog::showEvent(e);
    adjustSize();
    // Centred over the screen it covers.
    const QRect area = over_ ? over_->window()->frameGeometry()
                             : (QGuiApplication::primaryScreen()
                                    ? QGuiApplication::primaryScreen()->availableGeometry()
                                    : QRect());
    if (area.isValid()) {
        QRect frame = frameGeometry();
        frame.moveCenter(area.center());
        move(frame.topLeft());
    }
}

bool ProgramBox::eventFilter(QObject *watched, QEvent *e)
{
    // An Enter held down from the screen below repeats: it must not answer the box.
    if (e->type() == QEvent::KeyPress) {
        const auto *k = static_cast<QKeyEvent *>(e);
        if (k->isAutoRepeat() &&
            (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter || k->key() == Qt::Key_Space))
            return true;
    }
    return QDialog::eventFilter(watched, e);
}

BoxAnswer ProgramBox::run(const BoxRequest &request, double scale, QWidget *over)
{
    ProgramBox box(request, scale, over);
    box.exec();
    return box.answer();
}

} // namespace nb::ui
