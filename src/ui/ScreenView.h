#pragma once
// One open screen shown as widgets. The view builds a widget for every control once, keeps each
// widget in step with its control (writing only what changed), scales the screen's twips layout
// uniformly into its own size, and turns widget events into calls on the App.
#include "core/Control.h"
#include "ui/Pictures.h"

#include <QWidget>

#include <string>
#include <string_view>
#include <vector>

class QKeyEvent;
class QTimer;

namespace nb {
class App;
class Screen;
} // namespace nb

namespace nb::ui {

class AnswerBox;
class MainWindow;

class ScreenView : public QWidget
{
    Q_OBJECT
public:
    ScreenView(MainWindow &window, App &app, Screen &screen, QWidget *parent = nullptr);
    ~ScreenView() override;

    // The screen shown, or nullptr once it has closed.
    Screen *screen() const { return screen_; }
    // The screen has closed (it is destroyed after the current event): forget it, stop timers.
    void detach();

    // Brings every widget and timer in step with the screen's controls.
    void sync();
    // Gives keyboard focus to the control the screen asks for, when that request is new or when
    // forced (after a click, focus has moved to whatever was clicked).
    void applyFocus(bool force);
    void setTimersPaused(bool paused);

    // Window pixels per design pixel (15 twips), and the screen's area inside the view.
    double scale() const { return scale_; }
    QRect designRect() const;
    // The widget or timer made for a control (nullptr when there is none).
    QWidget *widgetFor(std::string_view name, int index = -1) const;
    QTimer *timerFor(std::string_view name) const;
    // The screen's area as it is shown now.
    QPixmap snapshot();
    // The control a widget of this view was made for (nullptr for any other widget or once the
    // screen has closed).
    const Control *controlOf(const QWidget *widget) const;
    // A key that no box took: passed to the screen as a screen-level key. False when the key
    // means nothing to the screen channel (modifiers alone, function keys, repeats).
    bool screenKey(QKeyEvent *e);

    // Reports from the widgets; each runs one model event and then brings every view up to date.
    void click(int slot);
    void doubleClick(int slot);
    void mouseDown(int slot, QPointF pixels);
    void typeKey(int slot, AnswerBox &box, QKeyEvent *e, int code);
    // The box's text changed other than by a key the model saw first (a paste with the mouse,
    // an on-screen keyboard or a screen reader setting it): the model takes the new text.
    void textChanged(int slot, const QString &text);
    void selectionChanged(int slot, int row);
    void scrolled(int slot, int value);
    void timerFired(int slot);

protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void keyPressEvent(QKeyEvent *e) override;
    void keyReleaseEvent(QKeyEvent *e) override;

private:
    struct Bound
    {
        std::string name;
        int index = -1;
        ControlKind kind = ControlKind::Label;
        QWidget *widget = nullptr; // every kind but Timer
        QTimer *timer = nullptr;   // Timer
        Control last;              // what the widget shows now (its drawing is not copied)
        bool fresh = true;         // nothing applied yet
    };

    Control *liveControl(int slot);
    // Stores what the pupil changed in the control and reports it, unless nothing changed.
    template<class T> void reportChange(int slot, T Control::*field, T value);
    void buildNew();
    void dropAll();
    void make(Bound &b, const Control &c, int slot);
    void restack();
    void apply(Bound &b, const Control &c, bool relayout);
    void place(Bound &b, const Control &c);
    void syncTimer(Bound &b, const Control &c);
    QRect toPixels(double left, double top, double width, double height) const;
    void computeScale();

    MainWindow &window_;
    App &app_;
    Screen *screen_;
    std::vector<Bound> bound_;
    double scale_ = 1;
    QPointF origin_;
    int designWidth_ = 0, designHeight_ = 0; // twips
    std::uint32_t backColor_ = kDefaultColor;
    std::string backPicture_;
    CachedPicture backCache_;
    bool relayout_ = true;
    bool paused_ = false;
    bool applyingKey_ = false;
    bool syncing_ = false;
    // The last key released and when: a press at that very moment is the key repeating.
    int lastReleaseKey_ = 0;
    quint64 lastReleaseTime_ = 0;
    std::string focusName_;
    int focusIndex_ = -1;
    bool focusDone_ = false;
};

} // namespace nb::ui
