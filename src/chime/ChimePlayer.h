#pragma once
// Plays one PCM sound from the start each time it is asked. It lives on the program's audio
// thread (opening a stream on the audio server can take milliseconds) and in a library of its
// own that the program loads on first use and reaches through numbrook_make_chime.
#include <QAudioDevice>
#include <QAudioFormat>
#include <QByteArray>
#include <QObject>

#include <atomic>

namespace nb::ui {

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

} // namespace nb::ui

extern "C" {
// A player for the 16-bit PCM WAV file at `wavPath` (a resource path works) on the default audio
// output, or null when there is no audio device or the file is not such a sound. `failed` is set
// when the device refuses to play.
Q_DECL_EXPORT QObject *numbrook_make_chime(const char *wavPath, std::atomic<bool> *failed);
}
