#pragma once
// The right-answer sound: a short chime compiled into the program, played through the audio
// device without waiting for it, or the window system's bell when there is no audio device.
// Whether it sounds at all is a choice kept in the user's settings between runs.
#include <QAudioDevice>
#include <QAudioFormat>
#include <QObject>
#include <QString>
#include <QThread>

#include <atomic>

namespace nb::ui {

// Plays one PCM sound from the start each time it is asked.
// Lives on the audio thread: opening a stream on the audio server can take milliseconds.
class ChimePlayer : public QObject
{
    Q_OBJECT
public:
    ChimePlayer(const QAudioDevice &device, const QAudioFormat &format, QByteArray samples,
                std::atomic<bool> &failed);
    ~ChimePlayer() override;

public slots:
    void play();

signals:
    // The stream has been handed its first samples (measured by the benchmark).
    void started();

private:
    QAudioDevice device_;
    QAudioFormat format_;
    QByteArray samples_;
    std::atomic<bool> &failed_;
};

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

    // For measurements: the player once prepared (it lives on the audio thread), or null when
    // the bell is used.
    ChimePlayer *player() const { return player_; }

private:
    QString settingsFile_;
    bool on_ = true;
    bool prepared_ = false;
    QThread audio_;
    ChimePlayer *player_ = nullptr;
    std::atomic<bool> failed_{false};
};

} // namespace nb::ui
