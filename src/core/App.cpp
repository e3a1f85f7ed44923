#include "core/App.h"

#include "core/Screen.h"

#include <algorithm>

namespace nb {

App::App(Platform &platform, const ScreenRegistry &registry)
    : platform_(platform)
    , registry_(registry)
{}

App::~App()
{
    listener_ = nullptr;
    closed_.clear();
    while (!open_.empty())
        open_.pop_back();
}

Screen *App::show(std::string_view name)
{
    if (ended_)
        return nullptr;
    if (Screen *s = find(name)) {
        auto it =
            std::find_if(open_.begin(), open_.end(), [s](const auto &p) { return p.get() == s; });
        const bool wasFront = s == front();
        std::rotate(it, it + 1, open_.end());
        if (listener_)
            listener_->screenShown(*s);
        if (!wasFront)
            run(*s, [s] { s->onActivated(); });
        return isLive(*s) ? s : nullptr;
    }
    const ScreenRegistry::Entry *entry = registry_.find(name);
    if (!entry)
        return nullptr;
    std::unique_ptr<Screen> screen = entry->make(*this);
    screen->name_ = entry->name;
    screen->title_ = entry->title;
    Screen *raw = screen.get();
    open_.push_back(std::move(screen));
    if (listener_)
        listener_->screenShown(*raw);
    ++depth_;
    raw->onOpened();
    leave();
    return isLive(*raw) ? raw : nullptr;
}

void App::close(std::string_view name)
{
    if (Screen *s = find(name))
        close(*s);
}

void App::close(Screen &screen)
{
    auto it =
        std::find_if(open_.begin(), open_.end(), [&](const auto &p) { return p.get() == &screen; });
    if (it == open_.end())
        return;
    const bool wasFront = std::next(it) == open_.end();
    std::unique_ptr<Screen> owned = std::move(*it);
    open_.erase(it);
    owned->onClosing();
    if (listener_)
        listener_->screenClosed(*owned);
    closed_.push_back(std::move(owned));
    ++depth_;
    if (wasFront && !ended_) {
        if (Screen *revealed = front())
            revealed->onActivated();
    }
    leave();
}

void App::endProgram()
{
    if (ended_)
        return;
    ended_ = true;
    while (!open_.empty()) {
        std::unique_ptr<Screen> owned = std::move(open_.back());
        open_.pop_back();
        if (listener_)
            listener_->screenClosed(*owned);
        closed_.push_back(std::move(owned));
    }
    if (listener_)
        listener_->programEnded();
    if (depth_ == 0)
        destroyClosed();
}

Screen *App::find(std::string_view name) const
{
    for (const auto &s : open_)
        if (s->name() == name)
            return s.get();
    return nullptr;
}

std::vector<Screen *> App::openScreens() const
{
    std::vector<Screen *> out;
    out.reserve(open_.size());
    for (const auto &s : open_)
        out.push_back(s.get());
    return out;
}

Screen *App::front() const
{
    return open_.empty() ? nullptr : open_.back().get();
}

bool App::isLive(const Screen &s) const
{
    return std::any_of(open_.begin(), open_.end(), [&](const auto &p) { return p.get() == &s; });
}

void App::leave()
{
    if (--depth_ == 0)
        destroyClosed();
}

void App::destroyClosed()
{
    // Destroying a screen may not close others, but take the list first to be safe.
    auto doomed = std::move(closed_);
    closed_.clear();
    doomed.clear();
}

void App::click(Screen &s, const std::string &name, int index)
{
    run(s, [&] { s.onClick(name, index); });
}

void App::doubleClick(Screen &s, const std::string &name, int index)
{
    run(s, [&] {
        const Control *c = s.find(name, index);
        if (c && !c->doubleClicks)
            return;
        s.onDoubleClick(name, index);
    });
}

int App::keyPress(Screen &s, const std::string &name, int index, int key)
{
    int k = key;
    bool delivered = false;
    run(s, [&] {
        delivered = true;
        s.onKeyPress(name, index, k);
    });
    return delivered ? k : 0;
}

void App::mouseDown(Screen &s, const std::string &name, int index, double x, double y)
{
    run(s, [&] {
        MousePress press{name, index, x, y, x, y};
        if (const Control *c = s.find(name, index)) {
            press.screenX += c->left;
            press.screenY += c->top;
        }
        s.onMouseDown(press);
    });
}

void App::screenKey(Screen &s, int key)
{
    run(s, [&] { s.onScreenKey(key); });
}

void App::timerTick(Screen &s, const std::string &name)
{
    run(s, [&] {
        const Control *t = s.find(name);
        if (t && t->kind == ControlKind::Timer && t->timerOn)
            s.onTimer(name);
    });
}

void App::change(Screen &s, const std::string &name, int index)
{
    run(s, [&] { s.onChange(name, index); });
}

} // namespace nb
