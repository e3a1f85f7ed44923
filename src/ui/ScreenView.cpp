#include "ui/ScreenView.h"

#include "core/App.h"
#include "core/Input.h"
#include "core/Screen.h"
#include "ui/ControlChanges.h"
#include "ui/ControlWidgets.h"
#include "ui/Look.h"
#include "ui/MainWindow.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>

#include <cmath>

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

// Labels, pictures, shapes, lines and drawn canvases lie under the controls a pupil types into or
// presses, stacked among themselves in the order the screen made them: a picture made after a
// canvas moves over its drawing.
bool isGraphical(ControlKind k)
{
    return k == ControlKind::Label || k == ControlKind::Image || k == ControlKind::Shape ||
           k == ControlKind::Line || k == ControlKind::Canvas;
}

} // namespace

ScreenView::ScreenView(MainWindow &window, App &app, Screen &screen, QWidget *parent)
    : QWidget(parent)
    , window_(window)
    , app_(app)
    , screen_(&screen)
{
    setObjectName(qs(screen.name()));
    setAutoFillBackground(false);
    paused_ = window.timersPaused();
    sync();
}

ScreenView::~ScreenView() = default;

void ScreenView::detach()
{
    for (Bound &b : bound_)
        if (b.timer)
            b.timer->stop();
    screen_ = nullptr;
}

Control *ScreenView::liveControl(int slot)
{
    if (!screen_ || slot < 0 || slot >= int(bound_.size()) || !app_.isLive(*screen_))
        return nullptr;
    return screen_->find(bound_[std::size_t(slot)].name, bound_[std::size_t(slot)].index);
}

// ---- Building ----

void ScreenView::buildNew()
{
    const auto &controls = screen_->controls();
    // Screens only ever add controls; should the list ever differ from what was built, start over.
    bool same = bound_.size() <= controls.size();
    for (std::size_t i = 0; same && i < bound_.size(); ++i)
        same = bound_[i].name == controls[i].name && bound_[i].index == controls[i].index &&
               bound_[i].kind == controls[i].kind;
    if (!same)
        dropAll();
    if (bound_.size() == controls.size())
        return;
    bound_.reserve(controls.size());
    for (std::size_t i = bound_.size(); i < controls.size(); ++i) {
        Bound b;
        make(b, controls[i], int(i));
        bound_.push_back(std::move(b));
    }
    restack();
}

void ScreenView::dropAll()
{
    for (Bound &b : bound_) {
        delete b.widget;
        delete b.timer;
    }
    bound_.clear();
}

void ScreenView::restack()
{
    for (Bound &b : bound_)
        if (b.widget && isGraphical(b.kind))
            b.widget->raise();
    for (Bound &b : bound_)
        if (b.widget && !isGraphical(b.kind))
            b.widget->raise();
}

