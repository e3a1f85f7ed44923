#include "ui/ControlChanges.h"

#include "ui/ControlWidgets.h"
#include "ui/Look.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>

#include <algorithm>

namespace nb::ui {

namespace {

// Stores now in last and says whether it differed.
template<class T> bool changed(T &last, const T &now)
{
    if (last == now)
        return false;
    last = now;
    return true;
}

Qt::Alignment alignmentOf(Align a)
{
    switch (a) {
    case Align::Center:
        return Qt::AlignHCenter;
    case Align::Right:
        return Qt::AlignRight;
    case Align::Left:
        break;
    }
    return Qt::AlignLeft;
}

void setColors(QWidget &w, QPalette::ColorRole backRole, QPalette::ColorRole textRole,
               std::uint32_t back, std::uint32_t fore, const QColor &defaultBack,
               const QColor &defaultFore, bool readableWhenDisabled = false)
{
    QPalette pal = w.palette();
    pal.setColor(backRole, colorOr(back, defaultBack));
    // Disabled text keeps the style's greyed look, except where the text is an answer the pupil
    // must still read (a box that is finished with shows its digits in full colour).
    for (QPalette::ColorGroup g : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        if (g != QPalette::Disabled || readableWhenDisabled)
            pal.setColor(g, textRole, colorOr(fore, defaultFore));
    if (readableWhenDisabled)
        pal.setColor(QPalette::Disabled, backRole, colorOr(back, defaultBack));
    w.setPalette(pal);
}

void selectRow(QListWidget &w, int row)
{
    if (w.currentRow() != row)
        w.setCurrentRow(row);
}

void selectRow(QComboBox &w, int row)
{
    if (w.currentIndex() != row)
        w.setCurrentIndex(row);
}

// A list box or drop-down list: its items, the selected one and its colours.
template<class W> void showItems(W &w, const Control &c, bool items, bool row, bool colors)
{
    const QSignalBlocker quiet(&w);
    if (items) {
        QStringList list;
        for (const std::string &s : c.items)
            list << qs(s);
        w.clear();
        w.addItems(list);
    }
    if (row)
        selectRow(w, c.listIndex);
    if (colors)
        setColors(w, QPalette::Base, QPalette::Text, c.backColor, c.foreColor, Qt::white,
                  Qt::black);
}

// Captions of stock Qt buttons treat '&' as a shortcut marker; ours are plain text.
QString plainCaption(const std::string &s)
{
    return qs(s).replace('&', "&&");
}

// A caption too wide for its label: the font made smaller until the whole caption fits on one
// line, or the middle of the caption left out, with the whole of it as the label's tip.
void fitCaption(QLabel &label, const QString &caption, TextFit fit, QFont font)
{
    const int room = std::max(1, label.contentsRect().width() - 6);
    if (fit == TextFit::Shrink) {
        while (font.pixelSize() > 5 && QFontMetrics(font).horizontalAdvance(caption) > room)
            font.setPixelSize(font.pixelSize() - 1);
        label.setFont(font);
        // A smaller caption stays in the middle of its label rather than at the top.
        label.setAlignment((label.alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter);
    } else {
        label.setWordWrap(false);
        label.setText(QFontMetrics(font).elidedText(caption, Qt::ElideMiddle, room));
        label.setToolTip(caption);
    }
}

void applyLabel(QWidget &w, const Control &c, const ControlChanges &ch, double pixelsPerTwip)
{
    auto &lab = static_cast<QLabel &>(w);
    if (ch.text) {
        lab.setText(qs(c.caption));
        lab.setAccessibleName(qs(c.caption));
    }
    if (ch.colors) {
        setColors(lab, QPalette::Window, QPalette::WindowText, c.backColor, c.foreColor,
                  Qt::transparent, Qt::black);
        lab.setAutoFillBackground(hasColor(c.backColor));
    }
    if (ch.look) {
        lab.setAlignment(alignmentOf(c.align) | Qt::AlignTop);
        lab.setFrameShape(c.border ? QFrame::Box : QFrame::NoFrame);
    }
    if (c.fit != TextFit::Wrap && (ch.text || ch.font || ch.geometry || ch.look))
        fitCaption(lab, qs(c.caption), c.fit, makeFont(c.font, pixelsPerTwip * kTwipsPerPixel));
}

void applyTextBox(QWidget &w, const Control &c, const ControlChanges &ch)
{
    auto &box = static_cast<AnswerBox &>(w);
    const QString t = qs(c.caption);
    if (ch.text && box.text() != t) {
        // Keep the cursor where the pupil left it unless it was at the end.
        const int pos = box.cursorPosition();
        const bool atEnd = pos == box.text().size();
        box.setText(t);
        if (!atEnd || c.readOnly) // a text only to be read shows from its start
            box.setCursorPosition(atEnd ? 0 : std::min(pos, int(t.size())));
    }
    if (ch.spoken)
        box.setAccessibleName(qs(c.spokenName.empty() ? c.name : c.spokenName));
    if (ch.colors)
        setColors(box, QPalette::Base, QPalette::Text, c.backColor, c.foreColor, Qt::white,
                  Qt::black, true);
    if (ch.look) {
        box.setAlignment(alignmentOf(c.align) | Qt::AlignVCenter);
        box.setReadOnly(c.readOnly);
    }
    if (ch.fresh || ch.range)
        box.setMaxLength(c.maxLength > 0 ? c.maxLength : 32767);
}

void applyButton(QWidget &w, const Control &c, const ControlChanges &ch)
{
    auto &fb = static_cast<FaceButton &>(w);
    if (ch.text) {
        fb.setCaption(qs(c.caption));
        fb.setAccessibleName(qs(c.caption));
    }
    if (ch.colors)
        fb.setFace(c.backColor, c.foreColor);
    if (ch.picture && c.kind == ControlKind::PictureButton)
        fb.setPicture(c.picture);
}

void applyMarkButton(QWidget &w, const Control &c, const ControlChanges &ch)
{
    auto &ab = static_cast<QAbstractButton &>(w);
    if (ch.text) {
        ab.setText(plainCaption(c.caption));
        ab.setAccessibleName(qs(c.caption));
    }
    if (ch.value && ab.isChecked() != (c.value != 0)) {
        const QSignalBlocker quiet(&ab);
        ab.setChecked(c.value != 0);
    }
    if (ch.colors) {
        setColors(ab, QPalette::Window, QPalette::WindowText, c.backColor, c.foreColor,
                  Qt::transparent, Qt::black);
        ab.setAutoFillBackground(hasColor(c.backColor));
    }
}

void applyScrollBar(QWidget &w, const Control &c, const ControlChanges &ch)
{
    auto &sb = static_cast<QScrollBar &>(w);
    const QSignalBlocker quiet(&sb);
    if (ch.range) {
        sb.setRange(c.minimum, c.maximum);
        sb.setPageStep(std::max(1, std::abs(c.maximum - c.minimum) / 10));
    }
    if ((ch.value || ch.range) && sb.value() != c.value)
        sb.setValue(c.value);
}

} // namespace

ControlChanges compareControl(Control &l, const Control &c, bool fresh, bool relayout)
{
    ControlChanges ch;
    ch.fresh = fresh;
    ch.geometry = fresh || relayout;
    ch.geometry |= changed(l.left, c.left);
    ch.geometry |= changed(l.top, c.top);
    ch.geometry |= changed(l.width, c.width);
    ch.geometry |= changed(l.height, c.height);
    ch.geometry |= changed(l.x2, c.x2);
    ch.geometry |= changed(l.y2, c.y2);
    ch.geometry |= changed(l.lineWidth, c.lineWidth);
    ch.font = fresh || relayout;
    ch.font |= changed(l.font.family, c.font.family);
    ch.font |= changed(l.font.points, c.font.points);
    ch.font |= changed(l.font.bold, c.font.bold);
    ch.colors = fresh;
    ch.colors |= changed(l.backColor, c.backColor);
    ch.colors |= changed(l.foreColor, c.foreColor);
    ch.text = changed(l.caption, c.caption) || fresh;
    ch.look = fresh;
    ch.look |= changed(l.align, c.align);
    ch.look |= changed(l.border, c.border);
    ch.look |= changed(l.shape, c.shape);
    ch.look |= changed(l.fit, c.fit);
    ch.look |= changed(l.readOnly, c.readOnly);
    ch.picture = changed(l.picture, c.picture) || fresh;
    ch.spoken = changed(l.spokenName, c.spokenName) || fresh;
    ch.range = fresh;
    ch.range |= changed(l.minimum, c.minimum);
    ch.range |= changed(l.maximum, c.maximum);
    ch.range |= changed(l.maxLength, c.maxLength);
    ch.value = changed(l.value, c.value) || fresh;
    ch.items = changed(l.items, c.items) || fresh;
    ch.row = changed(l.listIndex, c.listIndex) || ch.items;
    ch.visible = changed(l.visible, c.visible) || fresh;
    ch.enabled = changed(l.enabled, c.enabled) || fresh;
    ch.mouse = changed(l.mouseTransparent, c.mouseTransparent) || fresh;
    return ch;
}

void applyControl(QWidget &w, const Control &c, const ControlChanges &ch, double pixelsPerTwip)
{
    if (ch.font)
        w.setFont(makeFont(c.font, pixelsPerTwip * kTwipsPerPixel));
    if (ch.visible)
        w.setVisible(c.visible);
    if (ch.enabled)
        w.setEnabled(c.enabled);
    // Shapes and lines never take the mouse; any other control may let presses through.
    if (ch.mouse && c.kind != ControlKind::Shape && c.kind != ControlKind::Line)
        w.setAttribute(Qt::WA_TransparentForMouseEvents, c.mouseTransparent);

    switch (c.kind) {
    case ControlKind::Label:
        return applyLabel(w, c, ch, pixelsPerTwip);
    case ControlKind::TextBox:
        return applyTextBox(w, c, ch);
    case ControlKind::Button:
    case ControlKind::PictureButton:
        return applyButton(w, c, ch);
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
        return applyMarkButton(w, c, ch);
    case ControlKind::ScrollBar:
        return applyScrollBar(w, c, ch);
    case ControlKind::Image:
        if (ch.picture)
            static_cast<PictureView &>(w).setPicture(c.picture);
        return;
    case ControlKind::Shape:
        if (ch.colors || ch.look || ch.geometry)
            static_cast<ShapeView &>(w).setShape(c.shape, c.backColor, c.foreColor,
                                                 std::max(1.0, c.lineWidth * pixelsPerTwip));
        return;
    case ControlKind::List:
        return showItems(static_cast<QListWidget &>(w), c, ch.items, ch.row, ch.colors);
    case ControlKind::ComboBox:
        return showItems(static_cast<QComboBox &>(w), c, ch.items, ch.row, ch.colors);
    case ControlKind::Canvas: {
        auto &cv = static_cast<CanvasView &>(w);
        cv.setDrawing(c.drawing);
        cv.setLook(c.backColor, c.border, pixelsPerTwip);
        return;
    }
    case ControlKind::Line: // placed by the view, with its colour
    case ControlKind::Timer:
        return;
    }
}

} // namespace nb::ui
