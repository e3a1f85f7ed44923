#pragma once
// The right-answer sound: a short chime compiled into the program, played through the audio
// device without waiting for it, or the window system's bell when there is no audio device.
// Whether it sounds at all is a choice kept in the user's settings between runs.
#include <QObject>
#include <QString>
#include <QThread>

#include <atomic>

namespace nb::ui {

class Sound
{
public:
    // settingsFile: where the on/off choice is kept; empty means the user's usual settings.
    explicit Sound(QString settingsFile = {});
    ~Sound();
    Sound(const Sound &) = delete;
    Sound &operator=(const Sound &) = delete;

    // Finds the audio device and loads the chime, so the first play starts without delay. Safe
    // to call more than once; without an audio device it only notes that the bell is to be used.
    void prepare();
    // Starts the chime (or rings the bell) and returns at once; nothing while sound is off.
    void play();

    bool on() const { return on_; }
    // Remembers the choice; a settings folder that cannot be written only loses the memory.
    void setOn(bool on);

    // For measurements: the player once prepared (a ChimePlayer living on the audio thread), or
    // null when the bell is used.
    QObject *player() const { return player_; }

private:
    QString settingsFile_;
    bool on_ = true;
    bool prepared_ = false;
    QThread audio_;
    QObject *player_ = nullptr;
    std::atomic<bool> failed_{false};
};

} // namespace nb::ui
