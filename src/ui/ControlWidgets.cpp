#include "ui/ControlWidgets.h"

#include "ui/DrawingPainter.h"
#include "ui/Look.h"
#include "ui/ScreenView.h"

#include <QKeyEvent>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace nb::ui {

// ---- Clickable ----

template<class Base>
Clickable<Base>::Clickable(ScreenView &view, int slot, QWidget *parent)
    : Base(parent)
    , view_(view)
    , slot_(slot)
{}

template<class Base> void Clickable<Base>::mousePressEvent(QMouseEvent *e)
{
    if (e->button() != Qt::LeftButton)
        return Base::mousePressEvent(e);
    pressed_ = true;
    view_.mouseDown(slot_, e->position());
}

template<class Base> void Clickable<Base>::mouseReleaseEvent(QMouseEvent *e)
{
    const bool wasPressed = pressed_;
    pressed_ = false;
    if (e->button() != Qt::LeftButton)
        return Base::mouseReleaseEvent(e);
    if (wasPressed && this->rect().contains(e->position().toPoint()))
        view_.click(slot_);
}

template<class Base> void Clickable<Base>::mouseDoubleClickEvent(QMouseEvent *e)
{
    if (e->button() != Qt::LeftButton)
        return Base::mouseDoubleClickEvent(e);
    view_.doubleClick(slot_);
}

template class Clickable<QLabel>;
template class Clickable<QWidget>;

// ---- AnswerBox ----

AnswerBox::AnswerBox(ScreenView &view, int slot, QWidget *parent)
    : QLineEdit(parent)
    , view_(view)
    , slot_(slot)
{}

void AnswerBox::keyPressEvent(QKeyEvent *e)
{
    int code = 0;
    switch (e->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        code = 13;
        break;
    case Qt::Key_Backspace:
        code = 8;
        break;
    case Qt::Key_Escape:
        code = 27;
        break;
    default:
        // Shortcuts (copy, paste, undo...) act as usual; the box reports any change it makes.
        if (e->modifiers() & (Qt::ControlModifier | Qt::MetaModifier))
            break;
        if (const QList<uint> chars = e->text().toUcs4();
            chars.size() == 1 && chars[0] >= 32 && chars[0] != 127)
            code = int(chars[0]);
    }
    if (code == 0)
        return QLineEdit::keyPressEvent(e);
    view_.typeKey(slot_, *this, e, code);
}

// ---- FaceButton ----

FaceButton::FaceButton(QWidget *parent)
    : QPushButton(parent)
{
    setAttribute(Qt::WA_Hover);
}

void FaceButton::setFace(std::uint32_t back, std::uint32_t fore)
{
    back_ = colorOr(back, QColor(226, 234, 255));
    fore_ = colorOr(fore, QColor(30, 34, 70));
    update();
}

void FaceButton::setCaption(const QString &caption)
{
    caption_ = caption;
    // The face is painted here; the button text only serves keyboard users and screen readers,
    // so an ampersand is doubled to stay a plain character rather than a shortcut marker.
    QString plain = caption;
    setText(plain.replace('&', "&&"));
    update();
}

void FaceButton::setPicture(const std::string &picture)
{
    picture_ = picture;
    update();
}

void FaceButton::keyPressEvent(QKeyEvent *e)
{
    if ((e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) && !e->isAutoRepeat()) {
        click();
        return;
    }
    QPushButton::keyPressEvent(e);
}

