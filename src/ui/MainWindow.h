#pragma once
// The program's one window. It follows the App: each screen that is shown gets a view (built
// once, kept while the screen is open), the screen in front is the view on top, and the window
// title is the front screen's title. After every event all open views are brought up to date.
#include "core/App.h"

#include <QPointer>
#include <QWidget>

#include <functional>

#include <string_view>
#include <utility>
#include <vector>

class QStackedLayout;

namespace nb::ui {

class ScreenView;

class MainWindow : public QWidget, public AppListener
{
    Q_OBJECT
public:
    explicit MainWindow(App &app, QWidget *parent = nullptr);
    ~MainWindow() override;

    App &app() { return app_; }

    // Shows a screen by name as the program's first screen; false when it could not be opened.
    bool start(std::string_view name);

    void screenShown(Screen &screen) override;
    void screenClosed(Screen &screen) override;
    void programEnded() override;

    // Brings every open view up to date with its screen and applies the front screen's focus.
    void syncAll(bool forceFocus = false);
    // Called by the views after each event they passed to the App.
    void afterEvent(bool forceFocus) { syncAll(forceFocus); }

    // What closing the window asks the program to do (for example, offer to save first); the
    // window stays open unless the program has ended afterwards.
    void setCloseRequest(std::function<void()> request) { closeRequest_ = std::move(request); }

    // Screen timers stand still while a message box is open (calls nest).
    void pauseTimers();
    void resumeTimers();
    bool timersPaused() const { return pauseDepth_ > 0; }

    ScreenView *viewOf(const Screen &screen) const;
    ScreenView *frontView() const;

signals:
    // The program has ended and the window has closed.
    void finished();

protected:
    void closeEvent(QCloseEvent *e) override;
    void keyPressEvent(QKeyEvent *e) override;
    // Watches mouse presses in the whole program so that a press counts only on the screen and
    // the control that were in front when it began (see pressBelongsHere).
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showFront();
    // Whether the second press of a double-click may act: only on the widget that took the
    // first press, on a screen still in front, and on a control that takes double-clicks.
    bool pressBelongsHere(QWidget *target) const;

    App &app_;
    std::function<void()> closeRequest_;
    QStackedLayout *stack_;
    std::vector<std::pair<const Screen *, ScreenView *>> views_;
    int pauseDepth_ = 0;
    bool focusPending_ = true;
    // The widget that took the last mouse press, and the number of front-screen changes then.
    QPointer<QWidget> pressedWidget_;
    int pressedGeneration_ = 0;
    int frontGeneration_ = 0;
    bool swallowRelease_ = false;
};

} // namespace nb::ui
