#pragma once
// The widgets a screen view makes from controls that need more than a stock Qt widget: boxes
// that pass keys to the model first, buttons with a friendly painted face, pictures, shapes,
// lines and canvases. Each knows its view and its control's slot there, and reports to the view.
#include "core/Control.h"
#include "ui/Pictures.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QWidget>

namespace nb::ui {

class ScreenView;

// Mouse routing shared by labels, images and canvases: a press reports a mouse down (in twips
// from the control's corner), a release over the widget a click, a double click a double click.
template<class Base> class Clickable : public Base
{
public:
    Clickable(ScreenView &view, int slot, QWidget *parent);

protected:
    void mousePressEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void mouseDoubleClickEvent(QMouseEvent *e) override;

    ScreenView &view_;
    int slot_;
    bool pressed_ = false;
};

using ClickLabel = Clickable<QLabel>;

// A check box or option button drawn to the layout's scale (the mark grows with the font) that
// reacts to a click anywhere in its box, not only on its mark and caption.
template<class Base> class MarkButton : public Base
{
public:
    using Base::Base;

protected:
    bool hitButton(const QPoint &pos) const override { return this->rect().contains(pos); }
    void paintEvent(QPaintEvent *) override;
};
using CheckBoxView = MarkButton<QCheckBox>;
using OptionView = MarkButton<QRadioButton>;

// The character code a key press means to a screen: 13 Enter, 8 Backspace, 27 Escape, else the
// one character it types; 0 for keys that type nothing and for shortcuts (Ctrl, Meta, and with
// `altIsShortcut` Alt).
int keyCode(const QKeyEvent &e, bool altIsShortcut = false);

// A text box: keys that type something (and Enter, Backspace, Escape) go to the model before
// they reach the box; the model may swallow or replace them.
class AnswerBox : public QLineEdit
{
public:
    AnswerBox(ScreenView &view, int slot, QWidget *parent);
    // Lets the box apply a key itself (the model accepted it).
    void applyKey(QKeyEvent *e) { QLineEdit::keyPressEvent(e); }

protected:
    void keyPressEvent(QKeyEvent *e) override;

private:
    ScreenView &view_;
    int slot_;
};

// A push button with a rounded, raised face in the control's colours; a picture button paints
// its picture on the face instead of the caption.
class FaceButton : public QPushButton
{
public:
    explicit FaceButton(QWidget *parent);
    void setFace(std::uint32_t back, std::uint32_t fore);
    void setCaption(const QString &caption);
    void setPicture(const std::string &picture);

protected:
    void paintEvent(QPaintEvent *) override;
    void keyPressEvent(QKeyEvent *e) override;

private:
    void paintPicture(QPainter &p, bool enabled, bool down);

    QColor back_;
    QColor fore_;
    QString caption_;
    std::string picture_;
    CachedPicture cache_;
};

// A clickable picture.
class PictureView : public Clickable<QWidget>
{
public:
    PictureView(ScreenView &view, int slot, QWidget *parent);
    void setPicture(const std::string &picture);

protected:
    void paintEvent(QPaintEvent *) override;

private:
    std::string picture_;
    CachedPicture cache_;
};

// A rectangle, rounded rectangle or oval; mouse events pass through it.
class ShapeView : public QWidget
{
public:
    explicit ShapeView(QWidget *parent);
    void setShape(ShapeKind kind, std::uint32_t fill, std::uint32_t border, double penPixels);

protected:
    void paintEvent(QPaintEvent *) override;

private:
    ShapeKind kind_ = ShapeKind::Rectangle;
    std::uint32_t fill_ = kDefaultColor;
    std::uint32_t border_ = kDefaultColor;
    double pen_ = 1;
};

// A straight line between two points given in the widget's own pixels.
class LineView : public QWidget
{
public:
    explicit LineView(QWidget *parent);
    void setLine(QPointF from, QPointF to, std::uint32_t color, double penPixels);

protected:
    void paintEvent(QPaintEvent *) override;

private:
    QPointF from_, to_;
    QColor color_;
    double pen_ = 1;
};

// Paints a drawing; the rendered picture is kept until the drawing's revision or the size
// changes, so repaints of an unchanged drawing only copy pixels.
class CanvasView : public Clickable<QWidget>
{
public:
    CanvasView(ScreenView &view, int slot, QWidget *parent);
    // Takes a copy of the drawing when its revision differs from the one held.
    void setDrawing(const Drawing &drawing);
    void setLook(std::uint32_t back, bool border, double pixelsPerTwip);
    int renders() const { return renders_; }

protected:
    void paintEvent(QPaintEvent *) override;

private:
    Drawing drawing_;
    bool hasDrawing_ = false;
    std::uint32_t back_ = kDefaultColor;
    bool border_ = false;
    double pixelsPerTwip_ = 1.0 / 15;
    QPixmap cache_;
    std::uint64_t cachedRevision_ = 0;
    double cachedScale_ = 0;
    int renders_ = 0;
};

} // namespace nb::ui