void FaceButton::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);

    const bool enabled = isEnabled();
    const bool down = isDown();
    QColor base = back_;
    if (!enabled)
        base = QColor::fromHsv(base.hsvHue(), base.hsvSaturation() / 3,
                               std::min(255, base.value() + 20));
    else if (underMouse() && !down)
        base = base.lighter(106);

    const QRectF all = QRectF(rect()).adjusted(1, 1, -1, -1);
    const double depth = std::clamp(all.height() * 0.07, 2.0, 6.0);
    const double radius = std::min(all.width(), all.height()) * 0.22;
    // The button's raised edge under its face; pressing moves the face down onto it.
    p.setPen(Qt::NoPen);
    p.setBrush(base.darker(down ? 120 : 140));
    p.drawRoundedRect(all.adjusted(0, depth, 0, 0), radius, radius);
    const QRectF face = all.adjusted(0, down ? depth : 0, 0, down ? 0 : -depth);
    QLinearGradient shine(face.topLeft(), face.bottomLeft());
    shine.setColorAt(0, base.lighter(115));
    shine.setColorAt(1, base);
    p.setBrush(shine);
    p.setPen(QPen(base.darker(155), 1.2));
    p.drawRoundedRect(face, radius, radius);

    if (hasFocus()) {
        const double inset = std::clamp(face.height() * 0.07, 2.0, 5.0);
        QPen ring(QColor(40, 90, 210, 200), std::clamp(face.height() * 0.04, 1.5, 3.0));
        p.setPen(ring);
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(face.adjusted(inset, inset, -inset, -inset), radius - inset,
                          radius - inset);
    }

    const double pad = std::min(face.width(), face.height()) * 0.06;
    const QRectF inner = face.adjusted(pad, pad, -pad, -pad);
    if (!picture_.empty()) {
        p.setOpacity(enabled ? 1.0 : 0.45);
        const bool painted = cache_.paint(p, picture_, inner);
        p.setOpacity(1.0);
        if (painted)
            return;
    }
    p.setPen(enabled ? fore_ : QColor(140, 140, 150));
    p.setFont(font());
    p.drawText(inner, Qt::AlignCenter | Qt::TextWordWrap, caption_);
}

// ---- PictureView ----

PictureView::PictureView(ScreenView &view, int slot, QWidget *parent)
    : Clickable<QWidget>(view, slot, parent)
{}

void PictureView::setPicture(const std::string &picture)
{
    picture_ = picture;
    update();
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    cache_.paint(p, picture_, QRectF(rect()));
}

// ---- ShapeView ----

ShapeView::ShapeView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeView::setShape(ShapeKind kind, std::uint32_t fill, std::uint32_t border, double penPixels)
{
    kind_ = kind;
    fill_ = fill;
    border_ = border;
    pen_ = penPixels;
    update();
}

void ShapeView::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(hasColor(fill_) ? QBrush(toQColor(fill_)) : QBrush(Qt::NoBrush));
    // The border is drawn inside the control's box, black unless a colour is set.
    p.setPen(QPen(colorOr(border_, Qt::black), pen_));
    const double half = pen_ / 2;
    const QRectF r = QRectF(rect()).adjusted(half, half, -half, -half);
    switch (kind_) {
    case ShapeKind::Rectangle:
        p.drawRect(r);
        break;
    case ShapeKind::RoundedRectangle: {
        const double radius = std::min(r.width(), r.height()) * 0.15;
        p.drawRoundedRect(r, radius, radius);
        break;
    }
    case ShapeKind::Oval:
        p.drawEllipse(r);
        break;
    }
}

// ---- LineView ----

LineView::LineView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void LineView::setLine(QPointF from, QPointF to, std::uint32_t color, double penPixels)
{
    from_ = from;
    to_ = to;
    color_ = colorOr(color, Qt::black);
    pen_ = penPixels;
    update();
}

void LineView::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(color_, pen_, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(from_, to_);
}

// ---- CanvasView ----

CanvasView::CanvasView(ScreenView &view, int slot, QWidget *parent)
    : Clickable<QWidget>(view, slot, parent)
{}

void CanvasView::setDrawing(const Drawing &drawing)
{
    if (hasDrawing_ && drawing.revision == drawing_.revision)
        return;
    drawing_ = drawing;
    hasDrawing_ = true;
    update();
}

void CanvasView::setLook(std::uint32_t back, bool border, double pixelsPerTwip)
{
    if (back == back_ && border == border_ && pixelsPerTwip == pixelsPerTwip_)
        return;
    back_ = back;
    border_ = border;
    pixelsPerTwip_ = pixelsPerTwip;
    update();
}

void CanvasView::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    if (hasColor(back_))
        p.fillRect(rect(), toQColor(back_));
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    if (cache_.size() != pixels || cachedRevision_ != drawing_.revision ||
        cachedScale_ != pixelsPerTwip_) {
        cache_ = QPixmap(pixels);
        cache_.setDevicePixelRatio(ratio);
        cache_.fill(Qt::transparent);
        QPainter pp(&cache_);
        paintDrawing(pp, drawing_, pixelsPerTwip_);
        cachedRevision_ = drawing_.revision;
        cachedScale_ = pixelsPerTwip_;
        ++renders_;
    }
    p.drawPixmap(0, 0, cache_);
    if (border_) {
        p.setPen(QPen(Qt::black, 1));
        p.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

} // namespace nb::ui