void ScreenView::make(Bound &b, const Control &c, int slot)
{
    b.name = c.name;
    b.index = c.index;
    b.kind = c.kind;
    QWidget *w = nullptr;
    switch (c.kind) {
    case ControlKind::Label: {
        auto *l = new ClickLabel(*this, slot, this);
        l->setTextFormat(Qt::PlainText);
        l->setWordWrap(true);
        w = l;
        break;
    }
    case ControlKind::TextBox: {
        auto *t = new AnswerBox(*this, slot, this);
        connect(t, &QLineEdit::textChanged, this,
                [this, slot](const QString &text) { textChanged(slot, text); });
        w = t;
        break;
    }
    case ControlKind::Button:
    case ControlKind::PictureButton: {
        auto *fb = new FaceButton(this);
        // Tab moves between the boxes a pupil types into, never onto a button: a child who
        // presses Tab and then Enter must not press EXIT by accident. A button still takes the
        // focus when the screen gives it (Start, Next) or when it is clicked.
        fb->setFocusPolicy(Qt::ClickFocus);
        connect(fb, &QPushButton::clicked, this, [this, slot] { click(slot); });
        w = fb;
        break;
    }
    case ControlKind::CheckBox:
    case ControlKind::OptionButton: {
        QAbstractButton *ab = nullptr;
        if (c.kind == ControlKind::CheckBox) {
            ab = new CheckBoxView(this);
        } else {
            // The model decides which options are set; Qt must not clear the others itself.
            auto *rb = new OptionView(this);
            rb->setAutoExclusive(false);
            ab = rb;
        }
        connect(ab, &QAbstractButton::clicked, this, [this, slot] { click(slot); });
        w = ab;
        break;
    }
    case ControlKind::ScrollBar: {
        auto *sb = new QScrollBar(this);
        connect(sb, &QScrollBar::valueChanged, this, [this, slot](int v) { scrolled(slot, v); });
        w = sb;
        break;
    }
    case ControlKind::Image:
        w = new PictureView(*this, slot, this);
        break;
    case ControlKind::Shape:
        w = new ShapeView(this);
        break;
    case ControlKind::Line:
        w = new LineView(this);
        break;
    case ControlKind::List: {
        auto *lw = new QListWidget(this);
        connect(lw, &QListWidget::currentRowChanged, this,
                [this, slot](int row) { selectionChanged(slot, row); });
        connect(lw, &QListWidget::itemDoubleClicked, this, [this, slot] { doubleClick(slot); });
        w = lw;
        break;
    }
    case ControlKind::ComboBox: {
        auto *cb = new QComboBox(this);
        connect(cb, &QComboBox::currentIndexChanged, this,
                [this, slot](int row) { selectionChanged(slot, row); });
        w = cb;
        break;
    }
    case ControlKind::Canvas:
        w = new CanvasView(*this, slot, this);
        break;
    case ControlKind::Timer:
        b.timer = new QTimer(this);
        b.timer->setObjectName(qs(c.id()));
        connect(b.timer, &QTimer::timeout, this, [this, slot] { timerFired(slot); });
        return;
    }
    if (isGraphical(c.kind) || c.kind == ControlKind::Canvas)
        w->setFocusPolicy(Qt::NoFocus);
    w->setObjectName(qs(c.id()));
    if (testIdsWanted())
        w->setAccessibleDescription(qs(c.id()));
    b.widget = w;
}

// ---- Keeping widgets in step ----

void ScreenView::sync()
{
    if (!screen_)
        return;
    buildNew();
    if (designWidth_ != screen_->width() || designHeight_ != screen_->height()) {
        designWidth_ = screen_->width();
        designHeight_ = screen_->height();
        computeScale();
        relayout_ = true;
    }
    bool repaint = changed(backColor_, screen_->backColor());
    repaint |= changed(backPicture_, screen_->backPicture());
    if (repaint || relayout_)
        update();
    const auto &controls = screen_->controls();
    // Text the model writes into its boxes is not the pupil's change to report back.
    syncing_ = true;
    for (std::size_t i = 0; i < bound_.size(); ++i)
        apply(bound_[i], controls[i], relayout_);
    syncing_ = false;
    relayout_ = false;
}

void ScreenView::apply(Bound &b, const Control &c, bool relayout)
{
    if (b.timer)
        return syncTimer(b, c);
    const ControlChanges ch = compareControl(b.last, c, b.fresh, relayout);
    b.fresh = false;
    if (ch.geometry || (c.kind == ControlKind::Line && ch.colors))
        place(b, c);
    applyControl(*b.widget, c, ch, scale_ / kTwipsPerPixel);
}

void ScreenView::place(Bound &b, const Control &c)
{
    QWidget *w = b.widget;
    if (c.kind != ControlKind::Line) {
        w->setGeometry(toPixels(c.left, c.top, c.width, c.height));
        if (c.kind == ControlKind::ScrollBar)
            static_cast<QScrollBar *>(w)->setOrientation(c.width >= c.height ? Qt::Horizontal
                                                                             : Qt::Vertical);
        return;
    }
    // A line's widget is the box around both ends, with room for the pen.
    const double k = scale_ / kTwipsPerPixel;
    const double pen = std::max(1.0, c.lineWidth * k);
    const QPointF a = origin_ + QPointF(c.left * k, c.top * k);
    const QPointF z = origin_ + QPointF(c.x2 * k, c.y2 * k);
    const int margin = int(std::ceil(pen / 2)) + 1;
    const QRect box =
        QRectF(a, z).normalized().toAlignedRect().adjusted(-margin, -margin, margin, margin);
    w->setGeometry(box);
    static_cast<LineView *>(w)->setLine(a - box.topLeft(), z - box.topLeft(), c.foreColor, pen);
}

