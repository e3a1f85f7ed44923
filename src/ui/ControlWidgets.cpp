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

// ---- MarkButton ----

template<class Base> void MarkButton<Base>::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const bool enabled = this->isEnabled();
    const double size = std::round(QFontMetricsF(this->font()).height() * 0.85);
    const QRectF mark(2, (this->height() - size) / 2, size, size);
    const QColor ink = enabled ? QColor(50, 60, 120) : QColor(160, 160, 170);
    p.setPen(QPen(ink, std::max(1.5, size * 0.09)));
    p.setBrush(enabled ? Qt::white : QColor(240, 240, 240));
    constexpr bool round = std::is_same_v<Base, QRadioButton>;
    if (round)
        p.drawEllipse(mark);
    else
        p.drawRoundedRect(mark, size * 0.2, size * 0.2);
    if (this->isChecked()) {
        if (round) {
            p.setPen(Qt::NoPen);
            p.setBrush(enabled ? QColor(40, 90, 210) : ink);
            p.drawEllipse(mark.adjusted(size * 0.25, size * 0.25, -size * 0.25, -size * 0.25));
        } else {
            QPainterPath tick;
            tick.moveTo(mark.left() + size * 0.22, mark.top() + size * 0.52);
            tick.lineTo(mark.left() + size * 0.42, mark.top() + size * 0.74);
            tick.lineTo(mark.left() + size * 0.80, mark.top() + size * 0.26);
            p.setBrush(Qt::NoBrush);
            p.setPen(QPen(enabled ? QColor(30, 150, 60) : ink, size * 0.16, Qt::SolidLine,
                          Qt::RoundCap, Qt::RoundJoin));
            p.drawPath(tick);
        }
    }
    const QRectF textBox = QRectF(this->rect()).adjusted(mark.right() + size * 0.4, 0, 0, 0);
    p.setPen(this->palette().color(enabled ? QPalette::Active : QPalette::Disabled,
                                   QPalette::WindowText));
    p.setFont(this->font());
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
    // The caption as written: the button's own text has every '&' doubled.
    const QString caption = this->text().replace("&&", "&");
    p.drawText(textBox, flags, caption);
    if (this->hasFocus()) {
        const QRectF used = p.boundingRect(textBox, flags, caption).adjusted(-2, 0, 2, 0);
        p.setPen(QPen(QColor(40, 90, 210, 200), 1, Qt::DotLine));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(used, 3, 3);
    }
}

template class MarkButton<QCheckBox>;
template class MarkButton<QRadioButton>;

// ---- AnswerBox ----

AnswerBox::AnswerBox(ScreenView &view, int slot, QWidget *parent)
    : QLineEdit(parent)
    , view_(view)
    , slot_(slot)
{}

int keyCode(const QKeyEvent &e, bool altIsShortcut)
{
    switch (e.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Escape:
        return 27;
    default:
        break;
    }
    Qt::KeyboardModifiers shortcut = Qt::ControlModifier | Qt::MetaModifier;
    if (altIsShortcut)
        shortcut |= Qt::AltModifier;
    if (e.modifiers() & shortcut)
        return 0;
    const QList<uint> chars = e.text().toUcs4();
    return chars.size() == 1 && chars[0] >= 32 && chars[0] != 127 ? int(chars[0]) : 0;
}

void AnswerBox::keyPressEvent(QKeyEvent *e)
{
    // Shortcuts (copy, paste, undo...) act as usual; the box reports any change it makes.
    const int code = keyCode(*e);
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
    if (!picture_.empty() && pictureRenderer(picture_))
        return paintPicture(p, enabled, down);
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
    p.setPen(enabled ? fore_ : QColor(140, 140, 150));
    p.setFont(font());
    p.drawText(inner, Qt::AlignCenter | Qt::TextWordWrap, caption_);
}

void FaceButton::paintPicture(QPainter &p, bool enabled, bool down)
{
    // The picture is the whole face: pressing nudges it down, a disabled one is faded.
    const double pad = std::min(width(), height()) * 0.03;
    const double shift = down ? std::max(1.0, height() * 0.02) : 0.0;
    const QRectF inner = QRectF(rect()).adjusted(pad, pad + shift, -pad, -pad + shift);
    p.setOpacity(enabled ? 1.0 : 0.45);
    cache_.paint(p, picture_, inner);
    p.setOpacity(1.0);
    if (hasFocus()) {
        const double radius = std::min(inner.width(), inner.height()) * 0.12;
        p.setPen(QPen(QColor(40, 90, 210, 200), std::clamp(height() * 0.015, 2.0, 4.0)));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(inner, radius, radius);
    }
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
    // A canvas with a back colour covers its area completely: its cached picture is opaque (a
    // plain copy, no blending) and nothing beneath it needs painting.
    if (hasColor(back) != hasColor(back_) || back != back_)
        cachedRevision_ = ~std::uint64_t(0);
    back_ = back;
    border_ = border;
    pixelsPerTwip_ = pixelsPerTwip;
    setAttribute(Qt::WA_OpaquePaintEvent, hasColor(back_));
    update();
}

void CanvasView::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    if (cache_.size() != pixels || cachedRevision_ != drawing_.revision ||
        cachedScale_ != pixelsPerTwip_) {
        cache_ = QPixmap(pixels);
        cache_.setDevicePixelRatio(ratio);
        cache_.fill(hasColor(back_) ? toQColor(back_) : QColor(Qt::transparent));
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
