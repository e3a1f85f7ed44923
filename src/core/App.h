#pragma once
// The running program: the pupil's progress, the open screens in the order they were shown, and
// the single entry point for every event. An event runs to its end before the next; a screen
// closed during an event is destroyed only when that event has finished.
#include "core/PupilProgress.h"
#include "core/ScreenRegistry.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace nb {

class Platform;
class Screen;

// Told about screens appearing and going, so a window can follow.
class AppListener
{
public:
    virtual ~AppListener() = default;
    virtual void screenShown(Screen &screen) = 0;
    virtual void screenClosed(Screen &screen) = 0; // still alive during the call
    virtual void programEnded() = 0;
};

class App
{
public:
    App(Platform &platform, const ScreenRegistry &registry);
    ~App();
    App(const App &) = delete;
    App &operator=(const App &) = delete;

    PupilProgress &progress() { return progress_; }
    Platform &platform() { return platform_; }
    const ScreenRegistry &registry() const { return registry_; }
    void setListener(AppListener *listener) { listener_ = listener; }

    // Show a screen by name: a screen that is not open is created and its opening logic runs; an
    // open one is brought to the front without running it again. Returns nullptr for a name that
    // is not registered, or once the program has ended.
    Screen *show(std::string_view name);
    // Close a screen; closing one that is not open does nothing.
    void close(std::string_view name);
    void close(Screen &screen);
    // End the program: every screen closes at once; nothing is saved.
    void endProgram();
    bool ended() const { return ended_; }

    Screen *find(std::string_view name) const;
    bool isOpen(std::string_view name) const { return find(name) != nullptr; }
    // Open screens, oldest first; the last is the one in front.
    std::vector<Screen *> openScreens() const;
    Screen *front() const;

    // Event entry points for the window layer and the test driver. Each ignores a screen that is
    // no longer open. keyPress returns the key to apply (0 when swallowed).
    void click(Screen &s, const std::string &name, int index = -1);
    void doubleClick(Screen &s, const std::string &name, int index = -1);
    int keyPress(Screen &s, const std::string &name, int index, int key);
    // x and y in twips from the control's top-left corner.
    void mouseDown(Screen &s, const std::string &name, int index, double x, double y);
    // A key no text box took (see Screen::onScreenKey).
    void screenKey(Screen &s, int key);
    void timerTick(Screen &s, const std::string &name);
    void change(Screen &s, const std::string &name, int index = -1);

    // Run any event body with the same guard (deferred destruction of closed screens).
    template<class F> void run(Screen &s, F &&body)
    {
        if (!isLive(s))
            return;
        ++depth_;
        body();
        leave();
    }

    bool isLive(const Screen &s) const;

private:
    void leave();
    void destroyClosed();

    Platform &platform_;
    const ScreenRegistry &registry_;
    PupilProgress progress_;
    AppListener *listener_ = nullptr;
    std::vector<std::unique_ptr<Screen>> open_;
    std::vector<std::unique_ptr<Screen>> closed_;
    int depth_ = 0;
    bool ended_ = false;
};

} // namespace nb