void ScreenView::syncTimer(Bound &b, const Control &c)
{
    if (changed(b.last.interval, c.interval) || b.fresh)
        b.timer->setInterval(std::max(1, c.interval));
    const bool restart = changed(b.last.timerRestarts, c.timerRestarts) && !b.fresh;
    b.fresh = false;
    const bool run = screen_ && !paused_ && c.timerOn && c.interval > 0;
    if (run && (!b.timer->isActive() || restart))
        b.timer->start();
    else if (!run && b.timer->isActive())
        b.timer->stop();
}

void ScreenView::setTimersPaused(bool paused)
{
    paused_ = paused;
    if (!screen_)
        return;
    const auto &controls = screen_->controls();
    for (std::size_t i = 0; i < bound_.size() && i < controls.size(); ++i)
        if (bound_[i].timer)
            syncTimer(bound_[i], controls[i]);
}

void ScreenView::applyFocus(bool force)
{
    if (!screen_)
        return;
    const std::string &name = screen_->focusName();
    const int index = screen_->focusIndex();
    if (!force && focusDone_ && name == focusName_ && index == focusIndex_)
        return;
    focusName_ = name;
    focusIndex_ = index;
    focusDone_ = false;
    if (name.empty())
        return;
    QWidget *w = widgetFor(name, index);
    if (w && w->isVisibleTo(this) && w->isEnabled()) {
        w->setFocus(Qt::OtherFocusReason);
        focusDone_ = true;
    }
}

// ---- Scaling ----

void ScreenView::computeScale()
{
    const double dw = std::max(1, designWidth_) / kTwipsPerPixel;
    const double dh = std::max(1, designHeight_) / kTwipsPerPixel;
    scale_ = std::max(0.05, std::min(width() / dw, height() / dh));
    origin_ = QPointF((width() - dw * scale_) / 2, (height() - dh * scale_) / 2);
}

QRect ScreenView::toPixels(double left, double top, double width, double height) const
{
    // Both edges are rounded, so controls that touch in the layout still touch on screen.
    const double k = scale_ / kTwipsPerPixel;
    const int x0 = int(std::lround(origin_.x() + left * k));
    const int y0 = int(std::lround(origin_.y() + top * k));
    const int x1 = int(std::lround(origin_.x() + (left + width) * k));
    const int y1 = int(std::lround(origin_.y() + (top + height) * k));
    return QRect(x0, y0, std::max(0, x1 - x0), std::max(0, y1 - y0));
}

QRect ScreenView::designRect() const
{
    return toPixels(0, 0, designWidth_, designHeight_);
}

void ScreenView::resizeEvent(QResizeEvent *)
{
    computeScale();
    relayout_ = true;
    sync();
}

void ScreenView::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.fillRect(rect(), colorOr(backColor_, palette().color(QPalette::Window)));
    if (!backPicture_.empty())
        backCache_.paint(p, backPicture_, QRectF(designRect()));
}

QPixmap ScreenView::snapshot()
{
    return grab(designRect());
}

QWidget *ScreenView::widgetFor(std::string_view name, int index) const
{
    for (const Bound &b : bound_)
        if (b.widget && b.index == index && b.name == name)
            return b.widget;
    return nullptr;
}

QTimer *ScreenView::timerFor(std::string_view name) const
{
    for (const Bound &b : bound_)
        if (b.timer && b.name == name)
            return b.timer;
    return nullptr;
}

// ---- Events ----

void ScreenView::click(int slot)
{
    Control *c = liveControl(slot);
    if (!c || !c->visible || !c->enabled)
        return;
    applyClick(screen_->controls(), *c);
    const std::string name = c->name;
    app_.click(*screen_, name, c->index);
    window_.afterEvent(true);
}

void ScreenView::doubleClick(int slot)
{
    Control *c = liveControl(slot);
    if (!c || !c->visible || !c->enabled)
        return;
    const std::string name = c->name;
    app_.doubleClick(*screen_, name, c->index);
    window_.afterEvent(true);
}

