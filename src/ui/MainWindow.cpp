#include "ui/MainWindow.h"

#include "core/Screen.h"
#include "ui/ScreenView.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStackedLayout>

#include <algorithm>

namespace nb::ui {

MainWindow::MainWindow(App &app, QWidget *parent)
    : QWidget(parent)
    , app_(app)
    , stack_(new QStackedLayout(this))
{
    stack_->setContentsMargins(0, 0, 0, 0);
    setWindowTitle("NUMBROOK");
    resize(1024, 768);
    app_.setListener(this);
    qApp->installEventFilter(this);
}

MainWindow::~MainWindow()
{
    qApp->removeEventFilter(this);
    app_.setListener(nullptr);
    for (auto &[screen, view] : views_)
        view->detach();
}

bool MainWindow::start(std::string_view name)
{
    Screen *s = app_.show(name);
    syncAll(true);
    return s != nullptr;
}

void MainWindow::screenShown(Screen &screen)
{
    ScreenView *view = viewOf(screen);
    if (!view) {
        view = new ScreenView(*this, app_, screen);
        views_.emplace_back(&screen, view);
        stack_->addWidget(view);
    }
    showFront();
}

void MainWindow::screenClosed(Screen &screen)
{
    auto it = std::find_if(views_.begin(), views_.end(),
                           [&](const auto &entry) { return entry.first == &screen; });
    if (it != views_.end()) {
        // The view may be inside one of its own widgets' event handlers: delete it later.
        ScreenView *view = it->second;
        views_.erase(it);
        view->detach();
        stack_->removeWidget(view);
        view->hide();
        view->deleteLater();
    }
    showFront();
}

void MainWindow::programEnded()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            hide();
            emit finished();
        },
        Qt::QueuedConnection);
}

void MainWindow::showFront()
{
    Screen *front = app_.front();
    ScreenView *view = front ? viewOf(*front) : nullptr;
    if (!view)
        return;
    if (stack_->currentWidget() != view) {
        stack_->setCurrentWidget(view);
        focusPending_ = true;
        ++frontGeneration_;
    }
    setWindowTitle(QString::fromStdString(front->title()));
}

void MainWindow::syncAll(bool forceFocus)
{
    for (Screen *s : app_.openScreens())
        if (ScreenView *view = viewOf(*s))
            view->sync();
    if (ScreenView *front = frontView()) {
        front->applyFocus(forceFocus || focusPending_);
        focusPending_ = false;
    }
}

void MainWindow::pauseTimers()
{
    if (pauseDepth_++ == 0)
        for (auto &[screen, view] : views_)
            view->setTimersPaused(true);
}

void MainWindow::resumeTimers()
{
    if (pauseDepth_ > 0 && --pauseDepth_ == 0)
        for (auto &[screen, view] : views_)
            view->setTimersPaused(false);
}

ScreenView *MainWindow::viewOf(const Screen &screen) const
{
    for (const auto &[s, view] : views_)
        if (s == &screen)
            return view;
    return nullptr;
}

ScreenView *MainWindow::frontView() const
{
    Screen *front = app_.front();
    return front ? viewOf(*front) : nullptr;
}

void MainWindow::closeEvent(QCloseEvent *e)
{
    // Closing the window is a request to leave: the program may first offer to save (and stay
    // open for the save screen). Without a handler, or once ended, the window simply closes.
    Screen *front = app_.ended() ? nullptr : app_.front();
    if (front && closeRequest_) {
        app_.run(*front, [this] { closeRequest_(); });
        if (!app_.ended()) {
            syncAll(true);
            e->ignore();
            return;
        }
    }
    if (!app_.ended())
        app_.endProgram();
    e->accept();
}

void MainWindow::keyPressEvent(QKeyEvent *e)
{
    // Nothing on the screen has the focus: the key is the front screen's.
    ScreenView *view = frontView();
    if (!view || !view->screenKey(e))
        QWidget::keyPressEvent(e);
}

bool MainWindow::pressBelongsHere(QWidget *target) const
{
    // A press a widget ignores travels on to its parents: any of them is the same place.
    QWidget *pressed = pressedWidget_.data();
    const bool samePlace = pressed && (target == pressed || target->isAncestorOf(pressed) ||
                                       pressed->isAncestorOf(target));
    if (!samePlace || pressedGeneration_ != frontGeneration_)
        return false;
    ScreenView *view = frontView();
    const Control *c = view ? view->controlOf(target) : nullptr;
    return !c || c->doubleClicks;
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    auto *target = qobject_cast<QWidget *>(watched);
    if (!target || !isAncestorOf(target))
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        // The same press passed on to a parent keeps the widget that took it first.
        if (pressedWidget_ && target->isAncestorOf(pressedWidget_) &&
            pressedGeneration_ == frontGeneration_ && !swallowRelease_)
            break;
        pressedWidget_ = target;
        pressedGeneration_ = frontGeneration_;
        swallowRelease_ = false;
        break;
    case QEvent::MouseButtonDblClick:
        // A double-click's second press arrives as this event. When the first press handed the
        // front over to another screen, or landed on another control, or the control takes no
        // double-clicks, the second press and its release do nothing: a quick double press on
        // START must not also press whatever the next screen has in that place.
        if (!pressBelongsHere(target)) {
            swallowRelease_ = true;
            // The press may already have moved the focus (onto a game's PASS, say); put it back
            // where the screen wants it once this event is over.
            QMetaObject::invokeMethod(
                this,
                [this] {
                    if (ScreenView *view = frontView())
                        view->applyFocus(true);
                },
                Qt::QueuedConnection);
            return true;
        }
        break;
    case QEvent::MouseButtonRelease:
        if (swallowRelease_) {
            swallowRelease_ = false;
            return true;
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace nb::ui