void ScreenView::mouseDown(int slot, QPointF pixels)
{
    Control *c = liveControl(slot);
    if (!c || !c->visible || !c->enabled)
        return;
    // From the exact layout (origin and scale), not the widget's rounded pixel position, so a
    // press on a drawn board lands on the twip it points at.
    QWidget *w = bound_[std::size_t(slot)].widget;
    const QPointF inView = w ? QPointF(w->mapTo(this, QPoint(0, 0))) + pixels : pixels;
    const double twips = kTwipsPerPixel / scale_;
    const double x = (inView.x() - origin_.x()) * twips - c->left;
    const double y = (inView.y() - origin_.y()) * twips - c->top;
    const std::string name = c->name;
    app_.mouseDown(*screen_, name, c->index, x, y);
    window_.afterEvent(true);
}

void ScreenView::typeKey(int slot, AnswerBox &box, QKeyEvent *e, int code)
{
    Control *c = liveControl(slot);
    if (!c)
        return;
    // The model sees the box as it stands before the key.
    c->caption = box.text().toStdString();
    Screen &s = *screen_;
    const std::string name = c->name;
    const int index = c->index;
    const int k = app_.keyPress(s, name, index, code);
    window_.afterEvent(false);
    if (k == 0 || !screen_ || !app_.isLive(s))
        return;
    c = s.find(name, index);
    if (!c || c->kind != ControlKind::TextBox)
        return;
    // Apply the key the model let through to the box as the model left it.
    const QString before = box.text();
    applyingKey_ = true;
    if (k == code) {
        box.applyKey(e);
    } else if (k == 8) {
        box.backspace();
    } else if (k >= 32 && k != 127) {
        const char32_t ch = char32_t(k);
        box.insert(QString::fromUcs4(&ch, 1));
    }
    applyingKey_ = false;
    if (box.text() == before)
        return;
    c->caption = box.text().toStdString();
    app_.change(s, name, index);
    window_.afterEvent(false);
}

template<class T> void ScreenView::reportChange(int slot, T Control::*field, T value)
{
    Control *c = liveControl(slot);
    if (!c || c->*field == value)
        return;
    c->*field = std::move(value);
    const std::string name = c->name;
    app_.change(*screen_, name, c->index);
    window_.afterEvent(false);
}

void ScreenView::textChanged(int slot, const QString &text)
{
    if (!applyingKey_ && !syncing_)
        reportChange(slot, &Control::caption, text.toStdString());
}

const Control *ScreenView::controlOf(const QWidget *widget) const
{
    if (!screen_ || !widget)
        return nullptr;
    for (const Bound &b : bound_)
        if (b.widget == widget)
            return screen_->find(b.name, b.index);
    return nullptr;
}

bool ScreenView::screenKey(QKeyEvent *e)
{
    // A key held down counts once. Some X servers send a held key's repeats as a release and a
    // press with the same time stamp instead of marking them as repeats.
    const bool repeat =
        e->isAutoRepeat() || (lastReleaseKey_ == e->key() && lastReleaseTime_ == e->timestamp());
    if (!screen_ || !app_.isLive(*screen_))
        return false;
    if (repeat)
        return keyCode(*e, true) != 0; // taken, and nothing happens
    const int code = keyCode(*e, true);
    if (code == 0)
        return false;
    app_.screenKey(*screen_, code);
    window_.afterEvent(false);
    return true;
}

void ScreenView::keyReleaseEvent(QKeyEvent *e)
{
    lastReleaseKey_ = e->key();
    lastReleaseTime_ = e->timestamp();
    QWidget::keyReleaseEvent(e);
}

void ScreenView::keyPressEvent(QKeyEvent *e)
{
    // Keys reach the view when the widget with the focus did not take them (a button ignores
    // letters) or when nothing on the screen has the focus.
    if (!screenKey(e))
        QWidget::keyPressEvent(e);
}

void ScreenView::selectionChanged(int slot, int row)
{
    reportChange(slot, &Control::listIndex, row);
}

void ScreenView::scrolled(int slot, int value)
{
    reportChange(slot, &Control::value, value);
}

void ScreenView::timerFired(int slot)
{
    Control *c = liveControl(slot);
    if (!c || paused_)
        return;
    const std::string name = c->name;
    app_.timerTick(*screen_, name);
    window_.afterEvent(false);
}

} // namespace nb::ui
